// `addcats.dat` is meant to be edited by hand: one quoted genre a line, not escaped. `userdef.dat`: two
// quoted, escaped lines.
#include "library/genres.h"

#include <algorithm>

#include "base/text.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/files.h"
#include "records/escape.h"
#include "state/not_written.h"

namespace orvanta {

namespace {

constexpr size_t kMostOwn = 208;
constexpr size_t kMostGenres = 300;

// clang-format off: one long list.
constexpr const char* kGenres[] = {
    "African music",
    "Aleatory",
    "Alternative Rock",
    "American music",
    "American Indian music",
    "Austrian music",
    "Arabian music",
    "Ballet",
    "Baroque",
    "Big Band",
    "Bluegrass",
    "Blues",
    "Broadway Musicals",
    "Calyso",
    "Children's music",
    "Chinese music",
    "Choral",
    "Chorus",
    "Christmas music",
    "Classic Rock",
    "Classical",
    "Comedy",
    "Computer",
    "Consort (Concert)",
    "Contemporary",
    "Country",
    "Czech music",
    "Dance",
    "Disco",
    "Dixieland",
    "Easy Listening",
    "Electronic",
    "English music",
    "Ensemble",
    "Favorites",
    "Folk",
    "French music",
    "Gospel",
    "General",
    "German music",
    "Greek music",
    "Guitar",
    "Hard Rock",
    "Holiday",
    "Hungarian music",
    "Hymn",
    "Instrumental",
    "Indian music",
    "Italian music",
    "Japanese music",
    "Jazz",
    "Jewish music",
    "Latin",
    "Medieval",
    "Miscellaneous",
    "Movie Soundtrack",
    "Multimedia",
    "New Age",
    "Oldies",
    "Opera",
    "Orchestral",
    "Piano",
    "Polka",
    "Popular",
    "Punk Rock",
    "Rap",
    "Ragtime",
    "Reggae",
    "Renaissance",
    "Rococo",
    "Rock & Roll",
    "Rhythm & Blues",
    "Russian music",
    "Sampler",
    "Scandinavian music",
    "Serial",
    "Soft Rock",
    "Soul",
    "Sound Effects",
    "Spanish music",
    "Spoken Word",
    "Square Dance",
    "Steel Band",
    "String Quartet",
    "Swing",
    "Symphonic",
    "Test",
    "Top 40",
    "United Kingdom music",
    "Vocalists, Female",
    "Vocalists, Male",
};
// clang-format on

/// As the list sorts: letters without their case, the rest by code.
bool before(const std::string& a, const std::string& b) { return upper(a) < upper(b); }

}  // namespace

std::vector<std::string> Genres::ownGenres() const {
  std::vector<std::string> own;
  const FieldBytes fields = data_.read(DataFile::Genres).value_or(FieldBytes{});
  FieldReader reader = fields.reader();
  while (const auto field = reader.next()) {
    const std::string genre(trim(*field));
    if (!genre.empty()) own.push_back(genre);
  }
  return own;
}

void Genres::fillGenres(forms::Combo& combo) const {
  std::vector<std::string> all(std::begin(kGenres), std::end(kGenres));
  for (const std::string& own : ownGenres()) {
    if (all.size() < kMostGenres) all.push_back(own);
  }
  // Names that are alike stay in the order of their numbers.
  std::stable_sort(all.begin(), all.end(), before);
  combo.setItems(all);
}

std::optional<std::string> Genres::addGenre() {
  const auto answer =
      dialogs_.askText("Orvanta - Add New Music Genre",
                       "Please enter the new Music Genre Category below.\n\nNote: to delete user defined categories, edit the "
                       "'addcats.dat' file in your Orvanta directory using Windows Notepad or Wordpad.",
                       "");
  if (!answer || trim(*answer).empty()) return std::nullopt;
  const std::string genre(trim(*answer));
  std::vector<std::string> own = ownGenres();
  // A list that has grown too long starts anew, as it always has.
  if (own.size() >= kMostOwn) {
    data_.remove(DataFile::Genres);
    return genre;
  }
  own.push_back(genre);
  FieldWriter out;
  for (const std::string& entry : own) out.text(entry);
  const std::string file = data_.path(DataFile::Genres);
  // A list that cannot be read is not written over.
  const bool readable = !files_.exists(file) || files_.read(file);
  if (!readable || !data_.save(DataFile::Genres, out)) tellNotWritten(dialogs_, files_, file);
  return genre;
}

void Genres::readUserCaptions() {
  const auto fields = data_.read(DataFile::Captions);
  if (!fields) return;
  FieldReader reader = fields->reader();
  for (std::string& caption : state_.library.userCaptions) {
    const auto field = reader.next();
    if (field && !field->empty()) caption = unescapeField(*field);
  }
}

void Genres::askUserCaptions() {
  std::array<std::string, 2> answers;
  for (size_t i = 0; i < 2; ++i) {
    const std::string number = std::to_string(i + 1);
    const auto answer = dialogs_.askText("User Defined " + number + " Description", "Enter User Defined " + number + " Description",
                                         state_.library.userCaptions[i]);
    if (!answer) return;
    answers[i] = trim(withoutControls(*answer));
  }
  if (answers[0].empty() && answers[1].empty()) {
    if (!data_.remove(DataFile::Captions)) tellNotWritten(dialogs_, files_, data_.path(DataFile::Captions));
    state_.library.userCaptions = {};
    return;
  }
  FieldWriter out;
  for (size_t i = 0; i < 2; ++i) {
    std::string& caption = answers[i];
    if (caption.empty() || caption.back() != ':') caption += ':';
    caption = escapeField(caption);
    out.text(caption);
    state_.library.userCaptions[i] = unescapeField(caption);
  }
  if (!data_.save(DataFile::Captions, out)) tellNotWritten(dialogs_, files_, data_.path(DataFile::Captions));
}

}  // namespace orvanta
