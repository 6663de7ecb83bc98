// make_disc SCORE OUT: plays a score into OUT.bin and writes OUT.cue beside it, one track a piece.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "score.h"
#include "synth.h"

namespace {

std::string cueTime(size_t pairs) {
  const size_t frames = pairs / 588;
  char text[32];
  std::snprintf(text, sizeof text, "%02zu:%02zu:%02zu", frames / 4500, frames / 75 % 60, frames % 75);
  return text;
}

void make(const std::string& scorePath, const std::filesystem::path& out) {
  const Score score = readScore(scorePath);
  std::filesystem::create_directories(out.parent_path());
  std::ofstream bin(out.string() + ".bin", std::ios::binary);
  std::ofstream cue(out.string() + ".cue");
  cue << "TITLE \"" << score.title << "\"\nPERFORMER \"" << score.performer << "\"\nFILE \"" << out.filename().string() << ".bin\" BINARY\n";
  size_t pairs = 0;
  for (size_t i = 0; i < score.pieces.size(); ++i) {
    const auto samples = synthesise(score.pieces[i]);
    bin.write(reinterpret_cast<const char*>(samples.data()), static_cast<std::streamsize>(samples.size() * sizeof samples[0]));
    cue << "  TRACK " << (i < 9 ? "0" : "") << i + 1 << " AUDIO\n    TITLE \"" << score.pieces[i].title << "\"\n    INDEX 01 " << cueTime(pairs) << "\n";
    pairs += samples.size() / 2;
  }
  bin.close();
  cue.close();
  if (!bin || !cue) throw std::runtime_error("cannot write " + out.string());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "Usage: make_disc SCORE OUT\n");
    return 2;
  }
  try {
    make(argv[1], argv[2]);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make_disc: %s\n", error.what());
    return 1;
  }
}
