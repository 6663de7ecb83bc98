// Names are compared with every letter taken apart into its base and its marks.
#include "platform/disc/same_name.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>

#include "base/text.h"

namespace orvanta {

namespace {

/// Letters that carry one mark more than another letter: the letter, then the one without the mark.
struct Marked {
  char32_t mark;
  std::u32string_view pairs;
};

// clang-format off
constexpr Marked kMarked[] = {
    {0x0300, U"ÀAÈEÌIÒOÙUàaèeìiòoùuǛÜǜüǸNǹnЀЕЍИѐеѝиḔĒḕēṐŌṑōẀWẁwẦÂầâẰĂằăỀÊềêỒÔồôỜƠờơỪƯừưỲYỳy"},
    {0x0301, U"ÁAÉEÍIÓOÚUÝYáaéeíióoúuýyĆCćcĹLĺlŃNńnŔRŕrŚSśsŹZźzǗÜǘüǴGǵgǺÅǻåǼÆǽæǾØǿø΅¨ΆΑΈΕΉΗΊΙΌΟΎΥΏΩΐϊάαέεήηίιΰϋόούυώωϓϒЃГЌКѓг"
     U"ќкḈÇḉçḖĒḗēḮÏḯïḰKḱkḾMḿmṌÕṍõṒŌṓōṔPṕpṸŨṹũẂWẃwẤÂấâẮĂắăẾÊếêỐÔốôỚƠớơỨƯứư"},
    {0x0302, U"ÂAÊEÎIÔOÛUâaêeîiôoûuĈCĉcĜGĝgĤHĥhĴJĵjŜSŝsŴWŵwŶYŷyẐZẑzẬẠậạỆẸệẹỘỌộọ"},
    {0x0303, U"ÃAÑNÕOãañnõoĨIĩiŨUũuṼVṽvẪÂẫâẴĂẵăẼEẽeỄÊễêỖÔỗôỠƠỡơỮƯữưỸYỹy"},
    {0x0304, U"ĀAāaĒEēeĪIīiŌOōoŪUūuǕÜǖüǞÄǟäǠȦǡȧǢÆǣæǬǪǭǫȪÖȫöȬÕȭõȰȮȱȯȲYȳyӢИӣиӮУӯуḠGḡgḸḶḹḷṜṚṝṛ"},
    {0x0306, U"ĂAăaĔEĕeĞGğgĬIĭiŎOŏoŬUŭuЎУЙИйиўуӁЖӂжӐАӑаӖЕӗеḜȨḝȩẶẠặạ"},
    {0x0307, U"ĊCċcĖEėeĠGġgİIŻZżzȦAȧaȮOȯoḂBḃbḊDḋdḞFḟfḢHḣhṀMṁmṄNṅnṖPṗpṘRṙrṠSṡsṤŚṥśṦŠṧšṨṢṩṣṪTṫtẆWẇwẊXẋxẎYẏyẛſ"},
    {0x0308, U"ÄAËEÏIÖOÜUäaëeïiöoüuÿyŸYΪΙΫΥϊιϋυϔϒЁЕЇІёеїіӒАӓаӚӘӛәӜЖӝжӞЗӟзӤИӥиӦОӧоӪӨӫөӬЭӭэӰУӱуӴЧӵчӸЫӹыḦHḧhṎÕṏõṺŪṻūẄWẅwẌXẍxẗt"},
    {0x0309, U"ẢAảaẨÂẩâẲĂẳăẺEẻeỂÊểêỈIỉiỎOỏoỔÔổôỞƠởơỦUủuỬƯửưỶYỷy"},
    {0x030A, U"ÅAåaŮUůuẘwẙy"},
    {0x030B, U"ŐOőoŰUűuӲУӳу"},
    {0x030C, U"ČCčcĎDďdĚEěeĽLľlŇNňnŘRřrŠSšsŤTťtŽZžzǍAǎaǏIǐiǑOǒoǓUǔuǙÜǚüǦGǧgǨKǩkǮƷǯʒǰjȞHȟh"},
    {0x030F, U"ȀAȁaȄEȅeȈIȉiȌOȍoȐRȑrȔUȕuѶѴѷѵ"},
    {0x0311, U"ȂAȃaȆEȇeȊIȋiȎOȏoȒRȓrȖUȗu"},
    {0x031B, U"ƠOơoƯUưu"},
    {0x0323, U"ḄBḅbḌDḍdḤHḥhḲKḳkḶLḷlṂMṃmṆNṇnṚRṛrṢSṣsṬTṭtṾVṿvẈWẉwẒZẓzẠAạaẸEẹeỊIịiỌOọoỢƠợơỤUụuỰƯựưỴYỵy"},
    {0x0324, U"ṲUṳu"},
    {0x0325, U"ḀAḁa"},
    {0x0326, U"ȘSșsȚTțt"},
    {0x0327, U"ÇCçcĢGģgĶKķkĻLļlŅNņnŖRŗrŞSşsŢTţtȨEȩeḐDḑdḨHḩh"},
    {0x0328, U"ĄAąaĘEęeĮIįiŲUųuǪOǫo"},
    {0x032D, U"ḒDḓdḘEḙeḼLḽlṊNṋnṰTṱtṶUṷu"},
    {0x032E, U"ḪHḫh"},
    {0x0330, U"ḚEḛeḬIḭiṴUṵu"},
    {0x0331, U"ḆBḇbḎDḏdḴKḵkḺLḻlṈNṉnṞRṟrṮTṯtẔZẕzẖh"},
    {0x3099, U"がかぎきぐくげけごこざさじしずすぜせぞそだたぢちづつでてどとばはびひぶふべへぼほゔうゞゝガカギキグクゲケゴコザサジシズスゼセゾソダタヂチヅツデテドトバハビヒブフベヘボホヴウヷワヸヰヹヱヺヲヾヽ"},
    {0x309A, U"ぱはぴひぷふぺへぽほパハピヒプフペヘポホ"},
};
// clang-format on

using Parts = std::unordered_map<char32_t, std::pair<char32_t, char32_t>>;

const Parts& parts() {
  static const Parts kParts = [] {
    Parts all;
    for (const Marked& row : kMarked) {
      for (size_t i = 0; i + 1 < row.pairs.size(); i += 2) all[row.pairs[i]] = {row.pairs[i + 1], row.mark};
    }
    return all;
  }();
  return kParts;
}

/// Syllables of Hangul stand in a row that can be counted out: 19 first letters, 21 vowels, 28 ends.
bool takeApartHangul(char32_t c, std::u32string& out) {
  constexpr char32_t kFirst = 0xAC00;
  constexpr char32_t kCount = 19 * 21 * 28;
  if (c < kFirst || c >= kFirst + kCount) return false;
  const char32_t place = c - kFirst;
  out.push_back(0x1100 + place / (21 * 28));
  out.push_back(0x1161 + place / 28 % 21);
  if (place % 28 != 0) out.push_back(0x11A7 + place % 28);
  return true;
}

void takeApart(char32_t c, std::u32string& out) {
  const auto found = parts().find(c);
  if (found != parts().end()) {
    takeApart(found->second.first, out);
    out += found->second.second;
  } else if (!takeApartHangul(c, out)) {
    out += c;
  }
}

/// One character off the front of UTF-8 text; a byte that begins none stands for itself.
char32_t takeCharacter(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const size_t length = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  char32_t c = length == 1 ? lead : lead & (0xFFU >> (length + 1));
  for (size_t i = 1; i < length && i < text.size(); ++i) c = c << 6U | (static_cast<unsigned char>(text[i]) & 0x3FU);
  text.remove_prefix(length < text.size() ? length : text.size());
  return c;
}

std::u32string apart(std::string_view name) {
  std::u32string out;
  while (!name.empty()) takeApart(takeCharacter(name), out);
  // Only now, since the base of a small accented letter is a small letter.
  for (char32_t& c : out) c = c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c;
  return out;
}

/// One without a mark, which no part of it could lose.
bool isPlain(std::string_view name) {
  return std::all_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

bool sameName(std::string_view a, std::string_view b) {
  if (equalsNoCase(a, b)) return true;
  return !isPlain(a) && !isPlain(b) && apart(a) == apart(b);
}

}  // namespace orvanta
