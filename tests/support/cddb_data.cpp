// The recordings are text: "S: " and "C: " lines with \r, \n, \t, \\ and \xNN for what is no plain character.
#include "tests/support/cddb_data.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace orvanta::test {

namespace {

const std::string kFolder = ORVANTA_SOURCE "/tests/data/cddb/";

std::string underOurName(std::string bytes) {
  for (const auto& [theirs, ours] : {std::pair<std::string, std::string>{"Client 1.0", "Orvanta 10.0"}, {"Client+1.0", "Orvanta+10.0"}}) {
    for (auto at = bytes.find(theirs); at != std::string::npos; at = bytes.find(theirs, at + ours.size())) {
      bytes.replace(at, theirs.size(), ours);
    }
  }
  return bytes;
}

std::string body(const std::string& message) {
  const auto gap = message.find("\r\n\r\n");
  return gap == std::string::npos ? message : message.substr(gap + 4);
}

}  // namespace

std::string unescaped(std::string_view line) {
  std::string bytes;
  for (size_t i = 0; i < line.size(); ++i) {
    if (line[i] != '\\' || i + 1 == line.size()) {
      bytes += line[i];
      continue;
    }
    const char next = line[++i];
    if (next == 'x') {
      bytes += static_cast<char>(std::strtol(std::string(line.substr(i + 1, 2)).c_str(), nullptr, 16));
      i += 2;
    } else {
      bytes += next == 'r' ? '\r' : next == 'n' ? '\n' : next == 't' ? '\t' : next;
    }
  }
  return bytes;
}

std::string cddbData(const std::string& name) {
  std::ifstream file(kFolder + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> cddbNames(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(kFolder + folder)) {
    names.push_back(folder + "/" + entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<Exchanged> recording(const std::string& name) {
  std::vector<Exchanged> all(1);
  std::ifstream file(kFolder + "sessions/" + name + ".txt");
  for (std::string line; std::getline(file, line);) {
    const std::string bytes = line.size() < 3 ? "" : underOurName(unescaped(line.substr(3)));
    if (line.rfind("S: <", 0) == 0) {
      all.back().closes = true;
    } else if (line.rfind("S: ", 0) == 0) {
      all.back().answered += bytes;
    } else if (line.rfind("C: ", 0) == 0) {
      all.push_back({bytes, "", false});
    }
  }
  return all;
}

std::string replyOf(const std::string& name) {
  std::string all;
  for (const Exchanged& each : recording(name)) all += each.answered;
  return body(all);
}

std::string requestOf(const std::string& name) {
  std::string all;
  for (const Exchanged& each : recording(name)) all += each.asked;
  return body(all);
}

std::string told(const DiscRecord& record) {
  std::string text = "[" + record.title + "]\n";
  for (size_t track = 1; track <= record.count; ++track) {
    text += std::to_string(track) + " [" + record.titles[track] + "]";
    if (!record.extended[track].empty()) text += " (" + record.extended[track] + ")";
    text += "\n";
  }
  return text + (record.notes.empty() ? "" : "notes\n" + record.notes);
}

}  // namespace orvanta::test
