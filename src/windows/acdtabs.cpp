// The CD Data window's table. The cells are rows and columns of its panels' grids; Tab goes in this order.
#include "windows/acdtabs.h"

#include "platform/forms/design.h"

namespace orvanta {

namespace {

using forms::kNoIndex;
constexpr const char* kCorrectionText =
    "Use this option only if this particular Audio CD either cuts off the end of the songs OR does not correctly update the song/track "
    "display "
    "during programmed/shuffle playback. Valid entries are between -3 and 5 seconds. This correction is required only for those Audio CDs "
    "which "
    "do not accurately indicate the track times or do not conform to CD standards.";

// clang-format off
constexpr forms::GridRow kEditorGrid[] = {
    // name, index, parent, {row, column, rows, columns}, caption, says, tab stop, visible, tool tip, art
    {"acdtabs", kNoIndex, "", {0, 0, 9000, 11700}, "CD Data", ""},
    {"TabPanel0", kNoIndex, "acdtabs", {0, 0, 1, 1}, "", "", false, true, "", "left"},
    {"SSFrame1", kNoIndex, "acdtabs", {1, 0, 1, 1}, "", "", false, true, "", "frame"},
    {"SSFrame4", kNoIndex, "acdtabs", {1, 0, 1, 1}, "", "", false, true, "", "frame"},
    {"Frame3D1", kNoIndex, "acdtabs", {1, 0, 1, 1}, "Audio CD Timing Correction", "", false, true, "", "frame:top:left"},
    {"Heads1", kNoIndex, "SSFrame1", {5, 0, 1, 7}, "", "", false, true, "", ""},
    {"Heads2", kNoIndex, "SSFrame4", {7, 0, 1, 6}, "", "", false, true, "", ""},
    {"Facts", kNoIndex, "acdtabs", {2, 0, 1, 1}, "", "", false, true, "", ""},
    {"Keys", kNoIndex, "acdtabs", {3, 0, 1, 1}, "", "", false, true, "", ""},
    {"CommandT", 0, "TabPanel0", {0, 0, 1, 1}, "Music Info", "", true, false, "", "tab"},
    {"CommandT", 1, "TabPanel0", {0, 1, 1, 1}, "Additional Info", "", true, true, "", "tab"},
    {"CommandT", 2, "TabPanel0", {0, 2, 1, 1}, "Advanced", "", true, true, "", "tab"},
    {"Captions", 0, "SSFrame1", {0, 0, 1, 1}, "Artist:", ""},
    {"Text2", kNoIndex, "SSFrame1", {0, 1, 1, 3}, "", "Artist", true},
    {"Captions", 1, "SSFrame1", {0, 4, 1, 1}, "Genre:", ""},
    {"cat", kNoIndex, "SSFrame1", {0, 5, 1, 1}, "", "Genre", true},
    {"addGenreKey", kNoIndex, "SSFrame1", {0, 6, 1, 1}, "+", "Add a genre", true, true, "Add a genre to the list", "small"},
    {"Captions", 2, "SSFrame1", {1, 0, 1, 1}, "Title:", ""},
    {"Text4", kNoIndex, "SSFrame1", {1, 1, 1, 3}, "", "Title", true},
    {"Captions", 3, "SSFrame1", {1, 4, 1, 1}, "CD Changer ID:", ""},
    {"Text24", kNoIndex, "SSFrame1", {1, 5, 1, 2}, "", "CD Changer ID", true},
    {"Captions", 4, "SSFrame1", {2, 0, 1, 1}, "Media Type:", ""},
    {"mediatype", kNoIndex, "SSFrame1", {2, 1, 1, 1}, "", "Media Type", true},
    {"Captions", 5, "SSFrame1", {2, 2, 1, 1}, "Label:", ""},
    {"Text6", kNoIndex, "SSFrame1", {2, 3, 1, 1}, "", "Label", true},
    {"Captions", 6, "SSFrame1", {2, 4, 1, 1}, "Catalog #:", ""},
    {"catnum", kNoIndex, "SSFrame1", {2, 5, 1, 2}, "", "Catalog #", true},
    {"Captions", 7, "SSFrame1", {3, 0, 1, 1}, "Year Released:", ""},
    {"Text18", kNoIndex, "SSFrame1", {3, 1, 1, 1}, "", "Year Released", true},
    {"Captions", 8, "SSFrame1", {3, 2, 1, 1}, "UPC #:", ""},
    {"upcnum", kNoIndex, "SSFrame1", {3, 3, 1, 1}, "", "UPC #", true},
    {"Captions", 9, "SSFrame1", {4, 0, 1, 1}, "Liner Notes:", ""},
    {"Text3", kNoIndex, "SSFrame1", {4, 1, 1, 6}, "", "Liner Notes", true, true, "", "notes"},
    {"Label5", kNoIndex, "Heads1", {0, 0, 1, 1}, "#:", "", false, true, "", "heading:number"},
    {"Label6", kNoIndex, "Heads1", {0, 1, 1, 1}, "Description:", "", false, true, "", "heading:wide"},
    {"Label7", kNoIndex, "Heads1", {0, 2, 1, 1}, "Time:", "", false, true, "", "heading:right"},
    {"List1", kNoIndex, "SSFrame1", {6, 0, 1, 7}, "", "Tracks", true, true, "", "stretch"},
    {"Captions", 10, "SSFrame1", {7, 0, 1, 1}, "Track Description:", ""},
    {"Text1", kNoIndex, "SSFrame1", {7, 1, 1, 6}, "", "Track Description", true, true, "Press the \"ENTER\" key after typing the description..."},
    {"Captions", 11, "SSFrame4", {0, 0, 1, 1}, "Artist Web Site:", ""},
    {"Text10", kNoIndex, "SSFrame4", {0, 1, 1, 3}, "", "Artist Web Site", true},
    {"Captions", 12, "SSFrame4", {0, 4, 1, 1}, "Storage Location:", ""},
    {"stloc", kNoIndex, "SSFrame4", {0, 5, 1, 1}, "", "Storage Location", true},
    {"Captions", 13, "SSFrame4", {1, 0, 1, 1}, "Artist Info:", ""},
    {"Text23", kNoIndex, "SSFrame4", {1, 1, 1, 3}, "", "Artist Info", true},
    {"Captions", 14, "SSFrame4", {1, 4, 1, 1}, "Album Credits:", ""},
    {"Text16", kNoIndex, "SSFrame4", {1, 5, 1, 1}, "", "Album Credits", true},
    {"Captions", 15, "SSFrame4", {2, 0, 1, 1}, "Album Info:", ""},
    {"Text22", kNoIndex, "SSFrame4", {2, 1, 1, 3}, "", "Album Info", true},
    {"Captions", 16, "SSFrame4", {2, 4, 1, 1}, "Recording Info:", ""},
    {"Text15", kNoIndex, "SSFrame4", {2, 5, 1, 1}, "", "Recording Info", true},
    {"Captions", 17, "SSFrame4", {3, 0, 1, 1}, "Recording Venue:", ""},
    {"recdtype", kNoIndex, "SSFrame4", {3, 1, 1, 1}, "", "Recording Venue", true},
    {"Captions", 18, "SSFrame4", {3, 2, 1, 1}, "Music Rating:", ""},
    {"mrat", kNoIndex, "SSFrame4", {3, 3, 1, 1}, "", "Music Rating", true},
    {"Captions", 19, "SSFrame4", {3, 4, 1, 1}, "Rec Rating:", ""},
    {"rrat", kNoIndex, "SSFrame4", {3, 5, 1, 1}, "", "Rec Rating", true},
    {"Captions", 20, "SSFrame4", {4, 0, 1, 1}, "Media Rating:", ""},
    {"mcrat", kNoIndex, "SSFrame4", {4, 1, 1, 1}, "", "Media Rating", true},
    {"Captions", 21, "SSFrame4", {4, 2, 1, 1}, "Pkg Rating:", ""},
    {"pcrat", kNoIndex, "SSFrame4", {4, 3, 1, 1}, "", "Pkg Rating", true},
    {"Captions", 22, "SSFrame4", {4, 4, 1, 1}, "Cont Rating: ", ""},
    {"crat", kNoIndex, "SSFrame4", {4, 5, 1, 1}, "", "Cont Rating", true},
    {"Captions", 23, "SSFrame4", {5, 0, 1, 1}, "Rec Code:", ""},
    {"reccode", kNoIndex, "SSFrame4", {5, 1, 1, 1}, "", "Rec Code", true},
    {"Label37", kNoIndex, "SSFrame4", {5, 2, 1, 1}, "User Defined 1:", ""},
    {"Text13", kNoIndex, "SSFrame4", {5, 3, 1, 1}, "", "User defined 1", true},
    {"Label51", kNoIndex, "SSFrame4", {5, 4, 1, 1}, "User Defined 2:", ""},
    {"Text11", kNoIndex, "SSFrame4", {5, 5, 1, 1}, "", "User defined 2", true},
    {"Captions", 24, "SSFrame4", {6, 0, 1, 1}, "Composer: ", ""},
    {"Text7", kNoIndex, "SSFrame4", {6, 1, 1, 3}, "", "Composer", true},
    {"Captions", 25, "SSFrame4", {6, 4, 1, 1}, "Cost:", ""},
    {"cdcost", kNoIndex, "SSFrame4", {6, 5, 1, 1}, "", "Cost", true},
    {"Label39", kNoIndex, "Heads2", {0, 0, 1, 1}, "#:", "", false, true, "", "heading:number"},
    {"Label40", kNoIndex, "Heads2", {0, 1, 1, 1}, "Lyrics / Information:", "", false, true, "", "heading:wide"},
    {"List2", kNoIndex, "SSFrame4", {8, 0, 1, 6}, "", "Track lyrics", true, true, "", "stretch"},
    {"Captions", 26, "SSFrame4", {9, 0, 1, 1}, "Track Lyrics / Info:", ""},
    {"Text8", kNoIndex, "SSFrame4", {9, 1, 1, 5}, "", "Track Lyrics / Info", true, true, "Press the \"ENTER\" key after typing the track info...", "notes"},
    {"Label18", kNoIndex, "Frame3D1", {0, 0, 1, 10}, kCorrectionText, "", false, true, "", "text"},
    {"LabelCorrection", kNoIndex, "Frame3D1", {1, 0, 1, 1}, "&Time Correction:", "", false, true, "", "buddy"},
    {"Text5", kNoIndex, "Frame3D1", {1, 1, 1, 1}, "", "Time correction, seconds", true, true, "", "narrow"},
    {"Label16", kNoIndex, "Frame3D1", {1, 2, 1, 1}, "Seconds", ""},
    {"Label24", kNoIndex, "Facts", {0, 0, 1, 1}, "Entered", ""},
    {"Label23", kNoIndex, "Facts", {0, 1, 1, 1}, "", "", false, true, "", "value"},
    {"Label10", kNoIndex, "Facts", {0, 2, 1, 1}, "Total Tracks", ""},
    {"Label12", kNoIndex, "Facts", {0, 3, 1, 1}, "", "", false, true, "", "value"},
    {"Label11", kNoIndex, "Facts", {0, 4, 1, 1}, "Total Time", ""},
    {"Label13", kNoIndex, "Facts", {0, 5, 1, 1}, "", "", false, true, "", "value"},
    {"Label25", kNoIndex, "Facts", {1, 0, 1, 7}, "Submitting...", "", false, false, "", "value:text"},
    {"Command4", kNoIndex, "Keys", {0, 0, 1, 1}, "&Print", "", true},
    {"Command7", kNoIndex, "Keys", {0, 1, 1, 1}, "Save Data  as HTML", "", true},
    {"Command13", kNoIndex, "Keys", {0, 2, 1, 1}, "User Defined", "", true},
    {"Command14", kNoIndex, "Keys", {0, 3, 1, 1}, "View Lyrics Online (ILS)", "", true},
    {"Command11", kNoIndex, "Keys", {0, 4, 1, 1}, "C&DDB", "", true},
    {"Command12", kNoIndex, "Keys", {0, 5, 1, 1}, "Submit to CDDB", "", true},
    {"Command6", kNoIndex, "Keys", {1, 0, 1, 1}, "&Add Genre", "", true},
    {"Command5", kNoIndex, "Keys", {1, 1, 1, 1}, "Clea&r", "", true},
    {"Command3", kNoIndex, "Keys", {1, 2, 1, 1}, "&Help", "", true},
    {"Command10", kNoIndex, "Keys", {1, 3, 1, 1}, "&Add Tracks", "", true, false},
    {"Command1", kNoIndex, "Keys", {1, 4, 1, 1}, "&OK", "", true},
    {"Command2", kNoIndex, "Keys", {1, 5, 1, 1}, "&Cancel", "", true},
};
// clang-format on

}  // namespace

std::span<const forms::GridRow> acdtabs::grid() const { return kEditorGrid; }

}  // namespace orvanta
