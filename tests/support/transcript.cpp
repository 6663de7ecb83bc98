#include "tests/support/transcript.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <ranges>
#include <sstream>

#include "base/code_page.h"
#include "tests/support/places.h"
#include "tests/support/scene_start.h"
#include "tests/support/snapshot.h"

namespace orvanta::test {
namespace {

/// A deck that a person works at, and what can be told of it.
class Scene {
 public:
  explicit Scene(const std::vector<Word>& start) : rig_(discIn(start), false, [&](PlayRig& rig) { prepare(rig, start); }) {
    for (const Word& word : start) {
      if (word.verb == "correction") rig_.state.disc.timeCorrection = static_cast<int16_t>(word.number());
      if (word.verb == "titles") titles(word);
    }
    rig_.processes.onStart = [this] {
      rig_.processes.fail = !unstartable_.empty() && rig_.processes.tape.back().find(unstartable_) != std::string::npos;
      if (taken_ && !rig_.processes.fail) rig_.files.files.erase("/DATA/EJCD.TMP");
    };
    rig_.begin();
    summary_ = summary();
    tellTapes([this](const std::string& line) { atStart_.push_back(line); });
    look();
  }

  /// Runs the acts of a line; what they changed, a line each.
  std::string run(const std::vector<Word>& acts) {
    for (const Word& act : acts) {
      if (!done(act)) ADD_FAILURE() << "there is no " << act.verb << " " << act.value;
    }
    std::string told;
    const auto tell = [&](const std::string& line) {
      told += "  ";
      for (const char c : line) told += c == '\n' ? "\\n" : c == '\r' ? "\\r" : std::string(1, c);
      told += "\n";
    };
    if (const std::string now = summary(); now != summary_) tell(summary_ = now);
    tellTapes(tell);
    tellForms(tell);
    for (const std::string& line : asked(std::exchange(asked_, ""))) tell(line);
    if (rig_.gate.ended() && !std::exchange(ended_, true)) tell("the end");
    return told;
  }

  std::string where() const {
    if (rig_.gate.ended()) return "the end";
    std::string all;
    for (const forms::Form* form : rig_.desktop.shown | std::views::reverse) {
      const forms::Control* focus = form->minimised ? nullptr : form->activeControl();
      all += (all.empty() ? "" : ", ") + form->name() + (form->minimised ? " minimised" : "") +
             (focus == nullptr ? "" : " at " + focus->fullName()) + (rig_.desktop.lastShown == form ? " active" : "");
    }
    return all + (rig_.systemTray.told == nullptr ? "" : ", icon");
  }

 private:
  /// What an act wants to be told in whole.
  Tape asked(const std::string& what) const {
    if (what == "start") return atStart_;
    if (what == "all") return Snapshot(*front_).whole();
    if (what == "tray-menu") return trayMenu();
    if (what == "body") return {placeOf(*front_) + " " + std::to_string(front_->backColor)};
    if (what == "how-started") return {rig_.processes.last.folder + (rig_.processes.last.detached ? " detached" : "")};
    if (what == "tree") return treeOf(rig_.menus.shown, "");
    if (what != "look") return {};
    Tape all = Snapshot(*front_).captions();
    static const std::set<std::string> display = {"Label6", "Label8", "Label9", "Label10", "Label12", "Label13", "Label14", "Label30"};
    if (front_ == &rig_.form)
      std::erase_if(all, [](const std::string& line) { return display.count(line.substr(0, line.find(' '))) == 0; });
    std::string dead;
    for (const forms::Control* control : front_->controls()) {
      if (control->tabStop && control->shown() && !control->available()) dead += " " + control->fullName();
    }
    if (!dead.empty()) all.push_back("dead:" + dead);
    return all;
  }

