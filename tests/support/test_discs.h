// Disc images made for a test, in a folder that goes with it. Every sample tells its place: the left
// one the frame on the disc, the right one its number within the frame.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/disc/toc.h"

namespace orvanta::test {

class TempFolder {
 public:
  TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder() { std::filesystem::remove_all(path_); }
  std::string operator/(const std::string& name) const { return (path_ / name).string(); }
  std::string path() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

void writeFile(const std::string& path, const std::string& bytes);

/// The samples of a frame of the disc, as the images below hold it.
std::vector<int16_t> frameSamples(int frame);
bool isFrame(int frame, const int16_t* samples);
/// `count` frames from disc frame `first` on, as bytes of a raw image.
std::string frameBytes(int first, int count);

/// BIN and CUE of audio tracks with these lengths in frames; `gap` frames before track 1 (hidden
/// sound). Returns the sheet's path.
std::string makeDisc(const TempFolder& folder, const std::vector<int>& lengths, int gap = 0);

std::string utf16(const std::u16string& text, bool big);

/// Audio tracks, then a data track whose root folder holds `file`, of at most 2048 bytes, and a folder that leads round to itself.
/// A name in UTF-16, the higher byte first, is a long one; beside it lie a file "B" and a folder "C" that cannot be read.
std::string makeEnhancedDisc(const TempFolder& folder, const std::vector<int>& lengths, const std::string& file,
                             const std::string& content = "");

/// The same audio as makeDisc(), in a WAVE or FLAC file.
std::string makeSoundDisc(const TempFolder& folder, const std::vector<int>& lengths, bool flac);

}  // namespace orvanta::test
