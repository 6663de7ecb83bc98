// Additive and plucked instruments, panned across the stage, in a small reverberant room.
#include "synth.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <stdexcept>

namespace {

constexpr double kRate = 44100;
constexpr size_t kFrame = 588;
constexpr double kTail = 2.5;  ///< seconds after the last note's end
constexpr double kTwoPi = 6.283185307179586;

using Sound = std::vector<float>;

struct Partial {
  double ratio;
  double level;
  double decay;  ///< seconds to 1/e
};

struct Instrument {
  std::vector<Partial> partials;
  double attack;
  double release;
};

Instrument instrument(const std::string& name) {
  if (name == "bell") return {{{1, 1, 1.4}, {2, .35, .9}, {2.76, .22, .35}, {5.4, .1, .15}}, .004, .5};
  if (name == "piano") return {{{1, 1, 1.1}, {2, .5, .8}, {3, .25, .5}, {4, .14, .35}, {5, .08, .25}, {7, .03, .12}}, .005, .18};
  if (name == "pad") return {{{1, .8, 9}, {1.004, .8, 9}, {2, .25, 9}, {3, .08, 9}}, .35, .6};
  if (name == "bass") return {{{1, 1, 1.2}, {2, .45, .6}, {3, .15, .3}}, .008, .1};
  if (name == "flute") return {{{1, 1, 9}, {2, .22, 9}, {3, .1, 9}, {4, .03, 9}}, .06, .12};
  throw std::runtime_error("no instrument: " + name);
}

double envelope(double t, double length, const Instrument& from) {
  const double rise = t < from.attack ? t / from.attack : 1;
  const double fall = t > length ? std::exp(-(t - length) / (from.release / 3)) : 1;
  return rise * fall;
}

void addTone(Sound& out, size_t start, double frequency, double length, double loudness, const Instrument& from) {
  const auto count = static_cast<size_t>((length + from.release * 2) * kRate);
  for (const Partial& partial : from.partials) {
    if (frequency * partial.ratio > kRate * .45) continue;
    const double step = kTwoPi * frequency * partial.ratio / kRate;
    const double fade = std::exp(-1 / (partial.decay * kRate));
    double level = loudness * partial.level;
    for (size_t i = 0; i < count && start + i < out.size(); ++i, level *= fade) {
      out[start + i] +=
          static_cast<float>(level * envelope(static_cast<double>(i) / kRate, length, from) * std::sin(step * static_cast<double>(i)));
    }
  }
}

/// A plucked string: noise that runs round a delay line and loses its edge.
void addPluck(Sound& out, size_t start, double frequency, double length, double loudness) {
  const auto period = static_cast<size_t>(kRate / frequency);
  std::mt19937 noise(static_cast<unsigned>(frequency * 100));
  std::vector<double> line(period);
  for (double& value : line) value = static_cast<double>(noise()) / 2147483648.0 - 1;
  const auto count = static_cast<size_t>((length + .8) * kRate);
  const auto hold = static_cast<size_t>(length * kRate);
  for (size_t i = 0; i < count && start + i < out.size(); ++i) {
    const size_t at = i % period;
    const double next = (line[at] + line[(at + 1) % period]) / 2 * (i > hold ? .985 : .9985);
    out[start + i] += static_cast<float>(loudness * .8 * line[at]);
    line[at] = next;
  }
}

void playVoice(Sound& out, const Voice& voice, double tempo) {
  for (const Note& note : voice.notes) {
    const auto start = static_cast<size_t>(note.beat * 60 / tempo * kRate);
    const double length = note.beats * 60 / tempo;
    const double frequency = 440 * std::pow(2, note.pitch / 12);
    if (voice.instrument == "pluck") {
      addPluck(out, start, frequency, length, voice.loudness);
    } else {
      addTone(out, start, frequency, length, voice.loudness, instrument(voice.instrument));
    }
  }
}

/// Parallel combs and an all-pass: the sound of a hall, a little different for each side.
Sound room(const Sound& dry, size_t spread) {
  Sound wet(dry.size(), 0.F);
  for (const size_t delay : {1557U, 1617U, 1491U, 1422U}) {
    std::vector<float> line(delay + spread, 0.F);
    float low = 0;
    for (size_t i = 0; i < dry.size(); ++i) {
      float& cell = line[i % line.size()];
      wet[i] += cell * .25F;
      low += (cell - low) * .7F;
      cell = dry[i] + low * .8F;
    }
  }
  std::vector<float> line(225 + spread, 0.F);
  for (size_t i = 0; i < wet.size(); ++i) {
    float& cell = line[i % line.size()];
    const float in = wet[i];
    wet[i] = cell - in * .5F;
    cell = in + cell * .5F;
  }
  return wet;
}

size_t lengthOf(const Piece& piece) {
  double last = 0;
  for (const Voice& voice : piece.voices) {
    for (const Note& note : voice.notes) last = std::max(last, note.beat + note.beats);
  }
  const auto pairs = static_cast<size_t>((last * 60 / piece.tempo + kTail) * kRate);
  return (pairs + kFrame - 1) / kFrame * kFrame;
}

}  // namespace

std::vector<int16_t> synthesise(const Piece& piece) {
  const size_t length = lengthOf(piece);
  Sound left(length, 0.F);
  Sound right(length, 0.F);
  for (size_t i = 0; i < piece.voices.size(); ++i) {
    Sound dry(length, 0.F);
    playVoice(dry, piece.voices[i], piece.tempo);
    const double place = piece.voices.size() < 2 ? .5 : .3 + .4 * static_cast<double>(i) / static_cast<double>(piece.voices.size() - 1);
    for (size_t s = 0; s < length; ++s) {
      left[s] += dry[s] * static_cast<float>(std::sqrt(1 - place));
      right[s] += dry[s] * static_cast<float>(std::sqrt(place));
    }
  }
  const Sound wetLeft = room(left, 0);
  const Sound wetRight = room(right, 23);
  float peak = 1e-6F;
  for (size_t s = 0; s < length; ++s) {
    left[s] += wetLeft[s] * .25F;
    right[s] += wetRight[s] * .25F;
    peak = std::max({peak, std::abs(left[s]), std::abs(right[s])});
  }
  std::vector<int16_t> samples(length * 2);
  const float gain = .8F * 32767 / peak;
  const auto fade = static_cast<size_t>(.4 * kRate);
  for (size_t s = 0; s < length; ++s) {
    const float end = length - s < fade ? static_cast<float>(length - s) / static_cast<float>(fade) : 1.F;
    samples[s * 2] = static_cast<int16_t>(left[s] * gain * end);
    samples[s * 2 + 1] = static_cast<int16_t>(right[s] * gain * end);
  }
  return samples;
}
