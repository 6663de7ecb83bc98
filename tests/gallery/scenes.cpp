// Scenes: what is set before the start, and what is done after it.
#include "tests/gallery/scenes.h"

#include <cmath>
#include <filesystem>
#include <functional>

#include "strip/strip_layout.h"
#include "tests/gui/deck.h"
#include "windows/volcntl.h"

namespace orvanta::test {

namespace {

constexpr int kSecond = 75;

/// `tracks` of four minutes, the seventh 4:58 long.
Toc discOf(int tracks) {
  std::vector<int> starts;
  int at = 150;
  for (int track = 1; track <= tracks; ++track) {
    starts.push_back(at);
    at += (track == 7 ? 298 : 240) * kSecond;
  }
  return tocOf(starts, at);
}

struct Scene {
  const char* name;
  int twips = 15;
  std::function<void(Deck&)> before = [](Deck&) {};
  std::function<QImage(Deck&)> after;
};

void named(Deck& deck) {
  DiscState& disc = deck.core.state.disc;
  disc.discArtist = "The Winterlight Quartet";
  disc.discTitle = "Harbour Lights";
  disc.trackTitles[7] = "Slow Water, Late September";
  deck.core.form.Label12.caption = "The Winterlight Quartet - Harbour Lights";
}

void playSeventh(Deck& deck) {
  named(deck);
  deck.gate.enter([&] { deck.core.form.press(deck.core.form.Image17[6]); });
  deck.clock.advance(125300);
}

QImage playing(Deck& deck) {
  playSeventh(deck);
  return deck.picture();
}

QImage stopped(Deck& deck) {
  named(deck);
  return deck.picture();
}

/// The picture of a frame of the drawer's opening; the third is the open tray.
std::function<QImage(Deck&)> drawerAt(int frame) {
  return [frame](Deck& deck) {
    deck.gate.enter([&] { deck.core.form.press(deck.core.form.Panel3D2); });
    deck.clock.advance(frame * 110 + 5);
    return deck.picture();
  };
}

QImage extras(Deck& deck) {
  CDForm& form = deck.core.form;
  playSeventh(deck);
  deck.clock.advance(60000);
  deck.gate.enter([&] { form.press(form.icntla[Pause]); });
  form.Text1.visible = form.Image14.visible = form.Image12.visible = true;
  form.Image16[0].visible = form.Label44.visible = false;
  form.Text1.caption = "23";
  form.Label8.caption = "20";
  form.Label9.caption = "Totrem";
  form.Label10.caption = "-1:02:33";
  form.Label16.foreColor = form.Label30.foreColor = 0x00FFFF;
  for (auto& lamp : form.Label22) lamp.foreColor = 0x00FF00;
  // The pause key as it is while the finger is on it.
  form.icntla[Pause].move(form.icntla[Pause].left + 10, form.icntla[Pause].top + 10);
  form.Shape2.move(form.icntla[Pause].left + 54, form.icntla[Pause].top + 70);
  form.Shape2.visible = true;
  form.icntlc[Pause].move(form.icntlc[Pause].left + 10, form.icntlc[Pause].top + 10);
  return deck.picture();
}

QImage about(Deck& deck) {
  deck.facts.now = {"0.1.0", "Debian GNU/Linux 12 (bookworm)", "Qt 6.4.2 on X11", "PulseAudio",
                    "disc images in /home/ada/Music/Orvanta/The discs that I listen to on Sundays/tray"};
  deck.gate.enter([&] { deck.core.actions().run(Action::About); });
  return windowOf(deck.core.aboutForm)->grab().toImage();
}

using StripLook = std::function<void(VolCntl&)>;

void stripKey(VolCntl& strip, size_t key, bool lit) {
  strip.Image1[key].visible = false;
  (lit ? strip.Image2 : strip.Image4)[key].visible = true;
}

void stripPlays(VolCntl& strip) {
  stripKey(strip, Play, true);
  strip.vcntlstatusbar.floodPercent = 42;
  strip.Label3.caption = strip.Label8.caption = "7";
  strip.Label4.caption = strip.Label5.caption = "2:05";
  strip.Label12.caption = "The Winterlight Quartet - Harbour Lights";
  strip.Label13.caption = "Slow Water, Late September";
  for (size_t i = 0; i < strip.Label22.size(); ++i) {
    strip.Label22[i].visible = i < 14;
    strip.Label22[i].foreColor = i < 6 ? 0x004000 : 0x00FF00;
  }
}

void stripMuted(VolCntl& strip) {
  stripPlays(strip);
  strip.Image5.visible = false;
  strip.Image7.visible = true;
  strip.VbarbtmL.backColor = strip.VbarbtmR.backColor = colours::kRed;
}

/// Paused in an hour-long disc; with a finger on the eject key.
void stripPaused(VolCntl& strip) {
  stripMuted(strip);
  strip.Image2[Play].visible = false;
  strip.Image1[Play].visible = true;
  for (const size_t dead : {Previous, Next, Stop}) stripKey(strip, dead, false);
  stripKey(strip, Pause, true);
  strip.vcntlstatusbar.floodPercent = 66;
  strip.Label3.caption = strip.Label8.caption = "12";
  strip.Label4.caption = strip.Label5.caption = "-1:02:33";
  strip.Label4.font = forms::Font{forms::kLcdFont, 4.5, true};
  strip.Label5.font = forms::Font{forms::kLcdFont, 14.5, true};
  strip.Label9.caption = "Totrem";
  strip.Label21.caption = "PAUSE";
  strip.Label21.foreColor = 0x00FFFF;
  strip.Image9[0].visible = true;
  strip.Image9[1].visible = false;
  forms::Image& key = strip.Image1[5];
  strip.mouseDown(&key, {});
  strip.Shape7.move(key.left, key.top);
  strip.Shape7.visible = true;
  key.move(key.left + 10, key.top + 20);
}

StripLook stripInColours(Colour fore, Colour back) {
  return [=](VolCntl& strip) {
    stripPlays(strip);
    for (forms::Panel* pane : {&strip.SSPanel1, &strip.Panel3D1, &strip.Panel3D5}) {
      pane->bevelInner = 1;
      pane->foreColor = fore;
      pane->backColor = back;
    }
    for (forms::Control* control : strip.controls()) {
      if (control->kind() == forms::Kind::Label && control->art != "engraved" && control->art != "percent") control->foreColor = fore;
    }
    strip.Label21.foreColor = strip.Label30.foreColor = back;
    for (size_t i = 0; i < strip.Label22.size(); ++i) strip.Label22[i].foreColor = i >= 6 && i < 14 ? fore : back;
    strip.vcntlstatusbar.floodColor = strip.VbarbtmL.backColor = strip.VbarbtmR.backColor = fore;
    strip.vcntlstatusbar.backColor = back;
  };
}

void stripInPlainDigits(VolCntl& strip) {
  stripPlays(strip);
  strip.Label8.font = forms::Font{"Arial", 19, true};
  strip.Label5.font = forms::Font{"Arial", 12, true};
}

struct Border {
  bool is;
};
/// The strip by itself: its window as data, in a look of play.
std::function<QImage(Deck&)> strip(bool unfolded, Border border, const StripLook& look, int16_t soundMode = 3) {
  return [=](Deck& deck) {
    VolCntl form;
    form.smallFonts = deck.core.form.smallFonts;
    deck.core.state.settings.faceplateBorder = border.is ? kOn : kOff;
    deck.core.state.settings.soundMode = soundMode;
    form.load(deck.qtDesktop);
    StripLayout layout(form, deck.core.state);
    layout.apply();
    if (unfolded) layout.unfold();
    look(form);
    return windowOf(form)->grab().toImage();
  };
}

constexpr Border kBorder{true};
constexpr Border kBare{false};

std::function<void(Deck&)> display(Colour fore, Colour back, int16_t expanded) {
  return [=](Deck& deck) {
    deck.settings.lcdCustom = 1;
    deck.settings.lcdFore = fore;
    deck.settings.lcdBack = back;
    deck.settings.expandedDisplay = expanded;
  };
}

void small(Deck& deck) { deck.settings.smallFaceplate = 1; }
void expanded(Deck& deck) { deck.settings.expandedDisplay = 1; }

void ownColours(Deck& deck) {
  deck.settings.customColor = {0x404040, 0x3A4A6E, 0x2A3C60, 0x202A3C, 0x30B0FF, 0, 0, 0, 0, 0x60C8FF, 0x40A0FF};
  deck.settings.fonts[0] = {"DejaVu Serif", 9, 1, 0, 0, 0xB0D8FF};
  deck.settings.fonts[1] = {"DejaVu Serif", 8, 0, 1, 0, 0x80B8F0};
}

/// A picture of the user's own behind the deck: dark wood.
void ownPicture(Deck& deck) {
  const std::string path = (std::filesystem::temp_directory_path() / "orvanta-wood.png").string();
  QImage wood(640, 233, QImage::Format_RGB32);
  for (int y = 0; y < wood.height(); ++y) {
    for (int x = 0; x < wood.width(); ++x) {
      const double ring = std::sin(x * .012 + 9 * std::sin(y * .021 + std::sin(x * .004)));
      const int light = 70 + static_cast<int>(26 * ring);
      wood.setPixel(x, y, qRgb(light + 34, light, light - 26));
    }
  }
  wood.save(QString::fromStdString(path));
  deck.files.files[upper(path)] = "there";
  deck.settings.faceplateBitmap = path;
  deck.settings.faceplateBitmapOn = 1;
}

const std::vector<Scene>& scenes() {
  static const std::vector<Scene> kScenes = {
      {"large_stopped", 15, {}, stopped},
      {"large_playing", 15, {}, playing},
      {"large_expanded_playing", 15, expanded, playing},
      {"small_playing", 15, small, playing},
      {"sf0_large_playing", 12, {}, playing},
      {"sf0_small_playing", 12, small, playing},
      {"sf0_expanded_playing", 12, expanded, playing},
      {"drawer_frame1", 15, {}, drawerAt(1)},
      {"drawer_frame2", 15, {}, drawerAt(2)},
      {"drawer_open", 15, {}, drawerAt(3)},
      {"no_disc", 15, [](Deck& deck) { deck.player.insert({}, ""); },
       [](Deck& deck) {
         deck.clock.advance(5000);
         return deck.picture();
       }},
      {"muted",
       15,
       {},
       [](Deck& deck) {
         playSeventh(deck);
         deck.gate.enter([&] { deck.core.form.press(deck.core.form.Image2[1]); });
         return deck.picture();
       }},
      {"custom_lcd", 15, display(0x000000, 0x29CF95, 0), playing},
      {"custom_lcd_expanded", 15, display(0x4A2010, 0xE4C4A9, 1), playing},
      {"extras_paused_nosliders", 15,
       [](Deck& deck) {
         deck.settings.soundMode = 0;
         deck.player.insert(discOf(23));
       },
       extras},
      {"own_colours", 15, ownColours, playing},
      {"own_picture", 15, ownPicture, playing},
      {"strip_playing", 15, {}, strip(false, kBare, stripPlays)},
      {"strip_muted", 15, {}, strip(false, kBare, stripMuted)},
      {"strip_paused_border", 15, {}, strip(false, kBorder, stripPaused)},
      {"strip_custom", 15, {}, strip(false, kBare, stripInColours(0x000000, 0x29CF95))},
      {"strip_unfolded", 15, {}, strip(true, kBare, stripPlays)},
      {"strip_unfolded_nosliders", 15, {}, strip(true, kBare, stripPlays, 0)},
      {"strip_unfolded_custom", 15, {}, strip(true, kBare, stripInColours(0x000000, 0x29CF95))},
      {"strip_unfolded_paused_border", 15, {}, strip(true, kBorder, stripPaused)},
      {"strip_unfolded_plain_digits", 15, {}, strip(true, kBare, stripInPlainDigits)},
      {"sf0_strip_playing", 12, {}, strip(false, kBare, stripPlays)},
      {"sf0_strip_unfolded", 12, {}, strip(true, kBorder, stripPlays)},
      {"about", 15, {}, about},
      {"about_custom_lcd", 15, display(0x000000, 0x29CF95, 0), about},
      {"plain_digits", 15, [](Deck& deck) { deck.settings.noLcdFont = 1; }, playing},
  };
  return kScenes;
}

}  // namespace

std::vector<std::string> sceneNames() {
  std::vector<std::string> names;
  for (const Scene& scene : scenes()) names.emplace_back(scene.name);
  return names;
}

QImage pictureOf(const std::string& name, double factor) {
  for (const Scene& scene : scenes()) {
    if (scene.name != name) continue;
    Deck deck(factor, scene.twips, [&](Deck& fresh) {
      fresh.player.insert(discOf(14));
      fresh.auxVolume.reading.volume = 0xBFFFBFFF;  // 75 %
      if (scene.before) scene.before(fresh);
    });
    return scene.after(deck);
  }
  return {};
}

}  // namespace orvanta::test
