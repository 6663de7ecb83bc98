// What is known of the disc, as rows of list boxes.
#pragma once

#include <string>

#include "platform/forms/control.h"
#include "state/shared_state.h"

namespace orvanta {

/// The disc's tracks that lists show: at most 100.
int listedTracks(const DiscState& disc);

/// Lyrics or notes of a track, 1 to 100, as the record holds them.
std::string lyricsOf(const DiscState& disc, int track);
void setLyrics(DiscState& disc, int track, const std::string& text);

/// An extended field as the user wrote it: after a save the table holds it escaped.
std::string extraField(const DiscState& disc, size_t index);

/// Number, ":", TAB, title, TAB, time.
std::string trackRow(const DiscState& disc, int track, const std::string& title);
/// Number, ":", TAB, the text on one line.
std::string lyricsRow(int track, const std::string& lyrics);
/// The text between the first and the second TAB of a row.
std::string rowTitle(const std::string& row);

// All three do nothing without tracks.
void fillTrackList(forms::ListBox& list, const DiscState& disc);
/// Also takes the lyrics into the editor's working copy.
void fillLyricsList(forms::ListBox& list, const DiscState& disc, LibraryState& library);
/// Everything there is. Liner notes whose lines are too long lose their breaks, in memory too.
void fillCdInfoList(forms::ListBox& list, DiscState& disc, const LibraryState& library);

}  // namespace orvanta