  /// An item a line, deeper ones indented; what is hidden is left out.
  static Tape treeOf(const MenuItem& menu, const std::string& indent) {
    Tape all;
    for (const MenuItem& item : menu.items) {
      if (!item.shown) continue;
      all.push_back(indent + (item.caption.empty() ? "----" : item.name + " \"" + item.caption + "\"") + (item.enabled ? "" : " dead") +
                    (item.checked ? " *" : ""));
      std::ranges::copy(treeOf(item, indent + ". "), std::back_inserter(all));
    }
    return all;
  }

  void titles(const Word& word) {
    const auto all = word.list();
    for (size_t i = 1; i <= 100; ++i) rig_.state.disc.trackTitles[i] = i <= all.size() ? all[i - 1] : "";
  }

  bool done(const Word& act) { return passed(act) || pressed(act) || written(act) || arranged(act) || typed(act); }

  /// Time.
  bool passed(const Word& act) {
    if (act.verb[0] == '+') return rig_.clock.advance(std::llround(std::atof(act.verb.c_str() + 1) * 1000)), true;
    if (act.verb[0] == '@') return rig_.at(std::atof(act.verb.c_str() + 1)), true;
    if (act.verb == "mark") return rig_.begin(), true;
    return false;
  }

  /// The mouse on a control of the window in front.
  bool pressed(const Word& act) {
    if (act.verb == "in") return in(act.value);
    forms::Form& form = *front_;
    if (act.verb == "let-go") return enter([&] { form.mouseUp({forms::MouseButton::Left, act.number(0), act.number(1)}); });
    if (act.verb == "activate") return enter([&] { form.activated(); });
    if (act.verb == "restore") return enter([&] { form.minimised = false; });
    if (act.verb == "close") return enter([&] { form.closeAsked(); });
    if (act.verb == "bar") return rig_.clickBar(std::atof(act.value.c_str())), true;
    const size_t colon = act.verb.find(':');
    const std::string how = colon == std::string::npos ? "" : act.verb.substr(0, colon);
    forms::Control* control = find(colon == std::string::npos ? act.verb : act.verb.substr(colon + 1));
    if (control == nullptr) return false;
    const forms::Mouse left{forms::MouseButton::Left, act.number(0), act.number(1)};
    const forms::Mouse right{forms::MouseButton::Right, act.number(0), act.number(1)};
    if (how.empty()) return enter([&] { form.press(*control); });
    if (how == "hold") return enter([&] { form.mouseDown(control, left); });
    if (how == "move") return enter([&] { form.mouseMove(control, left); });
    if (how == "double") return enter([&] { form.doubleClick(control); });
    if (how == "wheel") return enter([&] { form.wheel(control, act.number()); });
    if (how == "right") return enter([&] { form.mouseDown(control, right), form.mouseUp(right); });
    if (how == "focus") return enter([&] { form.userFocus(*control); });
    if (how == "type") return enter([&] { form.userText(*control, act.value); });
    if (how == "row") return row(dynamic_cast<forms::ListBox*>(control), act);
    return false;
  }

  bool row(forms::ListBox* list, const Word& act) {
    if (list == nullptr) return false;
    const std::vector<int> rows = act.numbers();
    return enter([&] { front_->userRow(*list, rows.empty() ? -1 : rows.back(), rows); });
  }

  /// Texts typed into the control that has the focus.
  bool written(const Word& act) {
    if (act.verb != "type" || front_->activeControl() == nullptr) return false;
    return enter([&] { front_->userText(*front_->activeControl(), act.value); });
  }

