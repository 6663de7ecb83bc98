#include "tests/support/snapshot.h"

#include <cstdio>

namespace orvanta::test {
namespace {

using namespace forms;

std::string quoted(const std::string& text) {
  std::string all = "\"";
  for (const char c : text) all += c == '\n' ? "\\n" : c == '\r' ? "\\r" : c == '\t' ? "\\t" : std::string(1, c);
  return all + "\"";
}

std::string colours(const Control& control) {
  char text[24];
  std::snprintf(text, sizeof text, "%06X/%06X", static_cast<unsigned>(control.foreColor), static_cast<unsigned>(control.backColor));
  return text;
}

std::string value(const Control& control) {
  std::string text;
  if (const auto* check = dynamic_cast<const CheckBox*>(&control)) text = check->value ? "on" : "off";
  if (const auto* panel = dynamic_cast<const Panel*>(&control)) text = panel->empty ? "empty" : "full";
  if (const auto* image = dynamic_cast<const Image*>(&control)) text = image->picture;
  if (const auto* bar = dynamic_cast<const Bar*>(&control)) text = std::to_string(bar->floodPercent) + "%";
  if (const auto* list = dynamic_cast<const ListBox*>(&control)) {
    for (int row = 0; row < list->count(); ++row) {
      text += std::string(row > 0 ? ", " : "") + (list->selected(row) ? "*" : "") + (list->markedRow == row ? "!" : "") +
              quoted(list->row(row));
    }
    if (list->count() == 0) text = "no rows";
  }
  return text;
}

std::string font(const Control& control) {
  if (control.kind() != Kind::Label) return "";
  const Font& is = control.font;
  char size[16];
  std::snprintf(size, sizeof size, " %g", is.points);
  return is.family + size + (is.bold ? " bold" : "") + (is.italic ? " italic" : "") + (is.underline ? " underlined" : "");
}

std::string place(const Control& control) {
  return std::to_string(control.left) + "," + std::to_string(control.top) + " " + std::to_string(control.width) + "x" +
         std::to_string(control.height);
}

}  // namespace

Snapshot::Snapshot(const Form& form) {
  for (const Control* control : form.controls()) {
    const Kind kind = control->kind();
    const bool entry = kind == Kind::TextBox || kind == Kind::Combo || kind == Kind::List || kind == Kind::Check;
    controls_.push_back({control,
                         control->visible && control->insideForm(),
                         entry,
                         {place(*control), quoted(control->caption), colours(*control), control->shown() ? "shown" : "hidden",
                          control->enabled ? "enabled" : "disabled", value(*control), font(*control)}});
  }
}

std::vector<std::string> Snapshot::changesTo(const Snapshot& now) const {
  std::vector<std::pair<std::string, std::string>> lines;  // what changed, of which controls
  for (size_t i = 0; i < now.controls_.size() && i < controls_.size(); ++i) {
    const Seen& was = controls_[i];
    const Seen& is = now.controls_[i];
    if (!was.shown && !is.shown) continue;
    std::string change;
    for (size_t aspect = 0; aspect < is.aspects.size(); ++aspect) {
      if (was.aspects[aspect] != is.aspects[aspect]) change += " " + is.aspects[aspect];
    }
    if (change.empty()) continue;
    const Control& control = *is.control;
    const std::string array = control.index() == kNoIndex ? "" : control.name() + "(";
    if (!array.empty() && !lines.empty() && lines.back().second == change && lines.back().first.starts_with(array)) {
      lines.back().first.back() = ',';
      lines.back().first += std::to_string(control.index()) + ")";
    } else {
      lines.emplace_back(control.fullName(), change);
    }
  }
  std::vector<std::string> all;
  for (const auto& [who, change] : lines) all.push_back(who + change);
  return all;
}

std::vector<std::string> Snapshot::captions() const {
  std::vector<std::string> all;
  for (const Seen& seen : controls_) {
    if (seen.shown && seen.aspects[3] == "shown" && seen.aspects[1] != "\"\"")
      all.push_back(seen.control->fullName() + " " + seen.aspects[1]);
  }
  return all;
}

std::vector<std::string> Snapshot::whole() const {
  std::vector<std::string> all;
  for (const Seen& seen : controls_) {
    if (!seen.shown || seen.aspects[3] != "shown") continue;
    std::string& line = all.emplace_back(seen.control->fullName());
    for (const std::string& aspect : seen.aspects) {
      if (!aspect.empty() && aspect != "\"\"" && aspect != "shown" && aspect != "enabled" && aspect != "full") line += " " + aspect;
    }
    if (seen.control->tabStop && !seen.control->available()) line += " dead";
  }
  return all;
}

std::vector<std::string> Snapshot::texts() const {
  std::vector<std::string> all;
  for (const Seen& seen : controls_) {
    if (!seen.entry || (seen.aspects[1] == "\"\"" && (seen.aspects[5].empty() || seen.aspects[5] == "no rows"))) continue;
    all.push_back(seen.control->fullName() + " " + (seen.aspects[1] == "\"\"" ? "" : seen.aspects[1]) + seen.aspects[5]);
  }
  return all;
}

}  // namespace orvanta::test
