// The room of the CDDB: looking a disc up, and submitting it.
#pragma once

#include "cddb/auto_lookup.h"
#include "cddb/cddb_window.h"
#include "cddb/mail_window.h"
#include "cddb/ports.h"
#include "cddb/submitter.h"

namespace orvanta {

/// Its windows.
struct CddbForms {
  cddbmain& online;
  cddbcatg& category;
  cddbmail& mail;
};

struct Cddb {
  Cddb(const CddbPorts& ports, CdData& cdData, acdtabs& editor, const CddbForms& forms, const CDForm& faceplate, SharedState& state,
       CddbUpward& upward)
      : window(ports, cdData, editor, forms.online, state, upward),
        lookup(ports, window, cdData, faceplate, state, upward),
        mail(ports, editor, forms.mail),
        submitter(ports, cdData, window, mail, editor, forms.category, state) {}

  CddbWindow window;
  AutoLookup lookup;
  MailWindow mail;
  Submitter submitter;
};

}  // namespace orvanta
