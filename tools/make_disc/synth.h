// From notes to sound: a few instruments and a room.
#pragma once

#include <cstdint>
#include <vector>

#include "score.h"

/// The piece as interleaved 16-bit samples at 44,100, its last notes and the room dying away; a
/// whole number of CD frames.
std::vector<int16_t> synthesise(const Piece& piece);
