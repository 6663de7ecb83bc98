// A control as plain data: where it is, what it shows, how it looks. A view draws it; handlers
// read and write it. Coordinates are twips within the parent.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/colour.h"
#include "platform/forms/property.h"

namespace orvanta::forms {

class Form;

/// What another control is to a key or a drawing.
enum class Role {
  Mask,     ///< while it shows, the key is dead
  Light,    ///< while it shows, the key is on
  Caption,  ///< goes down with the key
  Grey,     ///< in grey, the key is dead
  Hole,     ///< shown where the key stood while it is down
  Plateau,  ///< shows while a press of the key is taken
  Percent,  ///< tells where the slider stands
  Colour,   ///< lends its colour to the drawing
  Joint,    ///< covers the edge between two panes
  Scale,    ///< the slider that a scale is engraved for
};
constexpr size_t kRoles = 10;

enum class Kind { Label, Image, Panel, Line, Shape, Bar, TextBox, Button, List, Combo, Check };
std::string_view kindName(Kind kind);

enum class Align { Left, Center, Right };

// Aliases that the screen answers for.
constexpr const char* kLcdFont = "LcdD";
constexpr const char* kSmallFont = "Small Fonts";

struct Font {
  std::string family;
  double points = 8;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool operator==(const Font&) const = default;
};

/// A place in the grid of a resizable window.
struct Cell {
  int row = 0;
  int column = 0;
  int rows = 1;
  int columns = 1;
};

constexpr int kNoIndex = -1;  ///< of a control that is in no array

class Control : protected PropertyOwner {
 public:
  static constexpr int kNoIndex = forms::kNoIndex;

  Control(Form& form, std::string_view name, int index, Kind kind);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const std::string& name() const { return name_; }
  int index() const { return index_; }  ///< place in its array, kNoIndex for a single control
  Kind kind() const { return kind_; }
  Form& form() const { return form_; }
  /// "key(2)" of an array.
  std::string fullName() const;

  Control* parent = nullptr;  ///< nullptr: the form itself
  int z = 0;                  ///< among the children of one parent; higher lies above
  std::string art;            ///< which drawing serves it, "" for the kind's plain one
  std::string says;           ///< accessible name where there is no caption
  bool passesMouse = false;   ///< a press goes to what lies below, as on a key's caption
  bool tabStop = false;       ///< Tab halts here while it is visible and enabled
  Cell cell;                  ///< in a window that lays itself out
  bool tellsText = false;     ///< a new caption is told to the form's handlers, whoever wrote it

  /// The control that has this role for it; nullptr for none.
  Control* with(Role role) const { return partners_[static_cast<size_t>(role)]; }
  void setWith(Role role, Control* control) { partners_[static_cast<size_t>(role)] = control; }

  Property<int> left{*this, Change::Geometry};
  Property<int> top{*this, Change::Geometry};
  Property<int> width{*this, Change::Geometry};
  Property<int> height{*this, Change::Geometry};
  Property<bool> visible{*this, Change::Visibility, true};
  Property<bool> enabled{*this, Change::Enabled, true};
  Property<bool> engaged{*this, Change::Enabled, false};  ///< a key without a light of its own whose act is on
  Property<std::string> caption{*this, Change::Text};
  Property<std::string> toolTip{*this, Change::Text};
  Property<Colour> foreColor{*this, Change::Look, colours::kBlack};
  Property<Colour> backColor{*this, Change::Look, colours::kBlack};
  Property<Font> font{*this, Change::Look};
  Property<Align> align{*this, Change::Look, Align::Left};
  Property<bool> wordWrap{*this, Change::Look, false};

  void move(int newLeft, int newTop);
  /// Puts what changed on the screen before it returns.
  void refresh();

  /// Its rectangle lies at least partly in its parent, and that in its parent, up to the form.
  bool insideForm() const;
  /// Visible with all its parents.
  bool shown() const;
  /// A press would do something: enabled, not under its mask, its caption not grey.
  bool available() const;
  /// Its light is lit, or its act is on.
  bool on() const;

  /// What its kind has beside the values of all controls, put back for a window that is loaded anew.
  virtual void resetOwn() {}
  /// What its kind shows beside its caption: "40%", "on", "empty"; "" for nothing.
  virtual std::string state() const { return {}; }
  /// A text of the user's.
  virtual void takeText(const std::string& text) { caption = text; }

 protected:
  void propertyChanged(Change change) final;

