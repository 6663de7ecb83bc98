// The files of a disc that is an image: read out of its data track, and copied out before one of them is started.
#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/disc/disc_store.h"
#include "platform/disc/folder_data.h"
#include "platform/disc/iso_root.h"

namespace orvanta {

class DiscImage;

class ImageData : public DiscData {
 public:
  /// `sheet`: the image in the tray now, "" for none. `stores`: where the copies of all decks lie. `yield` is called at times while
  /// files are copied.
  ImageData(std::function<std::string()> sheet, std::string stores, std::function<void()> yield);
  ~ImageData() override;

  std::string disc() override { return sheet_(); }
  std::vector<std::string> rootFiles() override;
  std::string find(const std::string& way) override;
  std::string read(const std::string& way, size_t most) override;
  std::string bring(const std::string& way) override;
  std::string folder() override { return copyOut() ? store_.folder() : ""; }
  std::string wayOf(const std::string& path) override { return copied_.wayOf(path); }
  std::vector<std::string> takeUnread() override { return std::exchange(unread_, {}); }

 private:
  bool open();
  const IsoFile* found(const std::string& way) const;
  bool readBlock(int block, IsoBlock& out) const;
  enum class Copied { Whole, Unreadable, BrokenOff };

  bool copyOut();
  bool copyAll(const std::string& sheet);
  Copied copy(const IsoFile& file);
  Copied copyBlocks(const IsoFile& file, std::ostream& out);
  bool endsOnDisc(const IsoFile& file) const;
  bool goesOn();

  std::function<std::string()> sheet_;
  DiscStore store_;
  std::function<void()> yield_;
  std::string opened_;  ///< sheet of what is held below
  std::unique_ptr<DiscImage> image_;
  std::vector<IsoFile> files_;
  int blocks_ = 0;      ///< copied by this process
  int64_t room_ = 0;    ///< bytes that the copy may still grow by
  std::string stored_;  ///< sheet whose files lie in the store, all that can be read
  std::vector<std::string> unread_;
  FolderData copied_;
};

}  // namespace orvanta
