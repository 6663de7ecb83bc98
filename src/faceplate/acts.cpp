// The table of acts, in their order.
#include "faceplate/acts.h"

#include "faceplate/upward.h"

namespace orvanta {

namespace {

constexpr int kHelpTopic = 15;

constexpr bool kClicks = true;
constexpr bool kSilent = false;

bool always(const ActParts& /*on*/, int /*argument*/) { return true; }
bool awake(const ActParts& on, int /*argument*/) { return !on.state.disc.asleep(); }
bool discIn(const ActParts& on, int /*argument*/) { return on.state.disc.in(); }
bool discWanted(const ActParts& on, int /*argument*/) { return on.choice.discWanted(); }
bool playing(const ActParts& on, int /*argument*/) { return awake(on, 0) && on.state.transport.playingFlag && on.looks.acceptsScan(); }
bool sliders(const ActParts& on, int /*argument*/) { return on.state.settings.soundMode != kNoSliders; }
bool off(const ActParts& /*on*/) { return false; }

template <TransportKey K>
bool accepts(const ActParts& on, int /*argument*/) {
  return awake(on, 0) && on.looks.accepts(K);
}

template <TransportKey K>
void transport(const ActParts& on, By /*by*/, int /*argument*/) {
  on.buttons.icntla_MouseUp(K);
}

template <ScanKey K>
void scanRow(const ActParts& on, By /*by*/, int /*argument*/) {
  on.buttons.scntla_MouseUp(K);
}

template <SmallKey K>
void smallKey(const ActParts& on, By /*by*/, int /*argument*/) {
  on.buttons.Image16_MouseUp(K);
}

template <ModeKey K>
void mode(const ActParts& on, By by, int /*argument*/) {
  on.modes.Image4_MouseUp(K);
  // A person who picks Pgm wants to make a program.
  if (K == PgmKey && by == By::Person) on.upward.showPlaylist();
}

template <ModeKey K>
bool modeIs(const ActParts& on) {
  return on.form.Image3[K].visible;
}

template <void (FaceplateUpward::*Call)()>
void upward(const ActParts& on, By /*by*/, int /*argument*/) {
  (on.upward.*Call)();
}

template <void (Volume::*Call)()>
void level(const ActParts& on, By /*by*/, int /*argument*/) {
  (on.volume.*Call)();
}

template <void (Layout::*Call)()>
void layout(const ActParts& on, By /*by*/, int /*argument*/) {
  (on.layout.*Call)();
}

bool numberLit(const ActParts& on, int track) {
  return awake(on, 0) && track >= 1 && track <= 20 && on.form.Label34[static_cast<size_t>(track - 1)].foreColor != colours::kGrey;
}

/// Whoever puts a disc in looks at the drawer.
void putIn(const ActParts& on, By /*by*/, int /*argument*/) {
  on.upward.comeBack();
  on.choice.ask();
}

void eject(const ActParts& on, By by, int argument) {
  if (by == By::Person && on.choice.discWanted()) {
    putIn(on, by, argument);
    return;
  }
  on.engine.mmcontrol1_EjectClick();
  on.upward.comeBack();
}

/// Without sliders the keys for the level open the mixer.
template <int Steps>
void louder(const ActParts& on, By /*by*/, int /*argument*/) {
  if (on.state.settings.soundMode == kNoSliders) {
    on.sounds.runMixer();
  } else {
    on.volume.stepBoth(Steps);
  }
}

void mute(const ActParts& on, By /*by*/, int /*argument*/) {
  if (on.state.settings.soundMode == kNoSliders) {
    on.sounds.runMixer();
  } else {
    on.volume.Image2_MouseUp(on.volume.muted() ? 0 : 1);
  }
}

template <bool ToTray>
void minimise(const ActParts& on, By /*by*/, int /*argument*/) {
  on.sounds.play(Sound::Minimise);
  on.state.display.trayWanted = ToTray;
  on.upward.minimise();
}

/// A person's step ends Intro, and what a tick would find ended counts first.
template <void (Engine::*Call)()>
void step(const ActParts& on, By /*by*/, int /*argument*/) {
  on.modes.stopintro();
  on.engine.settle();
  (on.engine.*Call)();
}

using P = const ActParts&;

const Act kActs[] = {
    // action, clicks, who refuses, what it does, may it be done, is it on
    {Action::Previous, kClicks, Refuses::Part, transport<Previous>, accepts<Previous>, off},
    {Action::Next, kClicks, Refuses::Part, transport<Next>, accepts<Next>, off},
    {Action::Play, kClicks, Refuses::Part, transport<Play>, accepts<Play>, [](P on) { return on.state.transport.playingFlag; }},
    {Action::Pause, kClicks, Refuses::Part, transport<Pause>, accepts<Pause>, [](P on) { return on.state.transport.pausedFlag; }},
    {Action::Stop, kClicks, Refuses::Part, transport<Stop>, accepts<Stop>, off},
    {Action::Record, kClicks, Refuses::Part, transport<Record>, accepts<Record>, off},
    {Action::ScanBack, kClicks, Refuses::Part, scanRow<ScanBack>, playing, [](P on) { return on.state.transport.scanCount < 0; }},
    {Action::ScanForward, kClicks, Refuses::Part, scanRow<ScanForward>, playing, [](P on) { return on.state.transport.scanCount > 0; }},
    {Action::TimeMode, kClicks, Refuses::Part, scanRow<TimeKey>, [](P on, int) { return awake(on, 0) && !on.state.transport.pausedFlag; },
     off},
    {Action::AbLoop, kClicks, Refuses::Part, scanRow<AbKey>, [](P on, int) { return awake(on, 0) && on.state.transport.playingFlag; },
     [](P on) { return on.state.transport.abSetA; }},
    {Action::Track, kClicks, Refuses::Row, [](P on, By, int track) { on.buttons.Image17_MouseUp(static_cast<size_t>(track - 1)); },
     numberLit, off},
    {Action::Above20, kClicks, Refuses::Row, smallKey<Above20>,
     [](P on, int) { return awake(on, 0) && on.form.Label44.foreColor != colours::kGrey; },
     [](P on) { return on.form.Text1.visible.get(); }},
    {Action::Shuffle, kClicks, Refuses::Part, smallKey<Shuffle>,
     [](P on, int) { return awake(on, 0) && !on.state.transport.pausedFlag && on.looks.acceptsShuffle(); }, off},
    {Action::Repeat, kClicks, Refuses::Part, smallKey<Repeat>, [](P on, int) { return on.looks.acceptsRepeat(); },
     [](P on) { return on.state.settings.repeatOn == kOn; }},
    {Action::TrackList, kClicks, Refuses::Row, upward<&FaceplateUpward::showTrackList>,
     [](P on, int) { return discIn(on, 0) && on.form.Image16[Info].enabled; }, off},
    {Action::CloseTrackList, kSilent, Refuses::Row, upward<&FaceplateUpward::closeTrackList>, always, off},
    {Action::Pgm, kClicks, Refuses::Row, mode<PgmKey>, awake, modeIs<PgmKey>},
    {Action::One, kClicks, Refuses::Row, mode<OneKey>, awake, modeIs<OneKey>},
    {Action::Cont, kClicks, Refuses::Row, mode<ContKey>, awake, modeIs<ContKey>},
    {Action::Intro, kClicks, Refuses::Row, mode<IntroKey>, awake, modeIs<IntroKey>},
    {Action::NextMode, kSilent, Refuses::Row, [](P on, By, int) { on.modes.nextMode(); }, awake, off},
    {Action::Recall, kSilent, Refuses::Row, [](P on, By, int) { on.modes.Label30_Click(); },
     [](P on, int) { return awake(on, 0) && on.state.program.pgmStored; }, off},
    {Action::TrackBefore, kClicks, Refuses::Row, step<&Engine::previousKey>, discIn, off},
    {Action::TrackAfter, kClicks, Refuses::Row, step<&Engine::nextFromAnywhere>, discIn, off},
    {Action::Seek, kSilent, Refuses::Part, [](P on, By, int x) { on.buttons.CDStatusBar_Click(x); }, playing, off},
    {Action::Eject, kClicks, Refuses::Row, eject, always, [](P on) { return on.state.disc.drawerOpen; }},
    {Action::PutIn, kSilent, Refuses::Row, putIn, discWanted, off},
    {Action::Mute, kClicks, Refuses::Row, mute, always, [](P on) { return on.volume.muted(); }},
    {Action::Louder, kSilent, Refuses::Row, louder<1>, always, off},
    {Action::Softer, kSilent, Refuses::Row, louder<-1>, always, off},
    {Action::Link, kClicks, Refuses::Row, level<&Volume::toggleLink>, [](P on, int) { return on.state.settings.soundMode == kOwnVolume; },
     [](P on) { return on.volume.linked(); }},
    {Action::SilenceLeft, kSilent, Refuses::Row, level<&Volume::PctL_Click>, sliders, off},
    {Action::SilenceRight, kSilent, Refuses::Row, level<&Volume::PctR_Click>, sliders, off},
    {Action::SlidersAway, kSilent, Refuses::Row, level<&Volume::SSPanel1_RightClick>, always, off},
    {Action::SlidersBack, kSilent, Refuses::Row, level<&Volume::Command3D16_RightClick>, always, off},
    {Action::Mixer, kClicks, Refuses::Row, [](P on, By, int) { on.sounds.runMixer(); }, always, off},
    {Action::DisplaySize, kClicks, Refuses::Row, layout<&Layout::Image20_MouseUp>, always,
     [](P on) { return on.state.settings.expandedDisplay == kOn; }},
    {Action::Small, kClicks, Refuses::Row, layout<&Layout::Image11_Click>, [](P on, int) { return on.form.Image11.enabled.get(); },
     [](P on) { return on.state.settings.smallFaceplate == kOn; }},
    {Action::Large, kClicks, Refuses::Row, layout<&Layout::Image13_Click>, always,
     [](P on) { return on.state.settings.smallFaceplate != kOn; }},
    {Action::MinimiseToStrip, kSilent, Refuses::Row, minimise<false>, always, off},
    {Action::MinimiseToTray, kSilent, Refuses::Row, minimise<true>, always, off},
    {Action::CdData, kClicks, Refuses::Part, upward<&FaceplateUpward::showCdData>, [](P on, int) { return on.upward.mayShowCdData(); },
     off},
    {Action::Playlist, kClicks, Refuses::Row, upward<&FaceplateUpward::showPlaylist>, discIn, off},
    {Action::EnhancedDisc, kClicks, Refuses::Row, upward<&FaceplateUpward::launchEnhancedDisc>, always, off},
    {Action::Menu, kSilent, Refuses::Row, [](P on, By, int how) { on.upward.showMenu(how != kByMouse); }, always, off},
    {Action::Internet, kClicks, Refuses::Row, [](P on, By, int how) { on.upward.showSearches(how != kByMouse); }, discIn, off},
    {Action::Library, kClicks, Refuses::Row, upward<&FaceplateUpward::startLibrary>, always, off},
    {Action::Wallpaper, kSilent, Refuses::Row, upward<&FaceplateUpward::switchWallpaper>, always, off},
    {Action::Help, kSilent, Refuses::Row, [](P on, By, int) { on.upward.showHelp(kHelpTopic); }, always, off},
    {Action::About, kSilent, Refuses::Row, upward<&FaceplateUpward::showAbout>, always, off},
    {Action::Exit, kClicks, Refuses::Row, upward<&FaceplateUpward::exitProgram>, always, off},
};
static_assert(std::size(kActs) == kActions);

}  // namespace

const Act& actOf(Action action) { return kActs[static_cast<size_t>(action)]; }

}  // namespace orvanta
