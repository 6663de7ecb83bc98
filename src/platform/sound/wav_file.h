// A WAV file that grows: 16-bit stereo at 44,100. One that is there already is appended to.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace orvanta {

class WavFile {
 public:
  explicit WavFile(const std::string& path);
  ~WavFile();
  /// False when the file cannot be written.
  bool good() const { return impl_ != nullptr; }
  /// A full disk ends the writing and nothing else.
  void append(const int16_t* pairs, size_t count);

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace orvanta
