// The host: its folders and family.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvanta {

class System {
 public:
  virtual ~System() = default;
  /// Holds ORVWIN.INI: $XDG_CONFIG_HOME/orvanta.
  virtual std::string systemDir() const = 0;
  /// The folder of the installed programs: this one and its companions.
  virtual std::string windowsDir() const = 0;
  /// The path of a program of the family, whether or not it is installed.
  std::string companion(const std::string& name) const { return windowsDir() + "/" + name; }
  /// The path of a file that comes with the programs, as a help text.
  std::string shared(const std::string& name) const {
    const std::string programs = windowsDir();
    return programs.substr(0, programs.rfind('/')) + "/share/orvanta/" + name;
  }
  /// Where data lies unless the settings say otherwise: $XDG_DATA_HOME/orvanta.
  virtual std::string defaultDataDir() const = 0;
  /// The desktop's own mixer program; "" when none is installed.
  virtual std::string mixerProgram() const = 0;
  /// What the desktop opens one of these kinds of files with ("text/html"), the most general kind first: a command, with "%u"
  /// where an address goes if that is not its end; "" for nothing.
  virtual std::string programFor(const std::vector<std::string>& types) const = 0;
  /// 1: interface sounds and centring in the free area are wanted.
  virtual int16_t platformId() const = 0;
  /// Arguments of the host (`--data`, `--drive`, `--audio`, `--scale`) to hand on at a restart.
  virtual std::vector<std::string> handedOn() const = 0;
  /// The next restart is for another drive, with a sheet to put into its tray ("" for none).
  virtual void changeDrive(const std::string& drive, const std::string& disc) = 0;
};

}  // namespace orvanta
