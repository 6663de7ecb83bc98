// Servers, protocol, proxy, the user's address, mail.
#include "cddb/cddb_setup.h"

#include <algorithm>

#include "base/text.h"
#include "platform/ports/files.h"
#include "platform/ports/screen.h"
#include "state/data_folder.h"
#include "state/not_written.h"

namespace orvanta {

namespace {

constexpr const char* kServerPorts = "Please enter a valid Port number (usually 80 for HTTP and 8880 or 888 for CDDBP)";
constexpr const char* kMailPorts = "Please enter a valid Port number (usually 25 for SMTP Servers)";
constexpr int kHighestPort = 65535;
constexpr size_t kUserCaption = 2;
constexpr size_t kPasswordCaption = 3;

int portIn(const forms::TextBox& box) {
  const double port = leadingNumber(box.caption.get());
  return port >= 1 && port <= kHighestPort ? static_cast<int>(port) : 0;
}

std::string trimmed(const forms::Control& control) { return std::string(trim(control.caption.get())); }

/// The parts before and behind the "@"; none when one of them is empty.
struct Address {
  std::string user;
  std::string domain;
};
Address addressIn(const std::string& text) {
  const auto at = text.find('@');
  if (at == std::string::npos) return {};
  Address address{std::string(trim(text.substr(0, at))), std::string(trim(text.substr(at + 1)))};
  return address.user.empty() || address.domain.empty() ? Address{} : address;
}

}  // namespace

void showBox(const CddbPorts& ports, BoxStyle style, const char* title, const std::string& text) {
  ports.screen.setPointer(Pointer::Normal);
  ports.dialogs.message(style, title, text);
}

// ---- the tab

void CddbSetup::load() {
  updating_ = false;
  settings_ = storedCddbSettings(ports_.files, deck_.appDir);
  form_.Command12.visible = form_.Text6.visible = form_.Label32.visible = false;
  form_.Command10.visible = settings_.complete();
  show();
}

void CddbSetup::show() {
  form_.Text6.caption = settings_.submitAddress.empty() ? cddb_defaults::kSubmissions : settings_.submitAddress;
  form_.Text7.caption = settings_.smtpServer;
  form_.Text2.caption = std::to_string(settings_.smtpPort);
  form_.Text3.caption = settings_.proxyUser;
  form_.Text8.caption = settings_.proxyPassword;
  form_.Check2.value = !trim(settings_.proxyPassword).empty();
  form_.Check1.value = settings_.autoConnect;
  form_.Text5.caption = settings_.emailUser.empty() ? "" : settings_.emailUser + "@" + settings_.emailDomain;
  form_.Text1.caption = proxyKept_ = settings_.proxyServer;
  showProtocol();
  loadcombo1();
  const auto same = std::find_if(sites_.begin(), sites_.end(), [&](const Site& site) {
    return site.siteName == settings_.cddbSiteName && site.sitePort == settings_.cddbPort;
  });
  form_.Combo1.caption = settings_.cddbSiteName;
  form_.Text4.caption = settings_.cddbPort > 0 ? std::to_string(settings_.cddbPort) : "";
  if (same != sites_.end()) {
    chooseSite(static_cast<size_t>(same - sites_.begin()));
  } else if (form_.Combo1.caption.get().empty()) {
    chooseSite(0);
  }
}

/// The proxy serves HTTP alone; a list of servers comes over CDDBP alone.
void CddbSetup::showProtocol() {
  const bool cddbp = settings_.useCddbp;
  form_.Option2[0].value = !cddbp;
  form_.Option2[1].value = cddbp;
  form_.Command10.enabled = cddbp;
  form_.Text1.enabled = form_.Label2.enabled = form_.Check2.enabled = !cddbp;
  if (cddbp) {
    if (!form_.Text1.caption.get().empty()) proxyKept_ = form_.Text1.caption;
    form_.Text1.caption = "";
  } else if (form_.Text1.caption.get().empty()) {
    form_.Text1.caption = proxyKept_;
  }
  const bool known = !cddbp && form_.Check2.value;
  form_.Text3.enabled = form_.Text8.enabled = form_.Captions[kUserCaption].enabled = form_.Captions[kPasswordCaption].enabled = known;
}

void CddbSetup::loadcombo1() {
  sites_ = lists().load(settings_.useCddbp);
  std::vector<std::string> names;
  for (const Site& site : sites_) names.push_back(site.siteName);
  form_.Combo1.setItems(std::move(names));
}

void CddbSetup::chooseSite(size_t index) {
  if (index >= sites_.size()) return;
  const Site& site = sites_[index];
  form_.Combo1.caption = site.siteName;
  settings_.cddbServer = site.siteHost;
  settings_.cddbPort = site.sitePort;
  form_.Text4.caption = std::to_string(site.sitePort);
}

void CddbSetup::chooseProtocol(bool cddbp) {
  if (cddbp == settings_.useCddbp) return;
  settings_.useCddbp = cddbp;
  showProtocol();
  // A list without servers leaves nothing of the other protocol's behind.
  form_.Combo1.caption = form_.Text4.caption = "";
  settings_.cddbServer.clear();
  settings_.cddbPort = 0;
  loadcombo1();
  chooseSite(0);
}

void CddbSetup::serverEdited() {
  const std::string& name = form_.Combo1.caption;
  const auto chosen = std::find_if(sites_.begin(), sites_.end(), [&](const Site& site) { return site.siteName == name; });
  if (chosen != sites_.end()) chooseSite(static_cast<size_t>(chosen - sites_.begin()));
}

void CddbSetup::pressed(const std::string& name) {
  if (name == "Command12") {
    form_.Text6.caption = cddb_defaults::kSubmissions;
  } else if (name == "Check1") {
    form_.Check1.value = !form_.Check1.value;
  } else if (name == "Check2") {
    form_.Check2.value = !form_.Check2.value;
    showProtocol();
  }
}

// ---- ENTER

bool CddbSetup::enter(forms::Control& control) {
  struct Link {
    forms::Control& from;
    forms::Control& to;
  };
  const Link links[] = {{form_.Text1, form_.Command1}, {form_.Text3, form_.Text8},  {form_.Text8, form_.Command1},
                        {form_.Text7, form_.Text6},    {form_.Text6, form_.Check1}, {form_.Text4, form_.Text5},
                        {form_.Text2, form_.Text1},    {form_.Text5, form_.Text7}};
  const auto* link = std::find_if(std::begin(links), std::end(links), [&](const Link& each) { return &each.from == &control; });
  if (link == std::end(links)) return false;
  bool good = !trim(control.caption.get()).empty();
  if (&control == &form_.Text4) good = enterPort(form_.Text4, kServerPorts);
  if (&control == &form_.Text2) good = enterPort(form_.Text2, kMailPorts);
  if (&control == &form_.Text5) good = enterAddress();
  if (!good) return true;
  // A field that is hidden or off is passed over.
  forms::Control& next = &link->to == &form_.Text6 && !form_.Text6.visible ? form_.Check1 : link->to;
  form_.setFocus(next.enabled ? next : static_cast<forms::Control&>(form_.Command1));
  return true;
}

bool CddbSetup::enterPort(const forms::TextBox& field, const char* usual) {
  if (portIn(field) > 0) return true;
  showBox(ports_, BoxStyle::Warning, "Orvanta", usual);
  return false;
}

bool CddbSetup::enterAddress() {
  if (!takeAddress()) {
    showBox(ports_, BoxStyle::Critical, "Orvanta", "Invalid email address format - example of proper format: someone@example.com");
    return false;
  }
  if (trimmed(form_.Text7).empty()) form_.Text7.caption = settings_.emailDomain;
  return true;
}

bool CddbSetup::takeAddress() {
  const Address address = addressIn(form_.Text5.caption);
  if (address.user.empty()) return false;
  settings_.emailUser = address.user;
  settings_.emailDomain = address.domain;
  return true;
}

// ---- OK

/// A name of the list stands for its server; anything else that was typed is the server.
bool CddbSetup::takeServer() {
  const std::string typed(trim(form_.Combo1.caption.get()));
  if (typed.empty()) {
    showBox(ports_, BoxStyle::Warning, "Orvanta", kIncomplete);
    return false;
  }
  const bool listed = std::any_of(sites_.begin(), sites_.end(), [&](const Site& site) { return site.siteName == typed; });
  if (listed || typed == settings_.cddbSiteName) return true;
  const bool whole = settings_.useCddbp || typed.find("://") != std::string::npos;
  settings_.cddbServer = whole ? typed : "http://" + typed + "/~cddb/cddb.cgi";
  return true;
}

forms::Control* CddbSetup::missing() {
  if (!trimmed(form_.Text5).empty()) {
    if (!enterAddress()) return &form_.Text5;
  } else if (!trim(settings_.cddbServer).empty()) {
    showBox(ports_, BoxStyle::Warning, "Orvanta", "You must enter your email address to access the CDDB Online!");
    return &form_.Text5;
  }
  if (!takeServer()) return &form_.Combo1;
  return enterPort(form_.Text4, kServerPorts) ? nullptr : &form_.Text4;
}

forms::Control* CddbSetup::take() {
  if (forms::Control* field = missing()) return field;
  settings_.cddbSiteName = form_.Combo1.caption;
  settings_.cddbPort = portIn(form_.Text4);
  settings_.proxyServer = settings_.useCddbp ? proxyKept_ : trimmed(form_.Text1);
  settings_.proxyUser = form_.Check2.value ? trimmed(form_.Text3) : "";
  settings_.proxyPassword = form_.Check2.value ? form_.Text8.caption.get() : "";
  settings_.autoConnect = form_.Check1.value;
  settings_.submitAddress = trimmed(form_.Text6);
  settings_.smtpServer = trimmed(form_.Text7);
  settings_.smtpPort = mailPort(portIn(form_.Text2));
  return nullptr;
}

bool CddbSetup::write() {
  const std::string& folder = deck_.appDir;
  const bool mail = !settings_.submitAddress.empty() && !settings_.smtpServer.empty();
  if (!trim(settings_.cddbServer).empty() && !writeCddbSettings(ports_.files, folder, settings_)) {
    tellNotWritten(ports_.dialogs, ports_.files, DataFolder(ports_.files, folder).path(DataFile::Online));
    return false;
  }
  if (mail && !writeMailSettings(ports_.files, folder, settings_)) {
    tellNotWritten(ports_.dialogs, ports_.files, DataFolder(ports_.files, folder).path(DataFile::Mail));
    return false;
  }
  return true;
}

// ---- the list of servers

CddbSettings CddbSetup::beginUpdate() {
  takeAddress();
  lists().beginUpdate();
  form_.Combo1.clear();
  updating_ = true;
  CddbSettings asking = settings_;
  asking.cddbServer = cddb_defaults::kHost;
  asking.cddbPort = cddb_defaults::kPort;
  return asking;
}

void CddbSetup::finishUpdate(const std::string& list) {
  updating_ = false;
  if (lists().finishUpdate(list)) {
    showBox(ports_, BoxStyle::Information, "Orvanta", "CDDB Sites Listing Successfully Downloaded!");
  } else {
    lists().giveUpUpdate();
    showBox(ports_, BoxStyle::Warning, "Orvanta", "The list of servers could not be written.\n\nThe one that was there stays.");
  }
  loadcombo1();
  chooseSite(0);
}

void CddbSetup::giveUpUpdate() {
  if (updating_) lists().giveUpUpdate();
  updating_ = false;
}

}  // namespace orvanta
