// Ports that remember what was asked of them.
#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <set>
#include <utility>

#include "base/text.h"
#include "platform/forms/form.h"
#include "platform/ports/aux_volume.h"
#include "platform/ports/core_gate.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/disc_data.h"
#include "platform/ports/facts.h"
#include "platform/ports/files.h"
#include "platform/ports/menu.h"
#include "platform/ports/mixer_application.h"
#include "platform/ports/printer.h"
#include "platform/ports/processes.h"
#include "platform/ports/screen.h"
#include "platform/ports/sounds.h"
#include "platform/ports/system.h"
#include "platform/ports/tray.h"

namespace orvanta::test {

using Tape = std::vector<std::string>;

class FakeFacts : public FactSource {
 public:
  Facts facts() const override { return now; }
  Facts now{"1.2.3", "A system", "A toolkit", "A wire", "/drive"};
};

class FakeFiles : public Files {
 public:
  std::optional<std::string> read(const std::string& path) const override {
    const auto found = files.find(upper(path));
    return found == files.end() || unreadable.count(upper(path)) > 0 ? std::nullopt : std::optional(found->second);
  }
  bool write(const std::string& path, std::string_view bytes) override {
    tape.push_back("write " + path);
    if (fails()) return false;
    files[upper(path)] = bytes;
    return true;
  }
  bool writeNamed(const std::string& path, std::string_view bytes) override { return write(path, bytes); }
  bool writeMarker(const std::string& path, std::string_view bytes) override { return write(path, bytes); }
  bool remove(const std::string& path) override {
    tape.push_back("remove " + path);
    if (keeps) return false;
    files.erase(upper(path));
    return true;
  }
  std::string reason() const override { return "No space left on device"; }
  bool exists(const std::string& path) const override { return files.count(upper(path)) > 0; }
  std::optional<FileTime> modified(const std::string& path) const override {
    return exists(path) ? std::optional(FileTime{2026, 11, 21, 15, 5}) : std::nullopt;
  }
  bool makeFolder(const std::string& /*path*/) override { return !full; }
  std::vector<std::string> list(const std::string& folder) const override {
    std::vector<std::string> names;
    const std::string start = upper(joinPath(folder, ""));
    for (const auto& [path, bytes] : files) {
      if (path.rfind(start, 0) == 0) names.push_back(path.substr(start.size()));
    }
    return names;
  }

  std::map<std::string, std::string> files;  ///< by path in upper case
  Tape tape;
  std::set<std::string> unreadable;  ///< paths in upper case
  bool full = false;                 ///< a full disk, or a read-only folder
  bool keeps = false;                ///< nothing can be removed
  int failAt = 0;                    ///< the write of this number fails; 0 none
  bool failForGood = false;          ///< and all after it
  int writes() const { return writes_; }

 private:
  bool fails() {
    ++writes_;
    return full || writes_ == failAt || (failForGood && failAt > 0 && writes_ > failAt);
  }
  int writes_ = 0;
};

class FakeDialogs : public Dialogs {
 public:
  void message(BoxStyle box, const std::string& title, const std::string& text) override { stand(box, title + ": " + text); }
  bool askYesNo(BoxStyle box, const std::string& title, const std::string& text) override {
    stand(box, title + "? " + text);
    return yes;
  }
  bool confirm(const std::string& title, const std::string& text) override {
    stand(BoxStyle::Warning, title + "?! " + text);
    return yes;
  }
  std::optional<std::string> askText(const std::string& title, const std::string& prompt, const std::string& /*proposed*/) override {
    stand(BoxStyle::Question, title + "? " + prompt);
    return next();
  }
  std::optional<std::string> askOpenFile(const FileQuestion& question) override {
    stand(BoxStyle::Question, "open " + question.title);
    return next();
  }
  std::optional<std::string> askSaveFile(const FileQuestion& question) override {
    stand(BoxStyle::Question, "save " + question.title);
    name = question.name;
    return next();
  }
  bool open() const override { return open_; }
  void raiseOpen() override { tape.emplace_back("raised"); }

  Tape tape;
  bool yes = false;
  std::deque<std::optional<std::string>> answers;  ///< none left: cancelled
  BoxStyle style = BoxStyle::Information;          ///< of the last box
  std::string name;                                ///< last proposed file name
  std::function<void()> whileOpen;                 ///< what happens behind the next box

