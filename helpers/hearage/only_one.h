// One hearing test at a time: a second one brings the window of the first to the front instead.
#pragma once

#include "platform/windows/api/handles.h"
#include "platform/windows/api/windows_api.h"

namespace helpers {

class OnlyOne {
 public:
  OnlyOne();

  // Another program of the user's session is it.
  bool Taken() const { return taken_; }

  // Shows that one's window, once it has one.
  static void BringToFront();

 private:
  platform::windows::KernelHandle mark_;
  bool taken_;
};

}  // namespace helpers