 private:
  Form& form_;
  std::string name_;
  int index_;
  Kind kind_;
  std::array<Control*, kRoles> partners_{};
};

template <Kind K>
class Simple : public Control {
 public:
  explicit Simple(Form& form, std::string_view name, int index = kNoIndex) : Control(form, name, index, K) {}
};

using Label = Simple<Kind::Label>;
using Line = Simple<Kind::Line>;
using Shape = Simple<Kind::Shape>;
using Button = Simple<Kind::Button>;

class Image : public Simple<Kind::Image> {
 public:
  using Simple::Simple;
  void resetOwn() override { picture = std::string(); }
  Property<std::string> picture{*this, Change::Look};    ///< a picture file of the user's in place of the drawing; "" for none
  Property<int> pictureReading{*this, Change::Look, 0};  ///< another number has the file read anew
};

/// A panel with two bevels: 0 none, 1 inset, 2 raised.
class Panel : public Simple<Kind::Panel> {
 public:
  using Simple::Simple;
  void resetOwn() override { empty = false; }
  std::string state() const override { return empty ? "empty" : ""; }
  int bevelInner = 2;
  int bevelOuter = 2;
  int bevelWidth = 3;
  Property<bool> empty{*this, Change::Look, false};  ///< drawn without what it could hold
};

/// The text is the caption.
class TextBox : public Simple<Kind::TextBox> {
 public:
  using Simple::Simple;
  void resetOwn() override { allSelected = false; }
  void takeText(const std::string& text) override;
  bool multiLine = false;
  /// By program, told to the view each time: a text set since the last one has ended it there.
  void selectAll();
  Property<bool> allSelected{*this, Change::Selection};  ///< the user's next edit ends it
};

/// A box to tick, or one of several choices. A press is its handlers' to answer: they change the value.
class CheckBox : public Simple<Kind::Check> {
 public:
  using Simple::Simple;
  std::string state() const override { return value ? "on" : ""; }
  Property<bool> value{*this, Change::Selection};
};

/// A text with a list of proposals.
class Combo : public Simple<Kind::Combo> {
 public:
  using Simple::Simple;
  void resetOwn() override { clear(); }
  void clear() { setItems({}); }
  void setItems(std::vector<std::string> items);
  const std::vector<std::string>& items() const { return items_; }
  /// Takes the text of an item; nothing out of range.
  void choose(int index);

 private:
  std::vector<std::string> items_;
};

/// Rows of text, in columns parted by TABs. Out of range nothing happens, and a row is "".
class ListBox : public Simple<Kind::List> {
 public:
  using Simple::Simple;
  void resetOwn() override;
  Property<bool> multiSelect{*this, Change::Look, false};
  Property<int> markedRow{*this, Change::Look, -1};  ///< stands out from the others, as the track that plays; -1 for none

  int count() const { return static_cast<int>(rows_.size()); }
  const std::string& row(int index) const;
  void clear();
  void add(const std::string& text) { insert(count(), text); }
  void insert(int index, const std::string& text);
  void set(int index, const std::string& text);
  void remove(int index);
  void move(int from, int to);

  bool selected(int index) const { return inRange(index) && rows_[static_cast<size_t>(index)].selected; }
  void selectOnly(int index);
  /// The row that the keyboard stands on; -1 for none.
  int listIndex() const { return listIndex_; }
  /// In a list of one selection the row is selected too, and its click handler runs.
  void setListIndex(int index);

  /// What the user did in the view: no answer to it.
  void taken(int index, const std::vector<int>& selection);

 private:
  struct Row {
    std::string text;
    bool selected = false;
  };
  bool inRange(int index) const { return index >= 0 && index < count(); }
  std::vector<Row> rows_;
  int listIndex_ = -1;
};

/// A bar that fills from the left; foreColor is that of a percent text on it.
class Bar : public Simple<Kind::Bar> {
 public:
  using Simple::Simple;
  /// The table's colour is that of the flood.
  void resetOwn() override;
  std::string state() const override { return std::to_string(floodPercent) + "%"; }
  Property<int> floodPercent{*this, Change::Look};  ///< 0 to 100
  Property<Colour> floodColor{*this, Change::Look};
};

/// Like controls under one name, by index from 0.
template <class T, size_t N>
class ControlArray {
 public:
  ControlArray(Form& form, std::string_view name) : ControlArray(form, name, std::make_index_sequence<N>{}) {}
  T& operator[](size_t index) { return items_.at(index); }
  const T& operator[](size_t index) const { return items_.at(index); }
  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }
  static constexpr size_t size() { return N; }

 private:
  template <size_t... I>
  ControlArray(Form& form, std::string_view name, std::index_sequence<I...>) : items_{T(form, name, static_cast<int>(I))...} {}
  std::array<T, N> items_;
};

}  // namespace orvanta::forms