  /// What the world does.
  bool arranged(const Word& act) {
    if (act.verb == "insert") return rig_.player.insert(discOf(act), act.value == "none" ? "" : "Track01.cda"), true;
    if (act.verb == "other-files") return rig_.discData.name = act.value, true;
    if (act.verb == "drop") return enter([&] { rig_.form.fileDropped(act.value); });
    if (act.verb == "answer") return rig_.dialogs.answers.emplace_back(act.value), true;
    if (act.verb == "yes") return rig_.dialogs.yes = act.number() != 0, true;
    if (act.verb == "fail-write") return rig_.files.failAt = rig_.files.writes() + act.number(), true;
    if (act.verb == "second") return second(act.list());
    if (act.verb == "about") return enter([&] { rig_.orvanta.actions().run(Action::About); });
    if (act.verb == "draft") return enter([&] { rig_.orvanta.keepDrafts(); });
    if (act.verb == "session-ends") return enter([&] { rig_.orvanta.endOfSession(); });
    if (act.verb == "full") return rig_.files.full = act.number() != 0, true;
    if (act.verb == "dies") return taken_ = act.number() == 0, true;
    if (act.verb == "no-start") return unstartable_ = act.value, true;
    if (act.verb == "notice") return rig_.player.answer = {TrayOffer::Answer::Notice, act.value}, true;
    if (act.verb == "program") return program(act);
    if (act.verb == "look" || act.verb == "all" || act.verb == "start" || act.verb == "tree" || act.verb == "body" ||
        act.verb == "tray-menu" || act.verb == "how-started")
      return asked_ = act.verb, true;
    if (act.verb == "artist") return rig_.state.disc.discArtist = act.value, true;
    if (act.verb == "title") return rig_.state.disc.discTitle = act.value, true;
    if (act.verb == "setup-engine") return rig_.chooseInSetup(act.value, rig_.settings.lyricsSite), true;
    if (act.verb == "setup-lyrics") return rig_.chooseInSetup(rig_.settings.searchEngine, act.value), true;
    if (act.verb == "unreadable") return rig_.files.unreadable.insert(upper(act.value)), true;
    if (act.verb == "runs") return rig_.processes.names = {act.value}, true;
    if (act.verb == "site") return rig_.state.disc.extraInfo[3] = act.value, true;
    if (act.verb == "choose") return rig_.menus.choice = act.value, true;
    if (act.verb == "desktop-opens-with") return rig_.system.browser = act.value, true;
    if (act.verb == "installed") return rig_.processes.installed = {act.value}, true;
    if (act.verb == "gone") return rig_.processes.missing.insert(act.value), true;
    if (act.verb == "ends-with") return rig_.processes.exitCode = act.number(), true;
    if (act.verb == "behind-menu") {
      const std::vector<Word> acts = wordsOf(act.value);
      rig_.menus.whileOpen = [this, acts] {
        for (const Word& each : acts) done(each);
      };
      return true;
    }
    if (act.verb == "clear-disc") return rig_.state.disc.clearDiscRequest = kOn, true;
    if (act.verb == "setup") return rig_.state.process.setupWanted = kOn, true;
    if (act.verb == "wallpaper") return enter([&] { rig_.orvanta.actions().run(Action::Wallpaper); });
    if (act.verb == "tray") return tray(act.value);
    if (act.verb == "tray-there") return rig_.systemTray.there = act.number() != 0, true;
    if (act.verb == "tray-refuses") return rig_.systemTray.refuses = act.value, true;
    if (act.verb == "tray-open") return rig_.systemTray.open = act.number() != 0, true;
    if (act.verb == "minimise")
      return enter([&] { rig_.orvanta.actions().run(act.value == "tray" ? Action::MinimiseToTray : Action::MinimiseToStrip); });
    if (act.verb == "step") return enter([&] { rig_.orvanta.actions().run(act.value == "on" ? Action::TrackAfter : Action::TrackBefore); });
    if (act.verb == "fails") return rig_.player.failure = true, rig_.player.stop(), true;
    if (act.verb == "drag") return enter([&] { front_->dragged(act.number(0), act.number(1)); });
    if (act.verb == "device") return rig_.player.play(act.number(), rig_.player.disc.leadOut), true;
    if (act.verb == "mute-device") return rig_.player.quiet = act.number() != 0, true;
    if (act.verb == "behind-box") {
      const std::vector<Word> acts = wordsOf(act.value);
      rig_.dialogs.whileOpen = [this, acts] {
        for (const Word& each : acts) done(each);
      };
      return true;
    }
    return false;
  }

  /// Disc, drive, words.
  bool second(Tape words) {
    words.resize(3);
    return enter([&] { rig_.orvanta.secondStart({words[0], words[1], words[2]}); });
  }

