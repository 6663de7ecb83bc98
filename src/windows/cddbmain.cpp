// The CDDB window's table. The cells are rows and columns of its panels' grids; Tab goes in this order.
#include "windows/cddbmain.h"

#include "platform/forms/design.h"

namespace orvanta {

namespace {

using forms::kNoIndex;
constexpr const char* kAbout =
    "The CDDB is a table of the world's audio CDs that their listeners have typed in, each for everybody else. A server that holds it is "
    "asked "
    "with the disc's table of contents and answers with artist, title and tracks; what it lacks can be submitted from CD Data.\n\n"
    "Its texts belong to those who gave them. The public server that this deck knows is run by volunteers; thanks to them, and to all who "
    "type their discs in.";

// clang-format off
constexpr forms::GridRow kCddbGrid[] = {
    // name, index, parent, {row, column, rows, columns}, caption, says, tab stop, visible, tool tip, art
    {"cddbmain", kNoIndex, "", {0, 0, 9600, 10500}, "CDDB Online", ""},
    {"TabPanel3", kNoIndex, "cddbmain", {0, 0, 1, 1}, "", "", false, true, "", "left"},
    {"Frame5", kNoIndex, "cddbmain", {1, 0, 1, 1}, "", "", false, true, "", ""},
    {"Frame4", kNoIndex, "cddbmain", {2, 0, 1, 1}, "", "", false, true, "", "frame"},
    {"Frame6", kNoIndex, "cddbmain", {3, 0, 1, 1}, "", "", false, true, "", "frame:tall"},
    {"Frame1", kNoIndex, "cddbmain", {2, 0, 1, 1}, "CDDB Server", "", false, true, "", "frame:top"},
    {"Frame8", kNoIndex, "cddbmain", {3, 0, 1, 1}, "Your Address", "", false, true, "", "frame:tall:top"},
    {"Frame9", kNoIndex, "cddbmain", {2, 0, 1, 1}, "About the CDDB", "", false, true, "", "frame:top"},
    {"Frame10", kNoIndex, "cddbmain", {3, 0, 1, 1}, "", "", false, true, "", "left:top"},
    {"Keys", kNoIndex, "cddbmain", {4, 0, 1, 1}, "", "", false, true, "", "left"},
    {"CommandT", 0, "TabPanel3", {0, 0, 1, 1}, "CDDB Online", "", true, false, "", "tab"},
    {"CommandT", 1, "TabPanel3", {0, 1, 1, 1}, "Setup", "", true, true, "", "tab"},
    {"CommandT", 2, "TabPanel3", {0, 2, 1, 1}, "About", "", true, true, "", "tab"},
    {"inetstatus", kNoIndex, "Frame5", {0, 0, 1, 1}, "", "", false, true, "", "text:wide"},
    {"busy", kNoIndex, "Frame5", {0, 1, 1, 1}, "Waiting for the server...", "", false, false, "", "value"},
    {"Command8", kNoIndex, "Frame5", {0, 2, 1, 1}, "&Start Search", "", true},
    {"Label30", kNoIndex, "Frame4", {0, 0, 1, 1}, "Search Results", "", false, true, "", "heading"},
    {"Label29", kNoIndex, "Frame4", {0, 1, 1, 1}, "Total Titles Found:", "", false, true, "", "wide"},
    {"Command9", kNoIndex, "Frame4", {0, 2, 1, 1}, "&Retrieve CD Information", "", true},
    {"List2", kNoIndex, "Frame4", {1, 0, 1, 3}, "", "Search Results", true, true, "", "stretch"},
    {"Label4", kNoIndex, "Frame6", {0, 0, 1, 1}, "Artist / Title:", ""},
    {"Label24", kNoIndex, "Frame6", {0, 1, 1, 1}, "", "", false, true, "", "value:wide"},
    {"Label19", kNoIndex, "Frame6", {0, 2, 1, 1}, "Genre:", ""},
    {"Label27", kNoIndex, "Frame6", {0, 3, 1, 1}, "", "", false, true, "", "value"},
    {"Label25", kNoIndex, "Frame6", {1, 0, 1, 2}, "Tracks", "", false, true, "", "heading"},
    {"List1", kNoIndex, "Frame6", {2, 0, 1, 2}, "", "Tracks", true, true, "", "stretch"},
    {"Label23", kNoIndex, "Frame6", {1, 2, 1, 2}, "Extended Track Information", "", false, true, "", "heading"},
    {"List3", kNoIndex, "Frame6", {2, 2, 1, 2}, "", "Extended Track Information", true, true, "", "stretch"},
    {"Label26", kNoIndex, "Frame6", {3, 0, 1, 4}, "Liner Notes", "", false, true, "", "heading"},
    {"linernote2", kNoIndex, "Frame6", {4, 0, 1, 4}, "", "Liner Notes", true, true, "", "notes:fixed"},
    {"Command7", kNoIndex, "Frame6", {5, 0, 1, 4}, "Sa&ve CD Information Into Orvanta Library", "", true},
    {"Option2", 0, "Frame1", {0, 0, 1, 3}, "Use HTTP Protocol (use with firewalls) ", "", true, true, "", "choice"},
    {"Option2", 1, "Frame1", {0, 3, 1, 3}, "Use CDDBP Protocol", "", true, true, "", "choice"},
    {"Captions", 0, "Frame1", {1, 0, 1, 1}, "CDDB Server (required)", ""},
    {"Combo1", kNoIndex, "Frame1", {1, 1, 1, 2}, "", "CDDB Server", true},
    {"Captions", 1, "Frame1", {1, 3, 1, 1}, "Port", ""},
    {"Text4", kNoIndex, "Frame1", {1, 4, 1, 1}, "", "Port", true, true, "", "narrow"},
    {"Command10", kNoIndex, "Frame1", {1, 5, 1, 1}, "&Update Server Listing", "", true},
    {"Check1", kNoIndex, "Frame1", {2, 0, 1, 3}, "Automatically connect to CDDB", "", true},
    {"Label2", kNoIndex, "Frame1", {3, 0, 1, 1}, "Proxy Server (HTTP)", ""},
    {"Text1", kNoIndex, "Frame1", {3, 1, 1, 2}, "", "Proxy Server, host:port", true},
    {"Check2", kNoIndex, "Frame1", {3, 3, 1, 3}, "Use Authentication (HTTP)", "", true},
    {"Captions", 2, "Frame1", {4, 0, 1, 1}, "Username", ""},
    {"Text3", kNoIndex, "Frame1", {4, 1, 1, 2}, "", "Username", true},
    {"Captions", 3, "Frame1", {4, 3, 1, 1}, "Password", ""},
    {"Text8", kNoIndex, "Frame1", {4, 4, 1, 2}, "", "Password", true, true, "", "password"},
    {"Captions", 4, "Frame8", {0, 0, 1, 1}, "Your Email Address (required)", ""},
    {"Text5", kNoIndex, "Frame8", {0, 1, 1, 1}, "", "Your Email Address", true},
    {"Label9", kNoIndex, "Frame8", {1, 0, 1, 4}, "Note: your email address is required to query the CDDB servers (to identify yourself)", "", false, true, "", "text"},
    {"Captions", 5, "Frame8", {2, 0, 1, 1}, "SMTP Server", ""},
    {"Text7", kNoIndex, "Frame8", {2, 1, 1, 1}, "", "SMTP Server", true},
    {"Captions", 6, "Frame8", {2, 2, 1, 1}, "Port", ""},
    {"Text2", kNoIndex, "Frame8", {2, 3, 1, 1}, "", "SMTP port", true, true, "", "narrow"},
    {"Label32", kNoIndex, "Frame8", {3, 0, 1, 1}, "CDDB Email", "", false, false},
    {"Text6", kNoIndex, "Frame8", {3, 1, 1, 1}, "", "CDDB Email", true, false},
    {"Command12", kNoIndex, "Frame8", {3, 2, 1, 2}, "Reset Email Site", "", true, false},
    {"Label22", kNoIndex, "Frame9", {0, 0, 1, 10}, kAbout, "", false, true, "", "text"},
    {"Label1", kNoIndex, "Frame10", {0, 0, 1, 1}, "gnudb.org", "", true},
    {"Label13", kNoIndex, "Frame10", {0, 1, 1, 1}, "The CDDB in Wikipedia", "", true},
    {"Command13", kNoIndex, "Frame10", {0, 2, 1, 1}, "&Help", "", true},
    {"Command1", kNoIndex, "Keys", {0, 0, 1, 1}, "&OK", "", true},
    {"Command3", kNoIndex, "Keys", {0, 1, 1, 1}, "&Cancel", "", true},
};
// clang-format on

}  // namespace

std::span<const forms::GridRow> cddbmain::grid() const { return kCddbGrid; }

}  // namespace orvanta
