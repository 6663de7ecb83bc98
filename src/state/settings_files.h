// The settings family: one field table a file drives both reading and writing.
#pragma once

#include <string>

#include "state/data_folder.h"
#include "state/field_file.h"
#include "state/settings.h"

namespace orvanta {

class Files;

/// Fills `settings` from a file. Fields that a short one lacks keep what they held. True when every
/// field was there.
bool readFields(SettingsFile file, FieldReader reader, Settings& settings);

FieldWriter writtenFields(SettingsFile file, const Settings& settings);

/// Reads a file of the family: ORVWIN.INI from `folder` = systemDir, the others from appDir. A
/// missing or short one leaves values as they are; false then, of which only ORVWIN.INI's reader
/// takes notice. ORVWIN4.INI repairs itself once, and its reading ends in fillLcdColours().
bool readSettings(SettingsFile file, Files& files, const std::string& folder, Settings& settings);

bool writeSettings(SettingsFile file, Files& files, const std::string& folder, const Settings& settings);

/// What the deck itself changes of them: "settings.dat".
bool keepModes(Files& files, const Settings& settings);

/// The display's state colours out of lcdCustom, lcdFore and lcdBack. Two equal custom colours
/// become black on pale green, so that the display can never be unreadable.
void fillLcdColours(Settings& settings);

/// Settings of a fresh installation whose data lies in `appDir`, with the drive at `drive`.
Settings defaultSettings(const std::string& appDir, const std::string& drive);

/// Writes the files of the family that `settings.appDir` lacks; true when all stand afterwards.
bool writeMissingSettings(Files& files, const Settings& settings);

}  // namespace orvanta
