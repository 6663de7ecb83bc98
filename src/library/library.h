// The room of a disc's texts: CD Data, playlist and CD Info.
#pragma once

#include "library/cd_data.h"
#include "library/cd_info.h"
#include "library/disc_print.h"
#include "library/genres.h"
#include "library/html_export.h"
#include "library/playlist.h"
#include "playback/playback.h"

namespace orvanta {

/// Its windows.
struct LibraryForms {
  acdtabs& editor;
  cdplist& playlist;
  cdartext& info;
};

struct Library {
  Library(const LibraryPorts& ports, Playback& playback, const LibraryForms& forms, CDForm& faceplate, SharedState& state,
          LibraryUpward& upward)
      : genres(ports.files, ports.dialogs, state),
        html(ports.files, ports.dialogs, forms.editor, state.settings),
        print(ports.printer, forms.editor),
        playlist(ports, playback.engine, playback.modes, playback.display, forms.playlist, faceplate, state),
        info(ports, playback.engine, playback.modes, forms.info, faceplate, state, upward),
        cdData(ports, {genres, html, print, playback.display, playlist, info}, forms.editor, faceplate, state, upward) {}

  Genres genres;
  HtmlExport html;
  DiscPrint print;
  Playlist playlist;
  CdInfo info;
  CdData cdData;
};

}  // namespace orvanta
