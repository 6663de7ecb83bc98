// Options before words.
#include "app/options.h"

#include "app/command_line.h"
#include "base/text.h"

namespace orvanta {

namespace {

std::string absolute(const std::string& path, const std::string& folder) {
  return path.empty() || path.front() == '/' ? path : joinPath(folder, path);
}

bool takesValue(const std::string& option) {
  return option == "--data" || option == "--drive" || option == "--disc" || option == "--audio" || option == "--scale" ||
         option == "--search-engine";
}

std::string absoluteAudio(const std::string& value, const std::string& folder) {
  return value.rfind("file:", 0) == 0 ? "file:" + absolute(value.substr(5), folder) : value;
}

void take(Options& options, const std::string& option, const std::string& value, const std::string& folder) {
  if (option == "--data") {
    options.host.dataDir = absolute(value, folder);
  } else if (option == "--drive") {
    options.host.drive = absolute(value, folder);
  } else if (option == "--disc") {
    options.disc = absolute(value, folder);
  } else if (option == "--search-engine") {
    options.host.engine = value;
  } else if (option == "--audio") {
    options.audio = absoluteAudio(value, folder);
    if (value != "default" && value != "null" && value.rfind("file:", 0) != 0) options.error = "--audio " + value;
  } else {
    options.scale = leadingNumber(value);
    if (options.scale < 0.5 || options.scale > 8) options.error = "--scale " + value;
  }
}

}  // namespace

Options readOptions(const std::vector<std::string>& arguments, const std::string& currentFolder) {
  Options options;
  size_t i = 0;
  for (; i < arguments.size() && arguments[i].rfind("--", 0) == 0 && options.error.empty(); ++i) {
    std::string option = arguments[i];
    const auto equals = option.find('=');
    std::string value;
    if (equals != std::string::npos) {
      value = option.substr(equals + 1);
      option.resize(equals);
    }
    if (option == "--take-over") {
      options.takeOver = true;
    } else if (option == "--play") {
      options.host.play = true;
    } else if (option == "--help" || option == "--version") {
      (option == "--help" ? options.help : options.version) = true;
    } else if (!takesValue(option)) {
      options.error = option;
    } else if (equals == std::string::npos && i + 1 >= arguments.size()) {
      options.error = option + " without a value";
    } else {
      if (equals == std::string::npos) value = arguments[++i];
      take(options, option, value, currentFolder);
    }
  }
  for (; i < arguments.size(); ++i) options.host.words += (options.host.words.empty() ? "" : " ") + arguments[i];
  // A program is run in its own folder: what lies here must not be looked for there, nor where programs usually are.
  const std::string& words = options.host.words;
  if (classify(words).kind == CommandLine::Kind::Program) {
    options.host.words = absolute(words, currentFolder);
  }
  return options;
}

std::vector<std::string> Options::handedOn() const {
  std::vector<std::string> all{"--take-over"};
  const auto add = [&](const std::string& option, const std::string& value) {
    if (value.empty()) return;
    all.push_back(option);
    all.push_back(value);
  };
  add("--data", host.dataDir);
  add("--drive", host.drive);
  add("--audio", audio == "default" ? "" : audio);
  add("--scale", scale > 0 ? std::to_string(scale) : "");
  return all;
}

std::string helpText() {
  return "Usage: orvanlx [OPTIONS] [WORD]\n"
         "Orvanta LX, the audio CD deck.\n\n"
         "  --data DIR      data folder of this start; made when missing\n"
         "  --drive PATH    drive of this start: a folder with a disc image, or a device\n"
         "  --disc FILE     CUE sheet to put into the tray\n"
         "  --audio WHERE   default, null, or file:PATH for a WAV file\n"
         "  --scale N       size of the deck: 1, 1.5, 2 ...\n"
         "  --help, --version\n";
}

}  // namespace orvanta
