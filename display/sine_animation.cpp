#include "display/sine_animation.h"

#include "base/sine_modes.h"
#include "display/pictures.h"
#include "display/sine_preview.h"
#include "display/twips.h"
#include "ui/window.h"

namespace display {
namespace {

constexpr int kFrameMs = 50;

TwipSize SizeOf(const ui::PictureBox& picture) {
  return {picture.Bounds().width * kTwipsPerPixel, picture.Bounds().height * kTwipsPerPixel};
}

}  // namespace

void SineAnimation::Start(float angular_step, std::int32_t phase) {
  angular_step_ = angular_step;
  phase_ = phase;
  if (!timer_) {
    timer_ = timers_.Start(kFrameMs, [this] {
      picture_.Owner().Handle(
          [this] { base::TrapErrors(errors_, base::ErrorValue::kDrawSine, [this] { Tick(); }); });
    });
  }
  Tick();
}

void SineAnimation::Stop() {
  state_.sine_stop_flag = 1;
  timer_.reset();
  picture_.Clear();
}

void SineAnimation::Tick() {
  if (state_.sine_stop_flag == 1) {
    Stop();
    return;
  }
  phase_ = NextPhase(phase_);
  if (picture_.CanBeSeen()) DrawFrame(angular_step_, phase_);
}

void SineAnimation::DrawFrame(float angular_step, std::int32_t phase) {
  const TwipSize size = SizeOf(picture_);
  picture_.Draw(
      [&](ui::Canvas& canvas) { Draw(SineFrame(angular_step, phase, size), size, canvas); });
}

void SineDrawing::DrawSine(std::int16_t pitch, std::int16_t mode) {
  base::TrapErrors(errors_, base::ErrorValue::kDrawSine, [&] {
    const float angular_step = AngularStep(pitch);
    state_.sine_stop_flag = 0;
    if (mode == base::kMovingSine) animation_.Start(angular_step, kFirstPhase);
    if (mode == base::kStillSine) animation_.DrawFrame(angular_step, kFirstPhase);
  });
}

}  // namespace display
