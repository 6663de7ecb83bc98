// Writing counter discs.
#include "tests/support/test_discs.h"

#include <sndfile.h>
#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): mkdtemp is POSIX

#include <cstring>
#include <fstream>
#include <numeric>

#include "base/text.h"

namespace orvanta::test {

namespace {

std::string cueTime(int frames) {
  const Msf time = msfOfFrames(frames);
  return padded(time.minutes, 2) + ":" + padded(time.seconds, 2) + ":" + padded(time.frames, 2);
}

std::string trackLines(const std::vector<int>& lengths, int gap) {
  std::string text;
  int at = 0;
  for (size_t i = 0; i < lengths.size(); ++i) {
    text += "  TRACK " + padded(static_cast<long>(i) + 1, 2) + " AUDIO\n";
    if (i == 0 && gap > 0) text += "    INDEX 00 00:00:00\n";
    if (i == 0) at += gap;
    text += "    INDEX 01 " + cueTime(at) + "\n";
    at += lengths[i];
  }
  return text;
}

int total(const std::vector<int>& lengths) { return std::accumulate(lengths.begin(), lengths.end(), 0); }

/// An ISO 9660 session of 20 blocks at `start`, its root folder holding one file, and one that lies beyond the end; raw sectors of
/// mode 1. A name of two bytes a character makes it a session of long names.
std::string isoSectors(int start, const std::string& file, const std::string& content) {
  constexpr int kBlocks = 20;
  std::vector<std::string> blocks(kBlocks, std::string(2048, '\0'));
  const auto put32 = [](std::string& block, size_t at, int value) {
    for (size_t i = 0; i < 4; ++i) block[at + i] = static_cast<char>(value >> (8 * i) & 0xFF);
  };
  std::string& volume = blocks[16];
  volume.replace(0, 7, std::string("\x01") + "CD001\x01");
  volume[156] = 34;
  const bool isLong = file.find('\0') != std::string::npos;
  if (isLong) volume[0] = 2, volume.replace(88, 2, "%/");
  put32(volume, 156 + 2, start + 18);
  put32(volume, 156 + 10, 2048);
  size_t at = 0;
  const auto entry = [&](const std::string& name, char flags, int block = 19) {
    const size_t length = (33 + name.size() + 1) / 2 * 2;
    std::string& root = blocks[18];
    root[at] = static_cast<char>(length);
    put32(root, at + 2, start + block);
    if (flags == 0 || block != 19) put32(root, at + 10, static_cast<int>(content.size()));
    root[at + 25] = flags;
    root[at + 32] = static_cast<char>(name.size());
    root.replace(at + 33, name.size(), name);
    at += length;
  };
  entry(std::string(1, '\0'), 2);
  entry("\x01", 2);
  entry("ADIR", 2);
  entry(isLong ? file : file + ";1", 0);
  if (isLong) entry(utf16(u"B", true), 0, kBlocks), entry(utf16(u"C", true), 2, kBlocks);
  blocks[19].replace(0, content.size(), content);
  while (blocks.back().size() > 2048) {
    blocks.push_back(blocks.back().substr(2048));
    blocks[blocks.size() - 2].resize(2048);
  }
  blocks.back().resize(2048);
  std::string sectors;
  for (const std::string& block : blocks) {
    std::string sector(kBytesPerFrame, '\0');
    sector[15] = 1;
    sector.replace(16, 2048, block);
    sectors += sector;
  }
  return sectors;
}

}  // namespace

TempFolder::TempFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "orvanta-XXXXXX").string();
  path_ = mkdtemp(pattern.data());
}

void writeFile(const std::string& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

std::vector<int16_t> frameSamples(int frame) {
  std::vector<int16_t> samples(kShortsPerFrame);
  for (int i = 0; i < kSamplesPerFrame; ++i) {
    samples[static_cast<size_t>(i) * 2] = static_cast<int16_t>(frame & 0x7FFF);
    samples[static_cast<size_t>(i) * 2 + 1] = static_cast<int16_t>(i + (frame >> 15) * 1024);
  }
  return samples;
}

bool isFrame(int frame, const int16_t* samples) { return std::memcmp(samples, frameSamples(frame).data(), kBytesPerFrame) == 0; }

std::string frameBytes(int first, int count) {
  std::string bytes;
  for (int frame = first; frame < first + count; ++frame) {
    const auto samples = frameSamples(frame);
    bytes.append(reinterpret_cast<const char*>(samples.data()), kBytesPerFrame);
  }
  return bytes;
}

std::string makeDisc(const TempFolder& folder, const std::vector<int>& lengths, int gap) {
  writeFile(folder / "disc.bin", frameBytes(kFirstFrame, gap + total(lengths)));
  writeFile(folder / "disc.cue", "FILE \"disc.bin\" BINARY\n" + trackLines(lengths, gap));
  return folder / "disc.cue";
}

std::string utf16(const std::u16string& text, bool big) {
  std::string bytes;
  for (const char16_t c : text) {
    for (const int shift : {big ? 8 : 0, big ? 0 : 8}) bytes += static_cast<char>(c >> shift);
  }
  return bytes;
}

std::string makeEnhancedDisc(const TempFolder& folder, const std::vector<int>& lengths, const std::string& file,
                             const std::string& content) {
  const int audio = total(lengths);
  writeFile(folder / "disc.bin", frameBytes(kFirstFrame, audio) + isoSectors(audio, file, content));
  const std::string data =
      "  TRACK " + padded(static_cast<long>(lengths.size()) + 1, 2) + " MODE1/2352\n    INDEX 01 " + cueTime(audio) + "\n";
  writeFile(folder / "disc.cue", "FILE \"disc.bin\" BINARY\n" + trackLines(lengths, 0) + data);
  return folder / "disc.cue";
}

std::string makeSoundDisc(const TempFolder& folder, const std::vector<int>& lengths, bool flac) {
  SF_INFO info{};
  info.channels = 2;
  info.samplerate = kSampleRate;
  info.format = (flac ? SF_FORMAT_FLAC : SF_FORMAT_WAV) | SF_FORMAT_PCM_16;
  const std::string name = flac ? "disc.flac" : "disc.wav";
  SNDFILE* file = sf_open((folder / name).c_str(), SFM_WRITE, &info);
  for (int frame = kFirstFrame; frame < kFirstFrame + total(lengths); ++frame)
    sf_writef_short(file, frameSamples(frame).data(), kSamplesPerFrame);
  sf_close(file);
  writeFile(folder / "disc.cue", "FILE \"" + name + "\" WAVE\r\n" + trackLines(lengths, 0));
  return folder / "disc.cue";
}

}  // namespace orvanta::test