  /// A click on its icon, its end, or an item of its menu.
  bool tray(const std::string& what) {
    TrayEvents* events = rig_.systemTray.told;
    if (events == nullptr) return false;
    if (what == "gone") rig_.systemTray.told = nullptr;
    return enter([&] { what == "click" ? events->clicked() : what == "gone" ? events->gone() : events->chosen(what); });
  }

  /// The tray's menu as it would open.
  Tape trayMenu() const {
    Tape all;
    for (const MenuItem& item : rig_.systemTray.icon.menu.items) {
      all.push_back(std::string(item.checked ? "*" : "") + (item.isDefault ? "!" : "") + item.name + " \"" + item.caption + "\"");
    }
    return all;
  }

  bool program(const Word& act) {
    const std::vector<int> tracks = act.numbers();
    rig_.program({tracks.begin(), tracks.end()});
    return true;
  }

  /// Keys of the window in front: letters and digits, or one between angles.
  bool typed(const Word& act) {
    static const std::map<std::string, int> named = {
        {"<Enter>", forms::key::kEnter},    {"<Space>", forms::key::kSpace}, {"<Tab>", forms::key::kTab},   {"<Esc>", forms::key::kEscape},
        {"<Up>", forms::key::kUp},          {"<Down>", forms::key::kDown},   {"<Left>", forms::key::kLeft}, {"<Right>", forms::key::kRight},
        {"<Back>", forms::key::kBackspace}, {"<F1>", forms::key::kF1},       {"<F2>", forms::key::kF1 + 1}, {"<Menu>", forms::key::kMenu},
        {"<F4>", forms::key::kF1 + 3},      {"<F5>", forms::key::kF1 + 4},   {"<F6>", forms::key::kF1 + 5}, {"<F7>", forms::key::kF1 + 6}};
    if (const auto found = named.find(act.verb); found != named.end()) return key(found->second), true;
    for (const char c : act.verb) {
      if ((c < 'A' || c > 'Z') && (c < '0' || c > '9')) return false;
    }
    for (const char c : act.verb) key(c);
    return true;
  }

  void key(int code) {
    enter([&] { front_->keyDown({code}), front_->keyUp({code}); });
  }

  template <class Work>
  bool enter(const Work& work) {
    rig_.gate.enter(work);
    return true;
  }

  bool in(const std::string& name) {
    for (const Window& window : windows_) {
      if (window.form->name() == name) return front_ = window.form, true;
    }
    return false;
  }

  forms::Control* find(const std::string& name) const {
    const size_t bracket = name.find('(');
    if (bracket == std::string::npos) return front_->find(name);
    return front_->find(name.substr(0, bracket), std::atoi(name.c_str() + bracket + 1));
  }

  /// What plays, what stands on the display, which keys are lit.
  std::string summary() const {
    return rig_.heard() + " | " + rig_.track() + " " + rig_.form.Label43.caption.get() + " \"" + rig_.form.Label13.caption.get() + "\" " +
           rig_.time() + " | " + rig_.look();
  }

  template <class Tell>
  void tellTapes(const Tell& tell) {
    const auto tape = [&](const char* name, Tape& acts) {
      if (!acts.empty()) tell(name + runs(acts, ", "));
      acts.clear();
    };
    const std::set<std::string> files(rig_.files.tape.begin(), rig_.files.tape.end());
    tape("drive: ", rig_.device.tape);
    tape("box: ", rig_.dialogs.tape);
    tape("files: ", rig_.files.tape);
    for (const std::string& act : files) {
      const std::string path = act.substr(act.find(' ') + 1);
      if (act.starts_with("write") && !path.ends_with(".tmp")) tell(path + ": " + runs(linesOf(rig_.files.read(path).value_or("")), " "));
    }
    tape("started: ", rig_.processes.tape);
    tape("sounds: ", rig_.sounds.tape);
    tape("mixer: ", rig_.mixer.tape);
    tape("net: ", rig_.net.tape);
    tape("menu: ", rig_.menus.tape);
    tape("tray: ", rig_.systemTray.tape);
    std::erase_if(rig_.desktop.tape, [](const std::string& act) { return act != "raise" && act != "hide" && act != "drag"; });
    tape("view: ", rig_.desktop.tape);
    if (std::exchange(rig_.auxVolume.keeps, 0) > 0) tell("level kept");
    if (!rig_.auxVolume.written.empty()) {
      char level[24];
      std::snprintf(level, sizeof level, "level: %08X", static_cast<unsigned>(rig_.auxVolume.reading.volume));
      tell(level);
      rig_.auxVolume.written.clear();
    }
  }

