// How long a record of a megabyte takes to be read, by both roads: the best of ten, in milliseconds.
#include <chrono>
#include <cstdio>

#include "cddb/disc_record.h"

int main() {
  using namespace orvanta;
  using Clock = std::chrono::steady_clock;
  constexpr size_t kMegabyte = 1 << 20;
  std::string bytes = "DTITLE=Some Artist / Some Title\r\n";
  for (int track = 0; track < 99; ++track) bytes += "TTITLE" + std::to_string(track) + "=Caf\xC3\xA9 of a title\r\n";
  for (int line = 0; bytes.size() < kMegabyte; ++line)
    bytes += "EXTT" + std::to_string(line % 99) + "=Words of a song that goes on and on, until its line ends\\n\r\n";
  for (const auto& [name, road] : {std::pair{"CDDBP", &kCddbpRoad}, {"HTTP", &kHttpRoad}}) {
    double best = 1e9;
    for (int turn = 0; turn < 10; ++turn) {
      DiscRecord record;
      const auto start = Clock::now();
      readRecord(bytes, *road, record);
      best = std::min(best, std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    std::printf("a record of 1 MB read, %s: %.1f ms\n", name, best);
  }
}
