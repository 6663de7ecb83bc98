// Moving between the layouts. What a layout does not show is moved out of the window where the deck
// has always done so, and hidden elsewhere.
#include "faceplate/layout.h"

#include "faceplate/drawer.h"
#include "platform/ports/screen.h"
#include "windows/cdform_layouts.h"

namespace orvanta {

namespace {

constexpr int kBeyondScreen = 100;    ///< past the screen's right edge
constexpr int kIsSmall = 6000;        ///< a window narrower than this is the small one
constexpr int kIsLarge = 9000;        ///< a wider one the large one
constexpr int kMarkWidthSmall = 150;  ///< of the record key's mask, so that it stands in the middle of the key
constexpr int kTitleLeft = 110;
constexpr int kTitleTop = 80;

}  // namespace

void Layout::apply() {
  sizeLarge();
  border();
  icntlsf();
  layTitles();
  if (state_.settings.expandedDisplay == kOn) setexpdsp();
  if (state_.settings.smallFaceplate == kOn) {
    fpsm1();
  } else {
    place_.posfp1();
  }
}

bool Layout::drawerOpen() const { return form_.Panel3D7.top == kOpenTrayTop; }

void Layout::resize(int width, int height) {
  form_.width = width;
  form_.height = height;
  form_.Image8.move(0, 0);
  form_.Image8.width = width;
  form_.Image8.height = height;
}

void Layout::sizeLarge() {
  const layouts::Size plain = coarse() ? layouts::kLargeCoarse : layouts::kLargeFine;
  const layouts::Size size = !coarse() && state_.settings.faceplateBorder == 1 ? layouts::kLargeFineBorder : plain;
  resize(size.width, size.height);
  form_.Image8.width = plain.width;
  form_.Image8.height = plain.height;
}

void Layout::border() {
  const bool shown = state_.settings.faceplateBorder == 1 && form_.width > kIsSmall;
  for (auto* line : {&form_.Line2, &form_.Line3, &form_.Line4, &form_.Line5}) line->visible = shown;
}

void Layout::placeDisplay(Display display) {
  const auto value = [display](const layouts::DisplayRow& row) {
    return display == Display::Expanded ? row.expanded : display == Display::Normal ? row.normal : row.small;
  };
  for (const auto& row : layouts::displayLefts()) form_.find(row.name)->left = value(row);
  const bool wide = display != Display::Normal;
  form_.Panel3D1.width = wide ? layouts::kPaneWide : layouts::kPaneNarrow;
  form_.Panel3D2.left = wide ? screen_.widthTwips() + kBeyondScreen : form_.designPlace(form_.Panel3D2).left;
  form_.Line1.visible = form_.Line8.visible = wide;
  const auto& online = coarse() ? layouts::kOnlineCoarse : layouts::kOnlineFine;
  form_.Image14.left = wide ? online.expanded : online.normal;
  layTitles();
}

void Layout::layTitles() {
  forms::Label& disc = form_.Label12;
  forms::Label& track = form_.Label13;
  const bool wide = state_.settings.expandedDisplay == kOn || state_.settings.smallFaceplate == kOn;
  if (coarse()) {
    const auto discPlace = form_.designPlace(disc);
    const auto trackPlace = form_.designPlace(track);
    disc.move(discPlace.left, discPlace.top);
    track.move(trackPlace.left, trackPlace.top);
    disc.height = discPlace.height;
    track.height = trackPlace.height;
    disc.wordWrap = track.wordWrap = true;
    disc.width = track.width = wide ? layouts::kTitlesWide : discPlace.width;
    return;
  }
  const forms::Font& font = disc.font;
  disc.width = track.width = wide ? layouts::kTitlesWide : layouts::kTitlesNarrow;
  if (screen_.textWidthTwips(disc.caption, font.family, font.points, font.bold) > layouts::kTitlesNarrow) {
    disc.left = kTitleLeft;
    disc.height = 440;
    track.top = disc.top + disc.height + 50;
    track.height = 384;
  } else {
    disc.height = form_.designPlace(disc).height;
    disc.top = kTitleTop;
    track.top = 340;
    track.height = 576;
  }
}

void Layout::setexpdsp() {
  if (state_.settings.smallFaceplate == kOn && form_.width < kIsSmall) return;
  placeDisplay(Display::Expanded);
  if (!drawerOpen()) return;
  for (auto* slice : {&form_.Panel3D7, &form_.Panel3D9, &form_.Panel3D10}) slice->visible = false;
}

void Layout::setnormdsp() {
  if (state_.settings.smallFaceplate == kOn && form_.width < kIsSmall) return;
  placeDisplay(Display::Normal);
  if (!drawerOpen()) return;
  for (auto* slice : {&form_.Panel3D7, &form_.Panel3D9, &form_.Panel3D10}) slice->visible = true;
}

void Layout::icntlsf() {
  for (size_t key = Previous; key <= Record; ++key) {
    for (auto* image : {&form_.icntla[key], &form_.icntlb[key], &form_.icntlc[key]}) {
      const forms::Place place = form_.designPlace(*image);
      image->move(place.left, place.top);
      image->width = place.width;
    }
  }
}

void Layout::showLargeParts(bool show) {
  for (auto* label : {&form_.Label18, &form_.Label19, &form_.Label20, &form_.Label25, &form_.Label17, &form_.Label24})
    label->visible = show;
  form_.SSPanel3.visible = form_.Image5.visible = show;
  form_.Shape6.visible = form_.Shape7.visible = show;
  for (auto& key : form_.Image10) key.visible = show;
  for (auto& key : form_.scntla) key.visible = show;
  form_.Image11.visible = show;
  form_.Image13.visible = !show;
}

void Layout::placeVolumePanel() {
  const bool sliders = state_.settings.soundMode > 0;
  const bool large = state_.settings.smallFaceplate != kOn;
  form_.SSPanel1.top = sliders && large ? form_.designPlace(form_.SSPanel1).top : layouts::kPanelAway;
  form_.Command3D16.visible = form_.Label27.visible = !sliders && large;
}

void Layout::fpsm1() {
  if (form_.width < kIsSmall) return;
  if (drawerOpen()) form_.Panel3D7.visible = form_.Panel3D9.visible = form_.Panel3D10.visible = false;
  placeDisplay(Display::Small);
  // An entry that is out of sight would go on taking the keys.
  form_.Text1.visible = false;
  form_.Text1.caption = "";
  form_.Image16[0].visible = form_.Label44.visible = true;
  if (state_.settings.lcdCustom != 1) form_.Line1.foreColor = form_.Line8.foreColor = colours::kBlack;
  showLargeParts(false);
  looks_.arrange();
  placeVolumePanel();
  for (const auto& row : layouts::smallSpots()) {
    const layouts::Spot& spot = coarse() ? row.coarse : row.fine;
    form_.find(row.name, row.index)->move(spot.left, spot.top);
  }
  if (coarse()) form_.icntlb[Record].width = kMarkWidthSmall;
  resize(layouts::kSmall.width, layouts::kSmall.height);
  border();
  place_.posfp1();
}

void Layout::fpLG1() {
  if (form_.width > kIsLarge) return;
  placeDisplay(state_.settings.expandedDisplay == kOn ? Display::Expanded : Display::Normal);
  placeVolumePanel();
  if (form_.Panel3D10.top == kOpenTrayLowerTop && state_.settings.expandedDisplay == kOff) {
    form_.Panel3D7.visible = form_.Panel3D9.visible = form_.Panel3D10.visible = true;
  }
  showLargeParts(true);
  looks_.arrange();
  for (const auto& row : layouts::smallSpots()) {
    forms::Control* control = form_.find(row.name, row.index);
    const forms::Place place = form_.designPlace(*control);
    control->move(place.left, place.top);
  }
  icntlsf();
  sizeLarge();
  border();
  place_.posfp1();
}

void Layout::Image11_Click() {
  state_.settings.smallFaceplate = kOn;
  fpsm1();
}

void Layout::Image13_Click() {
  state_.settings.smallFaceplate = kOff;
  fpLG1();
}

void Layout::Image20_MouseUp() {
  int16_t& expanded = state_.settings.expandedDisplay;
  expanded = expanded == kOn ? kOff : kOn;
  if (expanded == kOn) {
    setexpdsp();
  } else {
    setnormdsp();
  }
}

}  // namespace orvanta
