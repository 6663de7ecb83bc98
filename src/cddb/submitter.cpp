// What is submitted is what CD Data shows, saved or not.
#include "cddb/submitter.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/text.h"
#include "cddb/plain_ascii.h"
#include "library/cd_data.h"
#include "library/list_text.h"
#include "library/placing.h"
#include "platform/ports/screen.h"

namespace orvanta {

namespace {

constexpr std::array kCategories = {"blues", "classical", "country", "data", "folk",      "jazz",
                                    "misc",  "newage",    "reggae",  "rock", "soundtrack"};

constexpr std::pair<const char*, const char*> kGenres[] = {
    {"rock", "rock"},
    {"rock & roll", "rock"},
    {"punk rock", "rock"},
    {"hard rock", "rock"},
    {"soft rock", "rock"},
    {"classic rock", "rock"},
    {"alternative rock", "rock"},
    {"popular", "rock"},
    {"soul", "rock"},
    {"rap", "rock"},
    {"blues", "blues"},
    {"classical", "classical"},
    {"data", "data"},
    {"folk", "folk"},
    {"reggae", "reggae"},
    {"new age", "newage"},
    {"newage", "newage"},
    {"country", "country"},
    {"jazz", "jazz"},
    {"miscellaneous", "misc"},
    {"misc", "misc"},
    {"movie soundtrack", "soundtrack"},
    {"soundtrack", "soundtrack"},
};

/// The text of a row of lyrics, behind its number.
std::string rowText(const std::string& row) { return row.substr(std::min(row.size(), row.find('\t') + 1)); }

/// Some forty characters around the first that plain letters do not have.
std::string changedPart(std::string_view text) {
  constexpr size_t kBefore = 15;
  constexpr size_t kSample = 40;
  size_t same = 0;
  while (same < characterCount(text) && plainAscii(firstCharacters(text, same + 1)) == firstCharacters(text, same + 1)) ++same;
  if (same > kBefore) text.remove_prefix(firstCharacters(text, same - kBefore).size());
  return std::string(firstCharacters(text, kSample));
}

}  // namespace

std::string categoryOf(const std::string& genre) {
  const std::string_view text = trim(genre);
  for (const auto& [known, category] : kGenres) {
    if (equalsNoCase(text, known)) return category;
  }
  return endsWithNoCase(text, "rock") ? "rock" : "";
}

Submitter::Submitter(const CddbPorts& ports, CdData& cdData, CddbWindow& window, MailWindow& mail, acdtabs& editor, cddbcatg& form,
                     const SharedState& state)
    : ports_(ports), cdData_(cdData), window_(window), mail_(mail), editor_(editor), form_(form), state_(state) {
  form.setEvents(this);
}

void Submitter::open() {
  window_.giveUpDiscId();
  editor_.Label25.visible = false;
  if (mail().smtpServer.empty()) {
    editor_.Label25.caption = "Not sent. Enter your SMTP server in the Setup tab of the CDDB's window first.";
    editor_.Label25.visible = true;
    ports_.screen.setPointer(Pointer::Normal);
    return;
  }
  form_.show(ports_.desktop);
}

// ---- the category

void Submitter::load() {
  editor_.enabled = false;
  ports_.screen.setPointer(Pointer::Normal);
  const forms::Place place = amidst(placeOf(form_), placeOf(editor_), {0, 0, ports_.screen.widthTwips(), ports_.screen.heightTwips()});
  form_.left = place.left;
  form_.top = place.top;
  form_.disc.caption = editor_.Text2.caption.get() + " - " + editor_.Text4.caption.get();
  showPlainLetters();
  submitCategory_.clear();
  form_.Command1.enabled = false;
  form_.catfind.clear();
  for (const char* category : kCategories) form_.catfind.add(category);
  const auto guessed = std::find(kCategories.begin(), kCategories.end(), categoryOf(editor_.cat.caption));
  if (guessed != kCategories.end()) form_.catfind.setListIndex(static_cast<int>(guessed - kCategories.begin()));
  form_.setFocus(form_.catfind);
}

void Submitter::unload() { editor_.enabled = true; }

/// Told once, before anything is sent: servers take no byte beyond ASCII.
void Submitter::showPlainLetters() {
  const Submission disc = submission("");
  std::vector<std::string> texts{disc.artist, disc.title, disc.notes, disc.label, disc.composer};
  for (const auto* more : {&disc.titles, &disc.texts}) texts.insert(texts.end(), more->begin(), more->end());
  const auto changed = [](const std::string& text) { return plainAscii(withoutControls(text)) != withoutControls(text); };
  const auto first = std::find_if(texts.begin(), texts.end(), changed);
  form_.plain.visible = first != texts.end();
  if (first == texts.end()) return;
  const std::string sample = changedPart(trim(withoutControls(*first)));
  form_.plain.caption =
      "The CDDB takes plain letters only. What has none is replaced: \"" + sample + "\" is sent as \"" + plainAscii(sample) + "\".";
}

void Submitter::click(forms::Control& control) {
  if (&control != &form_.catfind) return;
  submitCategory_ = form_.catfind.row(form_.catfind.listIndex());
  form_.Command1.enabled = !submitCategory_.empty();
}

void Submitter::doubleClick(forms::Control* control) {
  if (control == &form_.catfind) Command1_Click();
}

void Submitter::mouseUp(forms::Control* control, const forms::Mouse& mouse) {
  if (mouse.button != forms::MouseButton::Left || !mouse.over) return;
  if (control == &form_.Command1) Command1_Click();
  if (control == &form_.Command3) Command3_Click();
}

bool Submitter::keyDown(const forms::KeyPress& key) {
  if (key.code == forms::key::kEscape) {
    Command3_Click();
  } else if (key.code == forms::key::kEnter && form_.activeControl() == &form_.catfind) {
    Command1_Click();
  } else {
    return false;
  }
  return true;
}

void Submitter::Command1_Click() {
  if (submitCategory_.empty()) return;
  form_.unload();
  // From here on CD Data may be closed: what was to be submitted is.
  const DiscState& disc = cdData_.disc();
  submission_ = submission("");
  frames_ = tocFrames({disc.trackCount, disc.trackLengths, disc.trackFrames});
  editor_.Label25.caption = "Submitting...";
  editor_.Label25.visible = true;
  editor_.Label25.refresh();
  window_.checkDiscId(*this);
}

void Submitter::Command3_Click() { form_.unload(); }

// ---- the record

void Submitter::discIdArrived(const std::string& discId) {
  submission_.discId = discId;
  const auto record = writeRecord(submission_, frames_);
  if (!record) {
    editor_.Label25.visible = false;
    editor_.Label25.refresh();
    ports_.screen.setPointer(Pointer::Normal);
    ports_.dialogs.message(BoxStyle::Information, "Orvanta", "Unable to submit entry at this time - please try again later!");
    return;
  }
  editor_.Label25.caption = "Sending Email...";
  editor_.Label25.refresh();
  Mail mail = this->mail();
  mail.submitCategory = submitCategory_;
  mail.submitDiscId = discId;
  mail.submitText = *record;
  mail_.send(mail);
  editor_.Label25.visible = false;
  editor_.Label25.refresh();
}

Submission Submitter::submission(const std::string& discId) const {
  const DiscState& disc = cdData_.disc();
  Submission out{
      discId, editor_.Text2.caption, editor_.Text4.caption, editor_.Text3.caption, editor_.Text6.caption, editor_.Text7.caption, {}, {}};
  for (int track = 1; track <= listedTracks(disc); ++track) {
    const std::string& title = editor_.List1.row(track - 1);
    const std::string& lyrics = editor_.List2.row(track - 1);
    out.titles.push_back(title.empty() ? disc.trackTitles[static_cast<size_t>(track)] : rowTitle(title));
    out.texts.push_back(lyrics.empty() ? lyricsOf(disc, track) : rowText(lyrics));
  }
  return out;
}

/// To whom and from whom, as the Setup tab has it by now.
Mail Submitter::mail() const {
  const CddbSettings settings = storedCddbSettings(ports_.files, state_.settings.appDir);
  Mail mail;
  mail.smtpServer = trim(settings.smtpServer);
  mail.smtpPort = settings.smtpPort;
  mail.emailUser = settings.emailUser;
  mail.emailDomain = settings.emailDomain;
  mail.submitAddress = settings.submissionsTo();
  return mail;
}

}  // namespace orvanta
