// The Setup tab of cddbmain: what is typed there, the lists of servers, and the settings that come of both.
#pragma once

#include <string>
#include <vector>

#include "cddb/ports.h"
#include "platform/ports/dialogs.h"
#include "state/cddb_settings.h"
#include "state/server_list.h"
#include "state/settings.h"
#include "windows/cddbmain.h"

namespace orvanta {

inline constexpr const char* kIncomplete = "Unable to continue... All required information in the setup tab has not been input";

/// A box of the CDDB's window, under the normal pointer.
void showBox(const CddbPorts& ports, BoxStyle style, const char* title, const std::string& text);

class CddbSetup {
 public:
  CddbSetup(const CddbPorts& ports, cddbmain& form, const Settings& settings) : ports_(ports), form_(form), deck_(settings) {}

  /// What a search asks with: as it is stored, and as it was changed in the tab since.
  const CddbSettings& settings() const { return settings_; }
  /// As they are stored: what was chosen here and cancelled is forgotten. And into the tab.
  void load();

  // Of a person in the tab.
  void chooseProtocol(bool cddbp);
  /// A server was chosen in the list, or typed.
  void serverEdited();
  /// One of the tab's keys and boxes, by its name; nothing for another.
  void pressed(const std::string& name);
  /// ENTER goes on to the next field. False for a control that it means nothing to.
  bool enter(forms::Control& control);

  /// OK, out of the controls. nullptr when all is there; else the field that lacks something, of which the user was told.
  forms::Control* take();
  /// False when a file could not be written, which the user was told.
  bool write();

  // The list of servers, as a server has it.
  /// The present list becomes the backup; with these settings the new one is asked for.
  CddbSettings beginUpdate();
  bool updating() const { return updating_; }
  void finishUpdate(const std::string& list);
  /// None arrived: the old one stays.
  void giveUpUpdate();

 private:
  void show();
  void showProtocol();
  ServerLists lists() const { return {ports_.files, deck_.appDir}; }
  void loadcombo1();
  void chooseSite(size_t index);
  bool enterPort(const forms::TextBox& field, const char* usual);
  bool enterAddress();
  bool takeAddress();
  bool takeServer();
  forms::Control* missing();

  CddbPorts ports_;
  cddbmain& form_;
  const Settings& deck_;
  CddbSettings settings_;
  std::vector<Site> sites_;
  std::string proxyKept_;  ///< while the field is empty, since the protocol knows no proxies
  bool updating_ = false;
};

}  // namespace orvanta