 private:
  void stand(BoxStyle box, std::string line) {
    tape.push_back(std::move(line));
    style = box;
    open_ = true;
    if (const auto work = std::exchange(whileOpen, nullptr)) work();
    open_ = false;
  }
  std::optional<std::string> next() {
    if (answers.empty()) return std::nullopt;
    const auto answer = answers.front();
    answers.pop_front();
    return answer;
  }
  bool open_ = false;
};

class FakeProcesses : public Processes {
 public:
  Id start(const ProcessRequest& request) override {
    std::string line;
    for (const auto& argument : request.arguments) line += (line.empty() ? "" : " ") + argument;
    tape.push_back(line);
    last = request;
    if (onStart) onStart();
    return fail ? 0 : static_cast<Id>(tape.size());
  }
  bool running(Id id) const override { return alive.count(id) > 0; }
  std::optional<int> result(Id id) const override { return running(id) ? std::nullopt : std::optional(exitCode); }
  std::optional<int> runAndWait(const ProcessRequest& request) override {
    return start(request) != 0 ? std::optional(exitCode) : std::nullopt;
  }
  bool nameRuns(const std::string& program) const override { return names.count(program) > 0; }
  std::string pathOf(const std::string& program) const override {
    const bool there = !bare && missing.count(program) == 0 && (installed.empty() || program[0] == '/' || installed.count(program) > 0);
    return !there ? "" : program[0] == '/' ? program : "/usr/bin/" + program;
  }

  Tape tape;
  ProcessRequest last;
  std::set<Id> alive;
  std::set<std::string> missing;    ///< programs that are not there
  std::set<std::string> installed;  ///< names in PATH; none: any
  bool bare = false;                ///< a host without any program
  int exitCode = 0;                 ///< of what is waited for
  std::set<std::string> names;
  bool fail = false;
  std::function<void()> onStart;
};

class FakeScreen : public Screen {
 public:
  int widthPixels() const override { return width; }
  int heightPixels() const override { return height; }
  int twipsPerPixel() const override { return twips; }
  int bitsPerPixel() const override { return bits; }
  int planes() const override { return 1; }
  bool hasFont(const std::string& family) const override { return missing.count(family) == 0; }
  int textWidthTwips(const std::string& text, const std::string& /*family*/, double points, bool /*bold*/) const override {
    return static_cast<int>(static_cast<double>(text.size()) * points * 10);
  }
  PictureSize pictureSize(const std::string& path) const override {
    return path.empty() || noPictures.contains(path) ? PictureSize{} : picture;
  }
  std::vector<WorkArea> workAreas() const override {
    return areas.empty() ? std::vector<WorkArea>{{"", {0, 0, widthTwips(), heightTwips()}}} : areas;
  }
  void setPointer(Pointer now) override { pointer = now; }

  int width = 1600;
  int height = 1000;
  int twips = 15;
  int bits = 24;
  std::set<std::string> missing;
  std::vector<WorkArea> areas;  ///< none: the whole screen
  PictureSize picture{15, 15};  ///< of every picture file
  std::set<std::string> noPictures;
  Pointer pointer = Pointer::Normal;
};

class FakeSystem : public System {
 public:
  std::string systemDir() const override { return "/system"; }
  std::string windowsDir() const override { return "/programs"; }
  std::string defaultDataDir() const override { return "/usual"; }
  std::string mixerProgram() const override { return ""; }
  std::string programFor(const std::vector<std::string>& types) const override {
    return types.front() == "text/html" ? browser : types.front() == "text/plain" ? viewer : "";
  }
  int16_t platformId() const override { return 1; }
  std::vector<std::string> handedOn() const override { return arguments; }
  void changeDrive(const std::string& drive, const std::string& disc) override { arguments = {"--drive", drive, "--disc", disc}; }
  Tape arguments;
  std::string viewer;   ///< of texts, as the desktop has it
  std::string browser;  ///< of the desktop
};

class FakeTray : public Tray {
 public:
  bool available() const override { return there; }
  bool add(const TrayIcon& now, TrayEvents& events) override {
    tape.push_back("add " + std::to_string(now.picture) + " " + now.tip);
    if (refuses == "add") return false;
    icon = now;
    told = &events;
    return true;
  }
  bool change(const TrayIcon& now) override {
    tape.push_back("change " + std::to_string(now.picture) + " " + now.tip);
    icon = now;
    return refuses != "change";
  }
  bool remove() override {
    tape.emplace_back("remove");
    told = nullptr;
    return refuses != "remove";
  }
  bool menuOpen() const override { return open; }

