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
  /// `sheet`: the image in the tray now, "" for none. `store`: a folder that is ours, made when it is needed and cleared before
  /// another disc's files go there. `yield` is called at times while files are copied.
  ImageData(std::function<std::string()> sheet, std::string store, std::function<void()> yield);
  ~ImageData() override;

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
  bool copy(const IsoFile& file);

  std::function<std::string()> sheet_;
  std::string store_;
  std::function<void()> yield_;
  std::string opened_;  ///< sheet of what is held below
  std::unique_ptr<DiscImage> image_;
  std::vector<IsoFile> files_;
  std::string stored_;  ///< sheet whose files lie in the store, whole
  FolderData copied_;
};

}  // namespace orvanta
