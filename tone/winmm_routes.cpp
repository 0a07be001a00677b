#include "tone/winmm_routes.h"

#include "base/error_trap.h"
#include "base/numbers.h"
#include "base/pitches.h"

namespace tone {
namespace {

constexpr std::int16_t kSweepTickMs = 75;

}  // namespace

void WinmmRoutes::SoundWinmmRND(std::int16_t pitch) {
  base::Quietly([&] {
    support_.ReadTempFolder();
    StartOrStaySilent(pitch);
    support_.ShowPitch(pitch);
    support_.WaitUntilStopped(kWaveTickMs);
    support_.Silence();
    support_.DeleteIfThere(support_.WavePath());
  });
}

std::optional<base::RuntimeError> WinmmRoutes::SoundWinmmRNDTMP(std::int16_t pitch,
                                                                std::int32_t Duration) {
  tone_ended_ = support_.Now();
  return base::Caught([&] {
    support_.ReadTempFolder();
    StartTone(pitch);
    support_.Wait(Duration);
    tone_ended_ = support_.Now();
    support_.Silence();
    support_.DeleteIfThere(support_.WavePath());
  });
}

void WinmmRoutes::SoundWinmm(std::int16_t pitch, const std::string& modeval) {
  base::Quietly([&] {
    support_.Loop("tonedx" + modeval + ".dll");
    support_.ShowPitch(pitch);
    support_.WaitUntilStopped(kWaveTickMs);
    support_.Silence();
  });
}

void WinmmRoutes::SoundWinmmLTH() {
  base::Quietly([this] {
    support_.ReadTempFolder();
    const Awake awake = support_.KeepAwake();
    std::int16_t pitch = 0;
    do {
      support_.HandleMessages();
      if (pitch >= base::kHighestPitch) pitch = 0;
      pitch = base::ToInt16(pitch + base::kSweepStep);
      StartOrStaySilent(pitch);
      const platform::Moment begin = support_.Now();
      support_.ShowPitch(pitch);
      support_.DrawStep(pitch);
      support_.FinishStep(begin, kSweepTickMs);
      support_.Silence();
    } while (!support_.Stopped());
    support_.Silence();
    support_.DeleteIfThere(support_.WavePath());
  });
}

// Only Stop ends what goes on until it is stopped.
void WinmmRoutes::StartOrStaySilent(std::int32_t pitch) {
  base::Quietly([&] { StartTone(pitch); });
}

// The system would sound its own signal, over and over, in place of a file that is not there.
void WinmmRoutes::StartTone(std::int32_t pitch) {
  support_.WriteTone(pitch);
  support_.Loop(support_.WavePath());
}

}  // namespace tone