  template <class Tell>
  void tellForms(const Tell& tell) {
    for (Window& window : windows_) {
      const std::string name = window.form->name();
      const std::string prefix = window.form == &rig_.form ? "" : name + ".";
      const Snapshot now(*window.form);
      if (window.form->loaded() && !window.loaded) {
        tell(name + " opens \"" + window.form->caption.get() + "\"");
        for (const std::string& line : now.texts()) tell(prefix + line);
      } else if (!window.form->loaded() && window.loaded) {
        tell(name + " closes");
      } else if (window.loaded) {
        if (const std::string place = placeOf(*window.form); place != window.place) tell(name + " " + place);
        for (const std::string& line : window.seen.changesTo(now)) {
          if (window.form != &rig_.form || !inSummary(line)) tell(prefix + line);
        }
      }
    }
    look();
    if (rig_.screen.pointer != std::exchange(pointer_, rig_.screen.pointer))
      tell(pointer_ == Pointer::Normal ? "pointer normal" : "pointer busy");
    const forms::Control* focus = front_->activeControl();
    const std::string now = focus == nullptr ? "" : focus->fullName();
    if (now != focus_) tell("focus " + now);
    focus_ = now;
  }

  static bool inSummary(const std::string& line) {
    for (const char* told : {"Label8 ", "Label10 ", "Label13 ", "Label43 ", "icntlb(", "icntlc(", "scntlb("}) {
      if (line.starts_with(told)) return true;
    }
    return false;
  }

  void look() {
    for (Window& window : windows_) {
      window.loaded = window.form->loaded();
      window.place = placeOf(*window.form);
      window.seen = Snapshot(*window.form);
    }
  }

  static std::string placeOf(const forms::Form& form) {
    return std::to_string(form.left) + "," + std::to_string(form.top) + " " + std::to_string(form.width) + "x" +
           std::to_string(form.height) + (form.minimised ? " minimised" : "") + (form.enabled ? "" : " disabled") +
           (form.parked ? " parked" : "");
  }

  struct Window {
    forms::Form* form;
    bool loaded = false;
    std::string place;
    Snapshot seen;
  };
  std::string unstartable_;  ///< part of a program's name
  bool taken_ = true;        ///< a new process takes the hand-over file away
  bool ended_ = false;
  std::string asked_;  ///< to be told in whole
  Tape atStart_;       ///< what the start did
  Pointer pointer_ = Pointer::Normal;
  PlayRig rig_;
  std::vector<Window> windows_{{&rig_.form, false, {}, {}},
                               {&rig_.orvanta.editor, false, {}, {}},
                               {&rig_.orvanta.playlistForm, false, {}, {}},
                               {&rig_.orvanta.infoForm, false, {}, {}},
                               {&rig_.orvanta.cddbForm, false, {}, {}},
                               {&rig_.orvanta.categoryForm, false, {}, {}},
                               {&rig_.orvanta.mailForm, false, {}, {}},
                               {&rig_.orvanta.wallpaperForm, false, {}, {}},
                               {&rig_.orvanta.stripForm, false, {}, {}},
                               {&rig_.orvanta.iconForm, false, {}, {}},
                               {&rig_.orvanta.aboutForm, false, {}, {}}};
  forms::Form* front_ = &rig_.form;
  std::string summary_;
  std::string focus_;
};

/// The file as it would read now: lines that begin with blanks are made anew behind each line that `after` has more to say of.
std::string retold(const std::string& file, const std::function<std::string(const std::string& line)>& after) {
  std::string now;
  std::istringstream lines(file);
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with("  ")) now += line + "\n" + after(line);
  }
  return now;
}

