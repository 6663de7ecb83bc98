// A drive whose discs are images: a folder, and a tray that takes any CUE sheet.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/disc/disc_layout.h"
#include "platform/disc/disc_source.h"
#include "platform/disc/image_file.h"
#include "platform/linux/unique_fd.h"

namespace orvanta {

/// A disc made of an image: its layout and its open files.
class DiscImage {
 public:
  /// nullptr, and why in `error`, for a sheet that is refused.
  static std::unique_ptr<DiscImage> open(const std::string& cuePath, std::string& error);

  const Toc& toc() const { return layout_.toc; }
  const std::string& firstEntry() const { return firstEntry_; }
  const SheetTexts& texts() const { return texts_; }
  bool read(int frame, int count, int16_t* samples);
  /// The first block of its data session, from the start of the disc; -1 where it has none.
  int dataStart() const;
  /// The 2048 bytes of one of its blocks.
  bool readBlock(int block, unsigned char* bytes);
  /// What has become of a file of the image since the disc was put in; "" for nothing.
  std::string fate() const;

 private:
  bool readPiece(const Segment& segment, int frame, int count, int16_t* samples);
  const Segment* segmentAt(int frame) const;
  std::string entryOfDisc();

  DiscLayout layout_;
  std::vector<std::unique_ptr<ImageFile>> files_;
  std::vector<std::string> names_;  ///< of the files, as a message tells them
  std::string firstEntry_;
  SheetTexts texts_;
};

class ImageDrive : public DiscSource {
 public:
  /// `folder`: its first CUE sheet, by name, is the disc. `disc`: a sheet to put in instead; one
  /// that is refused leaves the disc in the tray that is there. `memory`: a
  /// file that keeps, for the next process, which image was put in; "" for none. What is refused here is
  /// told by takeNotice().
  explicit ImageDrive(std::string folder, const std::string& disc = "", std::string memory = "");

  bool lock() override;
  DriveStatus poll() override;
  const Toc& toc() const override;
  std::string firstEntry() const override;
  SheetTexts texts() const override;
  std::string missing() const override;
  std::string sheet() const override { return disc_ && !open_ ? sheet_ : ""; }
  std::string takeNotice() override { return std::exchange(notice_, {}); }
  bool read(int frame, int count, int16_t* samples) override;
  void openTray() override;
  void closeTray() override;
  std::string accept(const std::string& imagePath) override;

 private:
  std::string firstSheet() const;
  void takeFirstSheet();
  /// Puts an image in; false where it is refused.
  bool take(const std::string& sheet, std::string& why);
  void takeRemembered();
  bool remember(const std::string& imagePath) const;

  std::string folder_;
  std::string memory_;
  std::string notice_;
  std::string tried_;  ///< sheet of the folder that was refused, not to be tried each second
  std::string sheet_;  ///< of the disc that is in
  std::string nextSheet_;
  std::unique_ptr<DiscImage> disc_;
  std::unique_ptr<DiscImage> next_;  ///< accepted, for the tray's next closing
  UniqueFd lock_;
  bool open_ = false;
  bool fateTold_ = false;  ///< of the disc that is in
};

/// What a tray.dat says: the drive's folder, and the image that was put into it last; "" for a file that says
/// nothing of `folder`.
std::string rememberedImage(std::string_view bytes, const std::string& folder);

}  // namespace orvanta
