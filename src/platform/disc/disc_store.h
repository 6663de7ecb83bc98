// Where a disc's files are copied to, so that programs can be started from them.
#pragma once

#include <string>
#include <utility>

namespace orvanta {

/// A folder for each copy among those of other decks, which may have ended while a program of theirs runs on.
class DiscStore {
 public:
  /// `stores`: where all of them lie; made when it is needed.
  explicit DiscStore(std::string stores) : stores_(std::move(stores)) {}

  /// An empty folder of this process for this user alone. What no deck and no program uses any more goes first. False when
  /// there can be none.
  bool renew();
  void drop();
  /// "" before the first.
  const std::string& folder() const { return folder_; }

 private:
  void clear() const;

  std::string stores_;
  std::string folder_;
};

}  // namespace orvanta
