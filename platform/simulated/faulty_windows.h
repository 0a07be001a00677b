// Windows, counted: opening one, and every change that its view is told of.
#pragma once

#include <memory>

#include "platform/simulated/calls.h"
#include "ui/window_system.h"

namespace platform::simulated {

class FaultyWindows : public ui::WindowSystem {
 public:
  FaultyWindows(ui::WindowSystem& real, Calls& calls) : real_(real), calls_(calls) {}

  std::unique_ptr<ui::WindowView> Open(ui::Window& window) override;

 private:
  ui::WindowSystem& real_;
  Calls& calls_;
};

}  // namespace platform::simulated
