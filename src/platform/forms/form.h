// A window as data: its controls by name, its place, its focus, and the two sides it talks to:
// the view that draws it and the handlers that give it behaviour.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/control.h"
#include "platform/forms/input.h"

namespace orvanta::forms {

/// What draws a form. Changes are gathered and painted when the program is next idle.
class FormView {
 public:
  virtual ~FormView() = default;
  virtual void show() = 0;
  virtual void hide() = 0;
  virtual void raise() = 0;
  virtual void changed(Control& control, Change change) = 0;
  virtual void formChanged(Change change) = 0;
  /// Paints what waits for this control before it returns.
  virtual void refresh(Control& control) = 0;
  virtual void focusMoved(Control* control) = 0;
  /// Lets the system drag the window with the mouse button that is down; ends with Form::dragged().
  virtual void drag() = 0;
};

/// Behaviour of a form. `control` is nullptr for the form's own background.
class FormEvents {
 public:
  virtual ~FormEvents() = default;
  virtual void load() {}
  virtual void activate() {}
  virtual void unload() {}
  virtual void mouseDown(Control* /*control*/, const Mouse& /*mouse*/) {}
  virtual void mouseMove(Control* /*control*/, const Mouse& /*mouse*/) {}
  virtual void mouseUp(Control* /*control*/, const Mouse& /*mouse*/) {}
  /// After the release of a left press that ends over the control.
  virtual void click(Control& /*control*/) {}
  virtual void doubleClick(Control* /*control*/) {}
  /// True when the key is used; Tab, Space and ENTER are otherwise the form's.
  virtual bool keyDown(const KeyPress& /*key*/) { return false; }
  /// Notches of the wheel over a control, above 0 away from the user.
  virtual void wheel(Control& /*control*/, int /*notches*/) {}
  /// The user changed a text, or picked one.
  virtual void edited(Control& /*control*/) {}
  /// The user moved a row of a list to another place.
  virtual void rowMoved(ListBox& /*list*/, int /*from*/, int /*to*/) {}
  /// The caption of a control that tells of it has changed.
  virtual void textChanged(Control& /*control*/) {}
  virtual void lostFocus(Control& /*control*/) {}
  virtual void gotFocus(Control& /*control*/) {}
  /// The window was dragged by the user; left and top are the new ones.
  virtual void dragged() {}
  virtual bool takesFile(const std::string& /*path*/) const { return false; }
  virtual void fileDropped(const std::string& /*path*/) {}
  /// The window was minimised by program, or came back.
  virtual void minimisedChanged() {}
  /// The system asks to close the window.
  virtual void closeAsked() {}
};

/// Gives a loaded form its view. Knows which form was shown last.
class Desktop {
 public:
  virtual ~Desktop() = default;
  virtual std::unique_ptr<FormView> open(Form& form) = 0;
  Form* lastShown = nullptr;
};

struct AreaRow;
struct DesignRow;
struct GridRow;
enum class AreaKind;
struct PartnerRow;

struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// What a window is to the desktop.
struct WindowTraits {
  bool onTop = false;     ///< above all others
  bool inTaskbar = true;  ///< has a task button
  bool bodyless = false;  ///< nothing of it but the task button shows
  bool behind = false;    ///< below all others
};

class Form : private PropertyOwner {
 public:
  explicit Form(std::string_view name);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& name() const { return name_; }
  FormView* view() const { return view_.get(); }
  const std::vector<Control*>& controls() const { return controls_; }
  virtual WindowTraits traits() const { return {}; }
  /// nullptr when there is none of that name and index.
  Control* find(std::string_view controlName, int index = Control::kNoIndex) const;

  void setEvents(FormEvents* events) { events_ = events; }

  /// Where Tab begins; nullptr: with the first.
  Control* firstStop = nullptr;
  /// Which places of the design table load() takes: those for 15 twips a pixel, else for 12.
  bool smallFonts = true;

