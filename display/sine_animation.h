// The sine preview of the main window, and DrawSine, which draws it still or moving.
//
// A moving preview is a timer of the message pump, not a loop: whatever the program waits for, the
// preview moves on, and no call of DrawSine waits for its end. At most one moves.
#pragma once

#include <cstdint>
#include <memory>

#include "base/error_trap.h"
#include "platform/platform.h"
#include "settings/main_state.h"
#include "ui/controls.h"

namespace display {

// Belongs to the main window, like the picture box that it draws into.
class SineAnimation {
 public:
  SineAnimation(platform::Platform& platform, settings::MainState& state, ui::PictureBox& picture,
                base::ErrorReporter& errors)
      : timers_(platform.timers), state_(state), picture_(picture), errors_(errors) {}

  // Moves the wave on from `phase` from now on, a step every frame; in place of the one that moves
  // already. It ends, and the picture is cleared, when the sine-stop flag is 1.
  void Start(float angular_step, std::int32_t phase);

  // Sets the sine-stop flag and ends at once.
  void Stop();

  // One still frame.
  void DrawFrame(float angular_step, std::int32_t phase);

  bool Running() const { return timer_ != nullptr; }

 private:
  void Tick();

  platform::Timers& timers_;
  settings::MainState& state_;
  ui::PictureBox& picture_;
  base::ErrorReporter& errors_;
  float angular_step_ = 0;
  std::int32_t phase_ = 0;
  std::unique_ptr<platform::Timer> timer_;
};

class SineDrawing {
 public:
  SineDrawing(settings::MainState& state, SineAnimation& animation, base::ErrorReporter& errors)
      : state_(state), animation_(animation), errors_(errors) {}

  // Shows the sine wave of `pitch` Hz: moving (base::kMovingSine), as one still picture
  // (base::kStillSine), or in any other mode not at all. Sets the sine-stop flag to 0. Error value
  // kDrawSine.
  void DrawSine(std::int16_t pitch, std::int16_t mode);

 private:
  static constexpr std::int32_t kFirstPhase = 0;

  settings::MainState& state_;
  SineAnimation& animation_;
  base::ErrorReporter& errors_;
};

}  // namespace display
