// read_speed SHEET...: how many times faster than real time each disc image is read.
#include <chrono>
#include <cstdio>
#include <vector>

#include "platform/disc/image_drive.h"

int main(int argc, char** argv) {
  constexpr int kChunk = 25;
  for (int i = 1; i < argc; ++i) {
    std::string error;
    const auto disc = orvanta::DiscImage::open(argv[i], error);
    if (!disc) {
      std::fprintf(stderr, "%s: %s\n", argv[i], error.c_str());
      return 1;
    }
    std::vector<int16_t> samples(size_t{kChunk} * orvanta::kShortsPerFrame);
    const int last = disc->toc().leadOut - kChunk;
    double best = 0;
    for (int run = 0; run < 3; ++run) {
      const auto start = std::chrono::steady_clock::now();
      int frame = orvanta::kFirstFrame;
      for (; frame <= last; frame += kChunk) disc->read(frame, kChunk, samples.data());
      const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
      best = std::max(best, (frame - orvanta::kFirstFrame) / double{orvanta::kFramesPerSecond} / taken.count());
    }
    std::printf("%s: %.0f times real time\n", argv[i], best);
  }
  return 0;
}
