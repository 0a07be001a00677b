// The system's dialogs that let the user choose a file.
#pragma once

#include <string>

namespace platform {

struct OpenDialog {
  std::string title;
  std::string filter;  // name|pattern pairs, e.g. "Text (*.txt)|*.txt|All files (*.*)|*.*"
  std::string default_extension;
};

class FileDialogs {
 public:
  virtual ~FileDialogs() = default;

  // Lets the user choose a file to open; returns its full path, empty when the user does not. The
  // current folder stays. Messages of other windows are handled meanwhile.
  virtual std::string Open(const OpenDialog& dialog) = 0;
};

}  // namespace platform