  Property<int> left{*this, Change::Geometry};
  Property<int> top{*this, Change::Geometry};
  Property<int> width{*this, Change::Geometry};
  Property<int> height{*this, Change::Geometry};
  Property<std::string> caption{*this, Change::Text};
  Property<Colour> backColor{*this, Change::Look};
  Property<bool> enabled{*this, Change::Enabled, true};
  /// Kept off every screen: handlers run, nothing is shown.
  Property<bool> parked{*this, Change::Geometry, false};
  Property<bool> minimised{*this, Change::Visibility, false};

  /// Puts the design values back, makes the view and runs the load handler. Nothing when loaded.
  void load(Desktop& desktop);
  /// The design values once more, in a window that is loaded.
  void putDesignBack();
  /// Its view lays it out by the controls' cells; it has a frame of the system and can be resized.
  bool resizable() const { return !grid().empty(); }
  bool loaded() const { return desktop_ != nullptr; }
  /// Where the design puts a control in the present metric variant; a control of no row is at 0, 0.
  Place designPlace(const Control& control) const;
  /// Empty in a window that has none of this kind at its present size.
  Place area(AreaKind kind) const;
  /// The row of its design; nullptr for a control of none.
  const DesignRow* designRow(const Control& control) const;
  /// Loads if need be, shows and raises; activates unless it was the last one shown.
  void show(Desktop& desktop);
  void hide();
  /// Runs the unload handler and drops the view; the data stays.
  void unload();

  Control* activeControl() const { return active_; }
  /// Lost before got. A control that cannot take the focus is refused: false.
  bool setFocus(Control& control, bool byKeyboard = false);
  bool focusShown() const { return focusShown_; }

  // Input, called by the view (through the gate) and by tests.
  /// One that does not show or is not enabled takes no press.
  void mouseDown(Control* control, const Mouse& mouse);
  void mouseMove(Control* control, const Mouse& mouse);
  /// The release of the last press, whichever control lies under the mouse now: one for each press.
  void mouseUp(const Mouse& mouse);
  void doubleClick(Control* control);
  void wheel(Control* control, int notches);
  bool keyDown(const KeyPress& key);
  void keyUp(const KeyPress& key);
  /// The user's text in a text box or combo.
  void userText(Control& control, const std::string& text);
  /// The user went to a row of a list; `selection` is what is selected now.
  void userRow(ListBox& list, int row, const std::vector<int>& selection);
  void userMovedRow(ListBox& list, int from, int to);
  /// Focus that the user gave by the mouse.
  void userFocus(Control& control);
  /// Press and release in the middle of a control, as Space or a screen reader does.
  void press(Control& control);
  void activated();
  void dragged(int newLeft, int newTop);
  /// Another window is the active one now: a key that is held here will be let go elsewhere.
  void deactivated();
  /// A drop of it would be used.
  bool takesFile(const std::string& path) const { return events_->takesFile(path); }
  void fileDropped(const std::string& path);
  void closeAsked();
  Control* pressed() const { return press_.control; }

 protected:
  /// A window of fixed places has this table, one that lays itself out the next.
  virtual std::span<const DesignRow> design() const;
  virtual std::span<const GridRow> grid() const;
  virtual std::span<const PartnerRow> partners() const;
  virtual std::span<const AreaRow> areas() const;

 private:
  friend class Control;
  friend class ListBox;
  void add(Control& control) { controls_.push_back(&control); }
  void propertyChanged(Change change) final;
  void textChanged(Control& control) { events_->textChanged(control); }
  void rowClicked(ListBox& list) { events_->click(list); }
  void moveFocus(bool backwards);
  void press(Control* control, const Mouse& mouse);
  void release(const Mouse& mouse);
  void settleFocus();

  std::string name_;
  std::vector<Control*> controls_;
  std::unique_ptr<FormView> view_;
  FormEvents* events_;
  Desktop* desktop_ = nullptr;
  Control* active_ = nullptr;
  struct Press {
    Control* control = nullptr;
    Place at;  ///< of the control before it gave way
    MouseButton button = MouseButton::Left;
    bool down = false;
    bool byKey = false;
  };
  Press press_;
  bool focusShown_ = false;
};

/// One line a control, in the order of their making: name, kind, place, what differs from plain.
std::string formAsText(const Form& form);

}  // namespace orvanta::forms
