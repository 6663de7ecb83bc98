// Boxes that ask or tell. While one is open, timers and the device's event go on.
#pragma once

#include <optional>
#include <string>

namespace orvanta {

enum class BoxStyle { Information, Question, Warning, Critical };

struct FileQuestion {
  std::string title;
  std::string folder;
  std::string name;    ///< proposed file name
  std::string filter;  ///< "HTML File (*.htm)|*.htm", pairs of words and patterns
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// Plain text; returns when the user has closed it.
  virtual void message(BoxStyle style, const std::string& title, const std::string& text) = 0;
  virtual bool askYesNo(BoxStyle style, const std::string& title, const std::string& text) = 0;
  /// What may do harm: a warning that is answered with No unless the user says Yes to it.
  virtual bool confirm(const std::string& title, const std::string& text) = 0;
  /// nullopt when cancelled, as for the file questions.
  virtual std::optional<std::string> askText(const std::string& title, const std::string& prompt, const std::string& proposed) = 0;
  virtual std::optional<std::string> askOpenFile(const FileQuestion& question) = 0;
  virtual std::optional<std::string> askSaveFile(const FileQuestion& question) = 0;
  /// One of the boxes stands: a restart and an exit by program wait.
  virtual bool open() const = 0;
  /// Brings the box that stands before all other windows.
  virtual void raiseOpen() = 0;
};

}  // namespace orvanta
