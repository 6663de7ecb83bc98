// The page's lines, as they have always been: the unclosed bold, the rows without an opening tag and the
// widths that differ between head and rows are part of it, since pages of all ages lie side by side.
#include "library/html_export.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/text.h"
#include "library/disc_facts.h"
#include "library/list_text.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/files.h"
#include "state/data_folder.h"
#include "state/not_written.h"

namespace orvanta {

namespace {

constexpr const char* kEnd = "\r\n";
constexpr const char* kHome = "https://orvanta.example/";
constexpr const char* kMirror = "https://mirror.orvanta.example/";
constexpr const char* kMail = "support@orvanta.example";

/// The page is in the family's code page; what that lacks goes out by number.
std::string encoded(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    const std::string_view one = firstCharacters(text, 1);
    text.remove_prefix(one.size());
    if (fitsWindows1252(one)) {
      bytes += toWindows1252(one);
      continue;
    }
    uint32_t code = static_cast<unsigned char>(one[0]) & (one.size() == 2 ? 0x1FU : one.size() == 3 ? 0x0FU : 0x07U);
    for (const char c : one.substr(1)) code = code << 6U | (static_cast<unsigned char>(c) & 0x3FU);
    bytes += "&#" + std::to_string(code) + ";";
  }
  return bytes;
}

/// As long as file systems take it beside a suffix; no character is cut in two.
std::string fileStem(std::string name) {
  constexpr size_t kMost = 200;  ///< bytes
  std::replace(name.begin(), name.end(), '/', '-');
  if (name.size() <= kMost) return name;
  size_t end = kMost;
  while (end > 0 && (static_cast<unsigned char>(name[end]) & 0xC0U) == 0x80U) --end;
  return name.substr(0, end);
}

std::string cell(const char* width, const std::string& text) {
  return "   <td width=\"" + std::string(width) + "\">" + text + "</td>" + kEnd;
}

std::string openTable() { return std::string(R"(<table border="1"width="80%">)") + kEnd + " <tr>" + kEnd; }

std::string closeTable() { return std::string("</table>") + kEnd + "<p>&nbsp;</p>" + kEnd; }

std::string endRow() { return std::string("</tr>") + kEnd; }

}  // namespace

void HtmlExport::run(const DiscState& disc) {
  const std::string name = fileStem(form_.Text2.caption.get() + " - " + form_.Text4.caption.get()) + ".htm";
  const auto path =
      dialogs_.askSaveFile({"Save Orvanta CD Data As...", DataFolder(files_, settings_.appDir).discs(), name, "HTML File (*.htm)|*.htm"});
  if (!path || path->empty()) return;
  if (!files_.writeNamed(*path, encoded(page(disc)))) tellNotWritten(dialogs_, files_, *path);
}

std::string HtmlExport::page(const DiscState& disc) const {
  std::string text = std::string("<HTML><HEAD><TITLE>Orvanta CD Data Page</TITLE></HEAD>") + kEnd;
  text += std::string(R"(<body background=""><center><h2>)") + kEnd;
  text += std::string(" Orvanta CD Data</h2>") + kEnd;
  text += "<p><b>" + form_.Text2.caption.get() + " - " + form_.Text4.caption.get() + "</p>" + kEnd;
  text += facts(disc) + tracks(disc) + lyrics();
  text += std::string("</TABLE><hr>") + kEnd;
  text += "<a href=\"" + std::string(kHome) + "\">Orvanta Home Page</a><br>" + kEnd;
  text += "<a href=\"" + std::string(kMirror) + "\">Orvanta Mirror Site</a><br>" + kEnd;
  text += "<a href=\"mailto:" + std::string(kMail) + "\">Email Orvanta Technical Support</a><br>" + kEnd;
  return text + "</html>";
}

std::string HtmlExport::facts(const DiscState& disc) const {
  std::string text = openTable();
  for (const DiscFact& row : discFacts(form_, disc)) {
    if (!row.always && trim(row.value).empty()) continue;
    const bool link = row.caption == "ARTIST WEB SITE:";
    text += cell("44%", row.caption);
    text += cell("56%", link ? "<a href=\"" + row.value + "\">" + row.value + "</a><br>" : row.value);
    text += endRow();
  }
  return text + closeTable();
}

std::string HtmlExport::tracks(const DiscState& disc) const {
  std::string text = openTable();
  text += cell("10%", "TRACK:") + cell("50%", "DESCRIPTION:") + cell("40%", "TIME:") + endRow();
  for (int track = 1; track <= listedTracks(disc); ++track) {
    text += cell("10%", std::to_string(track)) + cell("70%", rowTitle(form_.List1.row(track - 1))) +
            cell("20%", disc.trackLengths[static_cast<size_t>(track)]) + endRow();
  }
  return text + closeTable();
}

std::string HtmlExport::lyrics() const {
  std::string text;
  for (int row = 0; row < form_.List2.count(); ++row) {
    const std::string words = lyricsOfRow(form_.List2, row);
    if (words.empty()) continue;
    if (text.empty()) text = openTable() + cell("10%", "TRACK:") + cell("90%", "LYRICS / INFORMATION:") + endRow();
    text += cell("10%", std::to_string(row + 1)) + cell("70%", words) + endRow();
  }
  return text.empty() ? text : text + closeTable();
}

}  // namespace orvanta
