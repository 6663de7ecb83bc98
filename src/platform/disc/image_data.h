// The files of a disc that is an image: read out of its data track, and copied out before one of them is started.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/disc/folder_data.h"
#include "platform/disc/iso_root.h"

namespace orvanta {

class DiscImage;

class ImageData : public DiscData {
 public:
  /// `sheet`: the image in the tray now, "" for none. `stores`: a folder in which each process has one for a disc's files, made
  /// when it is needed; those of processes that have ended go then. `yield` is called at times while files are copied.
  ImageData(std::function<std::string()> sheet, std::string stores, std::function<void()> yield);
  ~ImageData() override;

  std::string disc() override { return sheet_(); }
  std::vector<std::string> rootFiles() override;
  std::string find(const std::string& way) override;
  std::string read(const std::string& way, size_t most) override;
  std::string bring(const std::string& way) override;
  std::string folder() override { return copyOut() ? store_ : ""; }
  std::string wayOf(const std::string& path) override { return copied_.wayOf(path); }

 private:
  bool open();
  const IsoFile* found(const std::string& way) const;
  bool readBlock(int block, IsoBlock& out) const;
  bool copyOut();
  void clearStores() const;
  bool copyAll(const std::string& sheet);
  bool copy(const IsoFile& file);

  std::function<std::string()> sheet_;
  std::string stores_;
  std::string store_;  ///< this process's own
  std::function<void()> yield_;
  std::string opened_;  ///< sheet of what is held below
  std::unique_ptr<DiscImage> image_;
  std::vector<IsoFile> files_;
  int blocks_ = 0;      ///< copied since the last yield
  std::string stored_;  ///< sheet whose files lie in the store, whole
  FolderData copied_;
};

}  // namespace orvanta
