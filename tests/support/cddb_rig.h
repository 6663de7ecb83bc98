// The whole core with disc A in its drive and a CDDB server that knows it; worked as a person does.
#pragma once

#include "state/cddb_settings.h"
#include "tests/support/core_rig.h"

namespace orvanta::test {

inline const std::string kDiscId = "200 Disc ID is 1f032a03\r\n";
inline const std::string kExact = "200 misc 1f032a03 Some Artist / Some Title\r\n";
inline const std::string kLines =
    "# xmcd\r\nDISCID=1f032a03\r\nDTITLE=Some Artist / Some Title\r\nTTITLE0=One\r\nTTITLE1=Two\r\nTTITLE2=Three\r\n"
    "EXTD=\r\nEXTT0=\r\nEXTT1=\r\nEXTT2=\r\nPLAYORDER=\r\n.\r\n";
inline const std::string kRecord = "210 misc 1f032a03 CD database entry follows (until terminating `.')\r\n" + kLines;
inline const std::string kCdPath = "/data/datacd/19443766.CD";
inline const std::string kNoHost =
    "Orvanta CDDB Online Retrieval: Unable to communicate with host CDDBP server; either you are not connected to the Internet or the host "
    "server is busy.";

/// Over TCP, line by line.
inline std::vector<Exchanged> cddbp() {
  return {{"", "201 ready\r\n", false},
          {"cddb hello user domain Orvanta 10.0\r\n", "200 Hello and welcome user@domain\r\n", false},
          {"discid 3 150 18627 41002 812\r\n", kDiscId, false},
          {"cddb query 1f032a03 3 150 18627 41002 812\r\n", kExact, false},
          {"cddb read misc 1f032a03\r\n", kRecord, false}};
}

struct Cddb : CoreRig {
  Cddb() {
    store.cddbServer = "server";
    store.cddbSiteName = "Site";
    store.cddbPort = 8880;
    store.emailUser = "user";
    store.emailDomain = "domain";
    store.useCddbp = store.autoConnect = true;
    net.script = cddbp();
  }
  /// With disc A in the drive and these settings stored.
  void begin() {
    install();
    writeCddbSettings(files, "/data", store);
    files.write("/data/datacd/srvcddbp.txt", "server 8880 Site\r\nother 888 N1 Other\r\n");
    files.write("/data/datacd/srvhttp.txt", "http://server/cddb.cgi 80 Web, site\r\n");
    player.insert(discA());
    start();
  }
  void press(forms::Control& control) {
    gate.enter([&] { control.form().press(control); });
  }
  void type(forms::Control& control, const std::string& text) {
    gate.enter([&] { control.form().userText(control, text); });
  }
  void enter(forms::Control& control) {
    gate.enter([&] {
      control.form().setFocus(control);
      control.form().keyDown({forms::key::kEnter});
      control.form().keyUp({forms::key::kEnter});
    });
  }
  std::string cd() const { return files.read(kCdPath).value_or("absent"); }

  CddbSettings store;
  cddbmain& cddb = orvanta.cddbForm;
  acdtabs& editor = orvanta.editor;
};

}  // namespace orvanta::test
