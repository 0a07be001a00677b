// The tool tip of a label that shows a path shortened: the whole of it.
#pragma once

#include "platform/windows/views/appearance.h"

namespace platform::windows {

class PathTip {
 public:
  // The tool tip's window ends with `parent`, that of the label.
  PathTip(HWND parent, HWND label, const Appearance& appearance);

  // Takes over what the label says.
  void Refresh() const;

 private:
  HWND parent_;
  HWND label_;
  HWND tip_;
};

}  // namespace platform::windows