std::string played(const std::string& file) {
  std::unique_ptr<Scene> scene;
  std::vector<Word> start;
  return retold(file, [&](const std::string& line) {
    if (line.starts_with("==")) {
      scene.reset();
      start.clear();
    }
    if (line.starts_with(": ")) std::ranges::copy(wordsOf(line.substr(2)), std::back_inserter(start));
    if (!line.starts_with("> ")) return std::string();
    if (!scene) scene = std::make_unique<Scene>(start);
    return scene->run(wordsOf(line.substr(2)));
  });
}

/// Indented; what cannot be read as it is, by numbers.
std::string printed(const std::string& text) {
  const bool readable = isUtf8(text);
  std::string all = "  ";
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    char number[8];
    std::snprintf(number, sizeof number, "\\x%02X", static_cast<unsigned char>(c));
    all += c == '\n'                                        ? (i + 1 < text.size() ? "\n  " : "")
           : (c >= ' ' || (c < 0 && readable)) && c != 0x7F ? std::string(1, c)
           : c == '\r'                                      ? "\\r"
           : c == '\t'                                      ? "\\t"
                                                            : number;
  }
  return all + "\n";
}

/// A line of acts, or of a question, with the scenario that it belongs to and what comes of it.
struct Told {
  std::string what;
  Tape lines;
};

std::vector<Told> toldBy(const std::string& file) {
  std::vector<Told> all;
  std::string title;
  std::istringstream lines(file);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("==")) title = line;
    if (line.starts_with("> ")) all.push_back({title + "\n" + line, {}});
    if (line.starts_with("  ") && !all.empty()) all.back().lines.push_back(line);
  }
  return all;
}

/// The lines of `all` that `others` lack.
std::string lacking(const Tape& all, const Tape& others, const char* mark) {
  std::string text;
  for (const std::string& line : all) text += std::ranges::count(others, line) == 0 ? mark + line + "\n" : "";
  return text;
}

std::string bytesOf(const std::string& name) {
  std::ifstream file(sourceFolder() + "/tests/data/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

std::string kept(const std::string& name, const std::string& now) {
  if (std::getenv("ORVANTA_KEEP_GOLDEN") != nullptr) std::ofstream(sourceFolder() + "/tests/data/" + name, std::ios::binary) << now;
  return bytesOf(name);
}

namespace {

void expectKept(const std::string& name, const std::function<std::string(const std::string& file)>& retell) {
  const std::string before = bytesOf(name);
  ASSERT_NE(before, "") << name;
  const std::string now = retell(before);
  const auto expected = toldBy(kept(name, now));
  const auto found = toldBy(now);
  for (size_t i = 0; i < found.size(); ++i) {
    const auto& [what, lines] = expected.at(i);
    EXPECT_TRUE(found[i].lines == lines) << name << "\n"
                                         << what << "\n"
                                         << lacking(lines, found[i].lines, "-") << lacking(found[i].lines, lines, "+");
  }
}

}  // namespace

void expectTranscript(const std::string& name) { expectKept(name, played); }

void expectAnswers(const std::string& name, const std::function<std::string(const std::string&)>& answer) {
  expectKept(name, [&](const std::string& file) {
    return retold(file, [&](const std::string& line) { return line.starts_with("> ") ? printed(answer(unescaped(line.substr(2)))) : ""; });
  });
}

void expectWays(const std::string& name) {
  expectAnswers(name, [](const std::string& line) {
    const size_t colon = line.find(" : ");
    Scene scene(wordsOf(colon == std::string::npos ? "disc=B" : line.substr(0, colon)));
    scene.run(wordsOf(colon == std::string::npos ? line : line.substr(colon + 3)));
    return scene.where();
  });
}

}  // namespace orvanta::test
