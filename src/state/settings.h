// What the settings files hold. Names and order of the fields are in settings_files.cpp.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/colour.h"

namespace orvanta {

struct FontGroup {
  std::string fontName;  ///< "" keeps the design's font
  int32_t fontSize = 0;  ///< points
  int16_t fontBold = 0;
  int16_t fontItalic = 0;
  int16_t fontUnderline = 0;
  Colour fontColor = 0;
};

struct Settings {
  // ORVWIN.INI
  std::string appDir;       ///< data folder; "datacd" lies under it
  std::string cdProbePath;  ///< path of the drive: a folder with an image, or a device

  // ORVWIN1.INI
  std::string mixerPath;
  int16_t wallpaperMode = 0;
  Colour wallpaperColor = 0;
  std::string wallpaperFile;
  int16_t wallpaperOption = 0;
  int16_t editorFromFaceplate = 0;  ///< 1: CD Data takes the deck's place; 0: it opens beside it
  int16_t soundMode = 0;            ///< 0 no sliders, 3 own volume, 4 mixer; 1 and 2 count as 3

  // ORVWIN3.INI; font group 2 stands in the table and is never loaded
  std::array<FontGroup, 4> fonts;       ///< by FontPlace
  std::array<int16_t, 6> appOptions{};  ///< by AppOption
  std::string searchEngine;
  std::array<Colour, 13> customColor{};  ///< by CustomColour

  // ORVWIN4.INI
  std::string lyricsSite;
  int16_t soundsOff = 0;
  int16_t minToTray = 0;
  std::string browserPath;
  int16_t faceplateBorder = 0;
  std::string faceplateBitmap;
  int16_t faceplateBitmapOn = 0;
  int16_t noLcdFont = 0;
  int16_t showLights = 0;
  int16_t lcdCustom = 0;
  Colour lcdFore = 0;
  Colour lcdBack = 0;
  std::array<Colour, 11> lcdColor{};  ///< of the display's states; not stored, see fillLcdColours()

  // ORVWIN7.INI
  std::string recordCommand;

  // settings.dat
  int16_t timeMode = 0;
  int16_t expandedDisplay = 0;
  int16_t smallFaceplate = 0;
  int16_t repeatOn = 0;

  std::array<std::string, 64> kept;  ///< fields that only pass through, by a number of their own
};

/// Places in Settings::appOptions; those of a check are 1 where it is on.
enum AppOption : size_t { kEjectAtEnd = 1, kExitOnEject = 2, kMixerAtStart = 3, kIntroLength = 4, kPlayOn = 5 };

/// Places in Settings::fonts.
enum FontPlace : size_t { kDiscFont = 0, kTrackFont = 1, kListFont = 3 };

/// Places in Settings::customColor that are used; 0 leaves the deck's own.
enum CustomColour : size_t {
  kCustomBorderLines = 0,
  kCustomMetal = 1,
  kCustomDoor = 2,
  kCustomKeypad = 3,  ///< and the volume panel
  kCustomBars = 4,    ///< of the progress and the sliders
  kCustomLists = 7,
  kCustomLegends = 9,
  kCustomDigits = 10,
};

/// Indices of lcdColor.
enum LcdColour : uint8_t {
  kLcdLit = 0,
  kLcdLabelOff = 2,
  kLcdLabelOn = 3,
  kLcdLitInCont = 4,
  kLcdDrawer = 5,
  kLcdDim = 6,
  kLcdRepeatOn = 8,
  kLcdRepeatOff = 9,
};

}  // namespace orvanta
