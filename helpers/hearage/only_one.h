// One hearing test at a time: a second one has the first come to the front instead.
#pragma once

#include <functional>
#include <optional>

#include "platform/windows/api/handles.h"
#include "platform/windows/api/message_window.h"
#include "platform/windows/api/windows_api.h"

namespace helpers {

class OnlyOne {
 public:
  OnlyOne();

  // Another program of the user's session is it.
  bool Taken() const { return taken_; }

  // Tells that one, which may have begun only just now.
  static void Call();

  // What this one does when it is told, from the message pump.
  void OnCall(std::function<void()> come);

 private:
  platform::windows::KernelHandle mark_;
  bool taken_;
  std::optional<platform::windows::MessageWindow> ear_;
};

}  // namespace helpers