  Tape tape;
  bool there = true;
  bool open = false;
  std::string refuses;  ///< "add", "change", "remove"
  TrayIcon icon;
  TrayEvents* told = nullptr;  ///< of an icon that stands
};

class FakeView : public forms::FormView {
 public:
  using Shown = std::vector<const forms::Form*>;
  FakeView(const forms::Form& form, Tape& tape, Shown& shown) : form_(form), tape_(tape), shown_(shown) {}
  void show() override {
    tape_.push_back("show");
    std::erase(shown_, &form_);
    shown_.push_back(&form_);
  }
  void hide() override {
    tape_.push_back("hide");
    std::erase(shown_, &form_);
  }
  void raise() override { tape_.push_back("raise"); }
  void changed(forms::Control& control, forms::Change /*change*/) override { tape_.push_back(control.fullName()); }
  void formChanged(forms::Change /*change*/) override { tape_.push_back("form"); }
  void refresh(forms::Control& control) override { tape_.push_back("refresh " + control.fullName()); }
  void focusMoved(forms::Control* control) override { tape_.push_back("focus " + (control ? control->fullName() : "")); }
  void drag() override { tape_.push_back("drag"); }

 private:
  const forms::Form& form_;
  Tape& tape_;
  Shown& shown_;
};

class FakeDesktop : public forms::Desktop {
 public:
  std::unique_ptr<forms::FormView> open(forms::Form& form) override { return std::make_unique<FakeView>(form, tape, shown); }
  Tape tape;
  FakeView::Shown shown;  ///< the one in front last
};

class FakeAuxVolume : public AuxVolume {
 public:
  int devices() const override { return 1; }
  AuxCaps caps(int /*device*/) const override { return {capsError, "CD Audio"}; }
  AuxReading volume(int /*device*/) const override { return reading; }
  int setVolume(int /*device*/, uint32_t volume) override {
    if (writeError == 0) reading.volume = volume;
    written.push_back(volume);
    return writeError;
  }
  void keep() override { ++keeps; }
  int keeps = 0;
  int capsError = 0;
  int writeError = 0;
  std::vector<uint32_t> written;
  AuxReading reading{0, 0xFFFFFFFF};
};

class FakeMixer : public MixerApplication {
 public:
  bool startHidden(const std::string& program) override {
    tape.push_back("start " + program);
    return open = true;
  }
  bool activate(const std::string& title) override { return tape.push_back("activate " + title), true; }
  void sendKeys(const std::string& keys) override {
    tape.push_back(keys);
    if (onKeys) onKeys();
  }
  bool close(const std::string& title) override {
    tape.push_back("close " + title);
    return std::exchange(open, false);
  }
  Tape tape;
  bool open = false;  ///< a window of it stands
  std::function<void()> onKeys;
};

class FakeSounds : public Sounds {
 public:
  void play(const std::string& path) override { tape.push_back(path); }
  void beep() override { tape.emplace_back("beep"); }
  Tape tape;
};

/// A person who sees a menu as text and chooses an item by its name.
class FakeMenus : public Menus {
 public:
  std::string popUp(const MenuItem& menu, bool byKey) override {
    tape.push_back(menu.name + (byKey ? " by key" : ""));
    shown = menu;
    if (const auto work = std::exchange(whileOpen, nullptr)) work();
    return std::exchange(choice, "");
  }
  Tape tape;
  MenuItem shown;      ///< last
  std::string choice;  ///< of the next one
  std::function<void()> whileOpen;
};

/// A disc that is mounted at "/mnt", its files by their way in upper case.
class FakeDiscData : public DiscData {
 public:
  std::string disc() override { return name; }
  std::vector<std::string> rootFiles() override {
    std::vector<std::string> names;
    for (const auto& [way, bytes] : files) {
      if (way.find('/') == std::string::npos) names.push_back(way);
    }
    return names;
  }
  std::string find(const std::string& way) override { return files.count(upper(way)) > 0 ? upper(way) : ""; }
  std::string read(const std::string& way, size_t most) override { return files[way].substr(0, most); }
  std::string bring(const std::string& way) override {
    return std::find(unread.begin(), unread.end(), way) == unread.end() ? joinPath(folder(), way) : "";
  }
  std::string folder() override { return "/mnt"; }
  std::string wayOf(const std::string& path) override { return path.starts_with("/mnt/") ? path.substr(5) : ""; }
  std::vector<std::string> takeUnread() override { return std::exchange(told, true) ? std::vector<std::string>() : unread; }
  std::string name = "disc";
  std::map<std::string, std::string> files;
  std::vector<std::string> unread;  ///< ways that cannot be read
  bool told = false;
};

class FakePrinter : public Printer {
 public:
  bool ask() override { return accepted; }
  void setFont(const std::string& family, double /*points*/, bool bold) override {
    tape.push_back("font " + family + (bold ? " bold" : ""));
  }
  void print(int column, const std::string& text) override { tape.push_back(std::to_string(column) + ": " + text); }
  void newLine() override { tape.emplace_back("/"); }
  void moveTo(int top) override { tape.push_back("at " + std::to_string(top)); }
  void endDocument() override { tape.emplace_back("end"); }
  bool accepted = true;
  Tape tape;
};

}  // namespace orvanta::test
