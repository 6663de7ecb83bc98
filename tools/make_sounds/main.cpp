// make_sounds FOLDER: synthesises the deck's own sounds as WAV files.
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "platform/sound/wav_file.h"

namespace {

constexpr double kRate = 44100;
constexpr double kTwoPi = 6.283185307179586;

/// One sample of a sound at `t` seconds; the noise is low-pass filtered by the maker.
using Voice = std::function<double(double t, double noise)>;

double decay(double t, double seconds) { return t < 0 ? 0 : std::exp(-t / seconds); }

double tone(double t, double hertz) { return std::sin(kTwoPi * hertz * t); }

/// A key's contact: a dull knock under a short tick.
double knock(double t, double noise, double pitch) {
  return .55 * tone(t, pitch) * decay(t, .007) + .5 * noise * decay(t, .003) * (t >= 0 ? 1 : 0);
}

void make(const std::string& path, double seconds, double smoothing, const Voice& voice) {
  std::filesystem::remove(path);
  std::mt19937 random(11);
  std::uniform_real_distribution<double> white(-1, 1);
  std::vector<int16_t> pairs;
  double noise = 0;
  const int count = static_cast<int>(seconds * kRate);
  for (int i = 0; i < count; ++i) {
    noise += (white(random) - noise) * smoothing;
    const double fade = std::min(1.0, (count - i) / (.01 * kRate));
    const auto sample = static_cast<int16_t>(std::lround(std::tanh(voice(i / kRate, noise) * fade) * 20000));
    pairs.insert(pairs.end(), {sample, sample});
  }
  orvanta::WavFile(path).append(pairs.data(), pairs.size() / 2);
}

/// A tray's motor: gear whine that runs up and down again, then the stop's thud.
double drawer(double t, double noise) {
  constexpr double kRun = .42;
  const double run = std::min({t / .05, 1.0, std::max(0.0, (kRun - t) / .06)});
  const double gears = .16 * tone(t, 118) + .1 * tone(t, 236) + .05 * tone(t, 944) * tone(t, 29);
  return run * (gears + .35 * noise) + .8 * tone(t - kRun, 74) * decay(t - kRun, .03) + .4 * noise * decay(t - kRun, .012);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "Usage: make_sounds FOLDER\n");
    return 2;
  }
  const std::string folder = argv[1];
  std::filesystem::create_directories(folder);
  make(folder + "/click.wav", .05, .6, [](double t, double noise) { return knock(t, noise, 640) + .5 * knock(t - .018, noise, 820); });
  make(folder + "/click1.wav", .04, .5, [](double t, double noise) { return .7 * knock(t, noise, 980); });
  make(folder + "/minimize.wav", .22, .4, [](double t, double /*noise*/) { return .3 * tone(t, 880 - 1400 * t) * decay(t, .09); });
  make(folder + "/mixer.wav", .3, .4, [](double t, double /*noise*/) {
    return .28 * tone(t, 523.25) * decay(t, .1) + .28 * (t > .08 ? tone(t - .08, 783.99) : 0) * decay(t - .08, .1);
  });
  make(folder + "/opendraw.wav", .62, .08, drawer);
  return 0;
}
