// make_disc SCORE OUT: plays a score into OUT.bin and writes OUT.cue beside it, one track a piece, and the
// disc's record, KEY.CD, as the deck would.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "base/text.h"
#include "base/times.h"
#include "score.h"
#include "state/field_file.h"
#include "synth.h"

namespace {

std::string cueTime(size_t pairs) {
  const size_t frames = pairs / 588;
  char text[32];
  std::snprintf(text, sizeof text, "%02zu:%02zu:%02zu", frames / 4500, frames / 75 % 60, frames % 75);
  return text;
}

/// The record of a disc whose tracks have these lengths in frames.
void writeRecord(const Score& score, const std::vector<int>& lengths, const std::filesystem::path& folder) {
  using orvanta::FieldWriter, orvanta::packMsf, orvanta::msfOfFrames, orvanta::minutesSeconds;
  int total = 0;
  for (const int length : lengths) total += length;
  auto sum = static_cast<double>(lengths.size());
  std::string times = orvanta::longTime((total - 1) / 75) + ",";
  for (size_t i = 0; i < lengths.size(); ++i) {
    // The device tells the last track, and the disc, a frame short.
    const int told = i + 1 == lengths.size() ? lengths[i] - 1 : lengths[i];
    sum += static_cast<double>(packMsf(msfOfFrames(told))) + static_cast<double>(packMsf(msfOfFrames(total - 1)));
    times += minutesSeconds(told / 75) + ",";
  }
  FieldWriter out;
  out.text(score.title);
  out.text(score.performer);
  out.text("Five pieces for a new deck.");
  for (size_t i = 0; i < 45; ++i) out.text(i < score.pieces.size() ? score.pieces[i].title : "");
  out.text(times);
  out.text(std::to_string(lengths.size()));
  for (const char* field : {"", "", "General"}) out.text(field);
  std::ofstream(folder / (orvanta::padded(static_cast<long>(sum), 8) + ".CD"), std::ios::binary) << out.bytes();
}

void make(const std::string& scorePath, const std::filesystem::path& out) {
  const Score score = readScore(scorePath);
  std::filesystem::create_directories(out.parent_path());
  std::ofstream bin(out.string() + ".bin", std::ios::binary);
  std::ofstream cue(out.string() + ".cue");
  cue << "TITLE \"" << score.title << "\"\nPERFORMER \"" << score.performer << "\"\nFILE \"" << out.filename().string()
      << ".bin\" BINARY\n";
  size_t pairs = 0;
  std::vector<int> lengths;
  for (size_t i = 0; i < score.pieces.size(); ++i) {
    const auto samples = synthesise(score.pieces[i]);
    bin.write(reinterpret_cast<const char*>(samples.data()), static_cast<std::streamsize>(samples.size() * sizeof samples[0]));
    cue << "  TRACK " << (i < 9 ? "0" : "") << i + 1 << " AUDIO\n    TITLE \"" << score.pieces[i].title << "\"\n    INDEX 01 "
        << cueTime(pairs) << "\n";
    pairs += samples.size() / 2;
    lengths.push_back(static_cast<int>(samples.size() / 2 / 588));
  }
  writeRecord(score, lengths, out.parent_path());
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
