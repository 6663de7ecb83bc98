// The answers.
#include "platform/disc/play_on_talk.h"

#include "platform/disc/play_on.h"

namespace orvanta {

std::string PlayOnTalk::answer(const std::string& line) {
  if (line == "ready") return player_.toc().count() > 0 ? "ok" : "wait";
  if (line.rfind("play ", 0) == 0) return play(line.substr(5));
  if (line != "take" || !playing_ || over()) return "no";
  const Stretch rest{player_.frame(), to_};
  player_.stop();
  given_ = true;
  return playWords(rest);
}

std::string PlayOnTalk::play(const std::string& words) {
  const auto stretch = stretchOf(words);
  const Toc toc = player_.toc();
  const bool good =
      stretch && !given_ && toc.count() > 0 && stretch->from >= kFirstFrame && stretch->from < stretch->to && stretch->to <= toc.leadOut;
  if (!good) return "no";
  player_.play(stretch->from, stretch->to);
  to_ = stretch->to;
  playing_ = true;
  return "ok";
}

}  // namespace orvanta
