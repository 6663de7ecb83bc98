// A score: pieces of voices of notes, as text.
//
//   disc "Title" "Performer"
//   piece "Title" 96                beats (quarters) a minute
//   voice bell 0.5                  instrument, loudness; starts at the piece's first beat
//   C5/4 E5 G5/2. r/4 A3+C4+E4/1    notes: name, octave, after "/" the length (sticky), "." dotted
//   ( ... )*3                       a passage three times; "|" and "#..." lines mean nothing
#pragma once

#include <string>
#include <vector>

struct Note {
  double beat = 0;  ///< from the start of the piece
  double beats = 1;
  double pitch = 0;  ///< semitones above A4, 440 Hz
};

struct Voice {
  std::string instrument;
  double loudness = 1;
  std::vector<Note> notes;
};

struct Piece {
  std::string title;
  double tempo = 100;
  std::vector<Voice> voices;
};

struct Score {
  std::string title;
  std::string performer;
  std::vector<Piece> pieces;
};

/// Throws std::runtime_error with the line for a score that cannot be read.
Score readScore(const std::string& path);
