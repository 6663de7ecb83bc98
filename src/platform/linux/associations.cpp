// The desktop's lists, in the order in which it reads them itself.
#include "platform/linux/associations.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <sstream>

#include "base/text.h"
#include "platform/linux/host_files.h"
#include "platform/linux/host_system.h"

namespace orvanta {

namespace {

constexpr size_t kLongest = 1 << 20;  ///< bytes that are looked at of a list or a program's file

std::vector<std::string> parts(std::string_view text, char between) {
  std::vector<std::string> all;
  std::istringstream stream{std::string(text)};
  for (std::string part; std::getline(stream, part, between);) {
    if (!trim(part).empty()) all.emplace_back(trim(part));
  }
  return all;
}

/// What stands behind "key=" in a group; nullopt when nothing does. The first of several counts.
std::optional<std::string> valueOf(std::string_view file, std::string_view group, std::string_view key) {
  std::istringstream lines{std::string(file.substr(0, kLongest))};
  bool within = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (line.starts_with('[')) {
      within = line == "[" + std::string(group) + "]";
    } else if (const size_t equals = line.find('='); within && equals != std::string::npos) {
      if (trim(std::string_view(line).substr(0, equals)) == key) return std::string(trim(std::string_view(line).substr(equals + 1)));
    }
  }
  return std::nullopt;
}

/// Escapes of any value of the file: "\s" for a blank and the like.
std::string unescaped(std::string_view value) {
  std::string text;
  for (size_t i = 0; i < value.size(); ++i) {
    if (value[i] != '\\' || i + 1 == value.size()) {
      text += value[i];
      continue;
    }
    const char next = value[++i];
    text += next == 's'    ? " "
            : next == 'n'  ? "\n"
            : next == 't'  ? "\t"
            : next == 'r'  ? "\r"
            : next == '\\' ? "\\"
                           : std::string{'\\', next};
  }
  return text;
}

/// Split at blanks outside double quotes, in which a backslash takes the next sign as it is.
std::optional<std::vector<std::string>> argumentsOf(std::string_view command) {
  std::vector<std::string> all;
  std::string argument;
  bool quoted = false;
  bool begun = false;
  const auto finish = [&] {
    if (begun) all.push_back(argument);
    argument.clear();
    begun = false;
  };
  for (size_t i = 0; i < command.size(); ++i) {
    if (!quoted && command[i] == ' ') {
      finish();
      continue;
    }
    begun = true;
    if (command[i] == '"') {
      quoted = !quoted;
    } else {
      if (quoted && command[i] == '\\' && i + 1 < command.size()) ++i;
      argument += command[i];
    }
  }
  if (quoted) return std::nullopt;
  finish();
  return all;
}

/// Codes are "%" and a letter: files and addresses go where the address goes, what is left out here is the program's icon and name.
std::string withPlace(const std::string& argument) {
  std::string text;
  for (size_t i = 0; i < argument.size(); ++i) {
    if (argument[i] != '%' || i + 1 == argument.size()) {
      text += argument[i];
      continue;
    }
    const char code = argument[++i];
    if (code == '%') text += '%';
    if (std::string_view("uUfF").find(code) != std::string_view::npos) text += "%u";
  }
  return text;
}

/// nullopt for arguments that no stored command could hold.
std::optional<std::string> joined(const std::vector<std::string>& arguments) {
  std::string command;
  for (const std::string& each : arguments) {
    const std::string argument = withPlace(each);
    if (argument.empty()) continue;
    const size_t place = argument.find("%u");
    // Within a longer word it could be read as something else than an address.
    const bool option = argument.starts_with("--") && argument.ends_with("=%u") && argument.find('=') + 1 == place;
    if (place != std::string::npos && (command.empty() || (argument != "%u" && !option))) return std::nullopt;
    if (argument.find('"') != std::string::npos || withoutControls(argument) != argument) return std::nullopt;
    const bool blank = argument.find(' ') != std::string::npos;
    command += (command.empty() ? "" : " ") + (blank ? '"' + argument + '"' : argument);
  }
  // Where the address comes last anyway, the program alone is what a person would enter.
  if (command.ends_with(" %u")) command.resize(command.size() - 3);
  return command.empty() ? std::nullopt : std::optional(command);
}

struct Folders {
  std::vector<std::string> lists;     ///< that hold lists of choices
  std::vector<std::string> programs;  ///< that hold programs' files, and lists too
};

std::string folderOr(const char* variable, const std::string& usual) {
  const char* set = std::getenv(variable);
  return set != nullptr && set[0] != '\0' ? set : usual;
}

Folders foldersOfDesktop() {
  Folders folders;
  folders.lists = {HostSystem::configHome()};
  for (const std::string& each : parts(folderOr("XDG_CONFIG_DIRS", "/etc/xdg"), ':')) folders.lists.push_back(each);
  folders.programs = {joinPath(HostSystem::dataHome(), "applications")};
  for (const std::string& each : parts(folderOr("XDG_DATA_DIRS", "/usr/local/share:/usr/share"), ':'))
    folders.programs.push_back(joinPath(each, "applications"));
  folders.lists.insert(folders.lists.end(), folders.programs.begin(), folders.programs.end());
  return folders;
}

/// "a-b.desktop" may lie in a folder "a".
std::optional<std::string> programFile(const Folders& folders, std::string name) {
  if (name.find('/') != std::string::npos) return std::nullopt;
  for (;;) {
    for (const std::string& folder : folders.programs) {
      if (auto file = HostFiles().read(joinPath(folder, name))) return file;
    }
    const size_t hyphen = name.find('-');
    if (hyphen == std::string::npos) return std::nullopt;
    name[hyphen] = '/';
  }
}

/// "mimeapps.list", for each desktop that this is one of its own before.
std::vector<std::string> listNames() {
  std::vector<std::string> names;
  for (std::string desktop : parts(folderOr("XDG_CURRENT_DESKTOP", ""), ':')) {
    std::transform(desktop.begin(), desktop.end(), desktop.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    if (desktop.find('/') == std::string::npos) names.push_back(desktop + "-mimeapps.list");
  }
  names.emplace_back("mimeapps.list");
  return names;
}

}  // namespace

std::vector<std::string> choicesFor(std::string_view list, std::string_view group, std::string_view type) {
  return parts(valueOf(list, group, type).value_or(""), ';');
}

std::optional<std::string> commandOf(std::string_view desktopFile) {
  constexpr std::string_view kGroup = "Desktop Entry";
  for (const std::string_view key : {"Hidden", "Terminal"}) {
    if (valueOf(desktopFile, kGroup, key).value_or("") == "true") return std::nullopt;
  }
  const auto command = valueOf(desktopFile, kGroup, "Exec");
  const auto arguments = command ? argumentsOf(unescaped(*command)) : std::nullopt;
  return arguments ? joined(*arguments) : std::nullopt;
}

std::string associatedCommand(const std::vector<std::string>& types) {
  const Folders folders = foldersOfDesktop();
  std::vector<std::string> choices;
  const auto collect = [&](const std::string& folder, const std::string& name, std::string_view group, const std::string& type) {
    const auto list = HostFiles().read(joinPath(folder, name));
    if (list) std::ranges::copy(choicesFor(*list, group, type), std::back_inserter(choices));
  };
  // What was chosen, for any of the types, before what was added: an editor may be added to pages.
  for (const char* group : {"Default Applications", "Added Associations"}) {
    for (const std::string& type : types) {
      for (const std::string& folder : folders.lists) {
        for (const std::string& name : listNames()) collect(folder, name, group, type);
      }
    }
  }
  // What programs say of themselves: an editor says that it opens pages, of the web's scheme only browsers do.
  for (auto type = types.rbegin(); type != types.rend(); ++type) {
    for (const std::string& folder : folders.programs) collect(folder, "mimeinfo.cache", "MIME Cache", *type);
  }
  for (const std::string& choice : choices) {
    const auto file = programFile(folders, choice);
    const auto command = file ? commandOf(*file) : std::nullopt;
    if (command) return *command;
  }
  return {};
}

}  // namespace orvanta
