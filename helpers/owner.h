// The program that a helper sounds for (base/owner_text.h): when it has ended, however it ended,
// the helper's time is over, too.
#pragma once

#include "platform/windows/api/handles.h"
#include "platform/windows/api/windows_api.h"

namespace helpers {

class OwnerProcess {
 public:
  // The one that the environment names. A helper that was started by hand has none.
  OwnerProcess();

  // There was one, and it has ended.
  bool Ended() const;

 private:
  bool ended_before_ = false;
  platform::windows::KernelHandle process_;
};

}  // namespace helpers
