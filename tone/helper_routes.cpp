#include "tone/helper_routes.h"

#include "base/numbers.h"
#include "tone/quietly.h"

namespace tone {
namespace {

constexpr std::int16_t kSweepTop = 32000;
constexpr std::int16_t kSweepStep = 200;
constexpr std::int16_t kSweepRestart = 100;
constexpr std::int16_t kSweepTickMs = 200;

}  // namespace

void HelperRoutes::Sound16(std::int16_t pitch) {
  PlayByHelper(pitch, "16");
}

void HelperRoutes::Sound32(std::int16_t pitch) {
  PlayByHelper(pitch, "32");
}

void HelperRoutes::PlayByHelper(std::int16_t pitch, const std::string& bit) {
  Quietly([&] {
    support_.ReadTempFolder();
    support_.state.stop_flag = 0;
    support_.WriteHandOver(pitch);
    StartHelper(bit);
    support_.WaitUntilStopped(kHelperTickMs);
    support_.KillAll();
  });
}

void HelperRoutes::LowToHigh(const std::string& bit) {
  Quietly([&] {
    support_.ReadTempFolder();
    sweep_pitch_ = 0;
    support_.WriteHandOver("1");
    support_.ShowPitchCaption();
    StartHelper(bit);
    do {
      support_.HandleMessages();
      if (sweep_pitch_ == 1) sweep_pitch_ = 0;
      sweep_pitch_ = base::ToInt16(sweep_pitch_ + kSweepStep);
      if (sweep_pitch_ >= kSweepTop) Restart(bit);
      ShowSweep(bit);
      support_.Pause(kSweepTickMs);
    } while (!support_.Stopped());
    support_.KillAll();
  });
}

// A helper that is missing or blocked leaves the route silent; only Stop ends it.
void HelperRoutes::StartHelper(const std::string& bit) {
  Quietly([&] {
    if (bit == "16") support_.services.processes.StartHidden("cmd /c play16.exe");
    if (bit == "32") support_.services.processes.StartHidden("tone32.dll");
  });
}

// The 16-bit helper is not ended first: it ends by itself at the top of its sweep.
void HelperRoutes::Restart(const std::string& bit) {
  if (bit == "32") {
    support_.scene.ShowStatus("Resetting...");
    support_.killer.KillProcess("TONE" + bit + ".dll");
  }
  StartHelper(bit);
  sweep_pitch_ = kSweepRestart;
}

void HelperRoutes::ShowSweep(const std::string& bit) {
  if (bit == "32") {
    support_.ShowPitch(sweep_pitch_);
    support_.DrawStep(sweep_pitch_);
  }
  if (bit == "16") support_.scene.ShowStatus(support_.scene.StatusCaption());
}

}  // namespace tone
