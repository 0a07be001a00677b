#include "tone/winmm_routes.h"

#include "base/numbers.h"
#include "base/pitches.h"
#include "base/error_trap.h"

namespace tone {
namespace {

constexpr std::int16_t kSweepTickMs = 75;

}  // namespace

void WinmmRoutes::SoundWinmmRND(std::int16_t pitch) {
  base::Quietly([&] {
    support_.ReadTempFolder();
    StartTone(pitch);
    support_.ShowPitch(pitch);
    support_.WaitUntilStopped(kWaveTickMs);
    StopTone();
    support_.DeleteIfThere(support_.WavePath());
  });
}

void WinmmRoutes::SoundWinmmRNDTMP(std::int16_t pitch, std::int16_t Duration) {
  base::Quietly([&] {
    support_.ReadTempFolder();
    StartTone(pitch);
    support_.waves.delay(Duration);
    StopTone();
    support_.DeleteIfThere(support_.WavePath());
  });
}

void WinmmRoutes::SoundWinmm(std::int16_t pitch, const std::string& modeval) {
  base::Quietly([&] {
    support_.waves.WavPlay("tonedx" + modeval + ".dll", true, false);
    support_.ShowPitch(pitch);
    support_.WaitUntilStopped(kWaveTickMs);
    StopTone();
  });
}

void WinmmRoutes::SoundWinmmLTH() {
  base::Quietly([this] {
    support_.ReadTempFolder();
    std::int16_t pitch = 0;
    do {
      support_.HandleMessages();
      if (pitch >= base::kHighestPitch) pitch = 0;
      pitch = base::ToInt16(pitch + base::kSweepStep);
      StartTone(pitch);
      support_.ShowPitch(pitch);
      support_.DrawStep(pitch);
      support_.Pause(kSweepTickMs);
      StopTone();
    } while (!support_.Stopped());
    StopTone();
    support_.DeleteIfThere(support_.WavePath());
  });
}

void WinmmRoutes::StartTone(std::int32_t pitch) {
  support_.WriteTone(pitch);
  support_.waves.WavPlay(support_.WavePath(), true, false);
}

void WinmmRoutes::StopTone() {
  support_.waves.WavPlay("0", false, true);
}

}  // namespace tone
