#include "tone/helper_routes.h"

#include "base/error_trap.h"
#include "base/numbers.h"
#include "base/pitches.h"

namespace tone {
namespace {

constexpr std::int16_t kSweepRestart = 100;

}  // namespace

void HelperRoutes::Sound16(std::int16_t pitch) {
  PlayByHelper(pitch, base::Output::kHelper16);
}

void HelperRoutes::Sound32(std::int16_t pitch) {
  PlayByHelper(pitch, base::Output::kHelper32);
}

void HelperRoutes::PlayByHelper(std::int16_t pitch, base::Output output) {
  base::Quietly([&] {
    support_.ReadTempFolder();
    support_.BeginUnstopped();
    support_.WriteHandOver(pitch);
    StartHelper(output);
    support_.WaitUntilStopped(kHelperTickMs);
    support_.KillAll();
  });
}

void HelperRoutes::LowToHigh(base::SoundMode mode) {
  const base::Output output = base::OutputOf(mode);
  base::Quietly([&] {
    support_.ReadTempFolder();
    const Awake awake = support_.KeepAwake();
    sweep_pitch_ = 0;
    support_.WriteHandOver(base::BareNumber(base::kHelperSweep));
    support_.ShowPitchCaption();
    StartHelper(output);
    do {
      support_.HandleMessages();
      const platform::Moment begin = support_.Now();
      if (sweep_pitch_ == 1) sweep_pitch_ = 0;
      sweep_pitch_ = base::ToInt16(sweep_pitch_ + base::kSweepStep);
      if (sweep_pitch_ >= base::kHighestPitch) Restart(output);
      ShowSweep(output);
      support_.FinishStep(begin, base::kHelperStepMs);
    } while (!support_.Stopped());
    support_.KillAll();
  });
}

// A helper that is missing or blocked leaves the route silent; only Stop ends it.
void HelperRoutes::StartHelper(base::Output output) {
  base::Quietly([&] { helpers_.Start(output, HelperPrograms::Named::kAlone); });
}

// The 16-bit helper is not ended first: it ends by itself at the top of its sweep.
void HelperRoutes::Restart(base::Output output) {
  if (output == base::Output::kHelper32) {
    support_.ShowStatus("Resetting...");
    helpers_.End(output);
  }
  StartHelper(output);
  sweep_pitch_ = kSweepRestart;
}

void HelperRoutes::ShowSweep(base::Output output) {
  if (output == base::Output::kHelper32) {
    support_.ShowPitch(sweep_pitch_);
    support_.DrawStep(sweep_pitch_);
  }
  if (output == base::Output::kHelper16) support_.ShowLoadedCaption();
}

}  // namespace tone
