// What --version tells of licences.
#pragma once

#define ORVANTA_LICENCES                                       \
  "Orvanta LX: MIT licence\n"                                  \
  "Qt 6 (linked dynamically): LGPL-3.0\n"                      \
  "libsndfile (linked dynamically): LGPL-2.1 or later\n"       \
  "libpulse (loaded): LGPL-2.1 or later\n"                     \
  "libcubeb: ISC licence\n"                                    \
  "DSEG7 Classic (embedded font): SIL Open Font Licence 1.1\n" \
  "Roboto Condensed (embedded font): Apache Licence 2.0\n"
