// One walk over the fields, for writing and for reading.
#include "records/recorder_texts.h"

#include "base/text.h"

namespace orvanta {

namespace {

constexpr size_t kNotes = 30;  ///< characters of the liner notes that a recorder shows

template <class Texts, class Text, class Number>
void walk(Texts& texts, const Text& text, const Number& number) {
  text(texts.artist);
  text(texts.title);
  number(texts.trackCount);
  for (size_t track = 1; track < texts.trackTitles.size(); ++track) text(texts.trackTitles[track]);
  text(texts.notes);
  text(texts.genre);
  text(texts.year);
}

}  // namespace

RecorderTexts recorderTexts(const DiscTexts& disc, int16_t trackCount) {
  const std::string notes(trim(firstCharacters(disc.linerNotes, kNotes)));
  return {.artist = disc.discArtist,
          .title = disc.discTitle,
          .trackCount = trackCount,
          .trackTitles = disc.trackTitles,
          .notes = notes.empty() ? disc.discInfo[kLabel] : notes,
          .genre = disc.discInfo[kGenre],
          .year = disc.extraInfo[kYear]};
}

FieldWriter writtenFields(const RecorderTexts& texts) {
  FieldWriter out;
  walk(
      texts, [&](const std::string& text) { out.text(text); }, [&](int16_t number) { out.number(number); });
  return out;
}

RecorderTexts readRecorderTexts(FieldReader reader) {
  RecorderTexts texts;
  walk(
      texts, [&](std::string& text) { text = reader.next().value_or(""); },
      [&](int16_t& number) {
        constexpr double kMostTracks = 99;
        const double value = leadingNumber(reader.next().value_or(""));
        number = value >= 0 && value <= kMostTracks ? static_cast<int16_t>(value) : int16_t{0};
      });
  return texts;
}

}  // namespace orvanta
