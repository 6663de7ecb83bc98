// Order and captions of the rows are those that readers of older pages know.
#include "library/disc_facts.h"

#include "base/text.h"
#include "library/list_text.h"

namespace orvanta {

std::vector<DiscFact> discFacts(const acdtabs& form, const DiscState& disc) {
  const auto own = [](const forms::Label& label) { return upper(label.caption.get()); };
  return {{"ARTIST:", form.Text2.caption, true},
          {"TITLE:", form.Text4.caption, true},
          {"GENRE:", form.cat.caption},
          {"DATE / TIME ENTERED:", form.Label23.caption, true},
          {"MEDIA TYPE:", form.mediatype.caption, true},
          {"ORV CATALOG #:", disc.discKey, true},
          {"CD CHANGER ID:", form.Text24.caption},
          {"LABEL:", form.Text6.caption, false, false},
          {"CATALOG #:", form.catnum.caption, false, true, "LABEL / CATALOG #:"},
          {"YEAR RELEASED:", form.Text18.caption},
          {"COMPOSER:", form.Text7.caption},
          {"ARTIST WEB SITE:", form.Text10.caption},
          {"ARTIST INFO:", form.Text23.caption},
          {"STORAGE LOCATION:", form.stloc.caption},
          {"ALBUM CREDITS:", form.Text16.caption},
          {"ALBUM INFO:", form.Text22.caption},
          {"RECORDING INFO:", form.Text15.caption},
          {"RECORDING VENUE:", form.recdtype.caption},
          {"MUSIC RATING:", form.mrat.caption},
          {"RECORDING RATING:", form.rrat.caption},
          {"MEDIA CONDITION RATING:", form.mcrat.caption},
          {"PACKAGING CONDITION RATING:", form.pcrat.caption},
          {"CONTENTS RATING:", form.crat.caption},
          {"RECORDING CODE:", form.reccode.caption, false, false},
          {own(form.Label37), form.Text13.caption},
          {own(form.Label51), form.Text11.caption},
          {"UPC #:", form.upcnum.caption},
          {"COST:", form.cdcost.caption},
          {"LINER NOTES:", form.Text3.caption, false, false},
          {"TOTAL TRACKS:", form.Label12.caption, false, false},
          {"TOTAL TIME:", form.Label13.caption, false, false}};
}

std::string lyricsOfRow(const forms::ListBox& list, int row) {
  constexpr int kOneDigit = 8;
  const std::string& text = list.row(row);
  const size_t from = row > kOneDigit ? 4 : 3;
  return std::string(trim(text.size() > from ? std::string_view(text).substr(from) : std::string_view()));
}

}  // namespace orvanta
