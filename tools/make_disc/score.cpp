// Reading a score: words by line, passages repeated as text before they are played out.
#include "score.h"

#include <cctype>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace {

/// Words of a line; what stands in quotes is one word.
std::vector<std::string> words(const std::string& line) {
  std::vector<std::string> found;
  std::string word;
  bool quoted = false;
  for (const char c : line + " ") {
    if (c == '"') {
      quoted = !quoted;
    } else if (!quoted && std::isspace(static_cast<unsigned char>(c)) != 0) {
      if (!word.empty()) found.push_back(word);
      word.clear();
    } else {
      word += c;
    }
  }
  return found;
}

/// "( a b )*3" becomes a b a b a b; passages may stand in one another.
std::vector<std::string> repeated(const std::vector<std::string>& tokens) {
  std::vector<std::vector<std::string>> open{{}};
  for (const std::string& token : tokens) {
    if (token == "(") {
      open.emplace_back();
    } else if (token.rfind(")*", 0) == 0) {
      if (open.size() < 2) throw std::runtime_error("a passage ends that did not begin");
      const auto passage = open.back();
      open.pop_back();
      for (int i = std::stoi(token.substr(2)); i > 0; --i) open.back().insert(open.back().end(), passage.begin(), passage.end());
    } else if (token != "|") {
      open.back().push_back(token);
    }
  }
  if (open.size() != 1) throw std::runtime_error("a passage does not end");
  return open.front();
}

/// "C#5" in semitones above A4.
double pitchOf(const std::string& name) {
  static const std::string kLetters = "C D EF G A B";
  const auto step = kLetters.find(name.at(0));
  if (step == std::string::npos || name[0] == ' ') throw std::runtime_error("no note: " + name);
  size_t at = 1;
  int semitone = static_cast<int>(step);
  if (name.at(at) == '#' || name.at(at) == 'b') semitone += name[at++] == '#' ? 1 : -1;
  return semitone - 9 + 12 * (std::stoi(name.substr(at)) - 4);
}

double beatsOf(std::string length) {
  const bool dotted = length.back() == '.';
  if (dotted) length.pop_back();
  return 4.0 / std::stod(length) * (dotted ? 1.5 : 1);
}

void play(Voice& voice, const std::vector<std::string>& tokens) {
  double beat = 0;
  double beats = 1;
  for (const std::string& token : repeated(tokens)) {
    const auto slash = token.find('/');
    if (slash != std::string::npos) beats = beatsOf(token.substr(slash + 1));
    std::istringstream chord(token.substr(0, slash));
    for (std::string name; std::getline(chord, name, '+');) {
      if (name != "r") voice.notes.push_back({beat, beats, pitchOf(name)});
    }
    beat += beats;
  }
}

}  // namespace

Score readScore(const std::string& path) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error(path + " cannot be read");
  Score score;
  std::vector<std::string> tokens;
  const auto finishVoice = [&] {
    if (!tokens.empty()) play(score.pieces.back().voices.back(), tokens);
    tokens.clear();
  };
  for (std::string line; std::getline(file, line);) {
    const auto parts = words(line);
    if (parts.empty() || line[0] == '#') continue;
    if (parts[0] == "disc") {
      score.title = parts.at(1);
      score.performer = parts.at(2);
    } else if (parts[0] == "piece") {
      finishVoice();
      score.pieces.push_back({parts.at(1), std::stod(parts.at(2)), {}});
    } else if (parts[0] == "voice") {
      finishVoice();
      score.pieces.back().voices.push_back({parts.at(1), std::stod(parts.at(2)), {}});
    } else {
      tokens.insert(tokens.end(), parts.begin(), parts.end());
    }
  }
  finishVoice();
  return score;
}
