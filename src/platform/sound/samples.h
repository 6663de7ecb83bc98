// Sound is interleaved 16-bit stereo throughout, as a disc has it.
#pragma once

namespace orvanta {

constexpr int kSampleRate = 44100;  ///< sample pairs a second

}  // namespace orvanta
