#include "tone/sound_routes.h"

#include "base/numbers.h"
#include "tone/quietly.h"

namespace tone {
namespace {

constexpr char kPitchCaption[] = "Actual pitch (Hertz): ";
constexpr std::int16_t kWaveTickMs = 100;
constexpr std::int16_t kBitsPerSample = 16;

}  // namespace

void SoundRoutes::SoundWinmmRND(std::int16_t pitch) {
  Quietly([&] {
    temp_ = platform_.environment.Get("TEMP");
    WriteTone(pitch);
    waves_.WavPlay(WavePath(), true, false);
    scene_.ShowStatus(PitchCaption() + base::BareNumber(pitch));
    WaitUntilStopped(kWaveTickMs);
    waves_.WavPlay("0", false, true);
    DeleteIfThere(WavePath());
  });
}

void SoundRoutes::KillAll() {
  Quietly([&] {
    temp_ = platform_.environment.Get("TEMP");
    killer_.KillProcess("TONE32.dll");
    killer_.KillProcess("TONE16.dll");
    waves_.WavPlay(" ", false, true);
    scene_.ShowStatus(PitchCaption());
    DeleteIfThere(temp_ + "\\sound.ini");
    playing = 0;
    DeleteIfThere(WavePath());
  });
}

std::string SoundRoutes::WavePath() {
  return temp_ + "\\tnfwinmmtmp.wav";
}

void SoundRoutes::WriteTone(std::int16_t pitch) {
  const std::string image =
      waves_.CreateWaveArray(SineSecond(pitch), kSampleRate, kBitsPerSample);
  waves_.WriteWave(WavePath(), image);
}

void SoundRoutes::DeleteIfThere(const std::string& path) {
  Quietly([&] { platform_.files.Delete(path); });
}

std::string SoundRoutes::PitchCaption() const {
  if (language_ != "nl") return kPitchCaption;
  const std::string caption = scene_.StatusCaption();
  return caption.ends_with(' ') ? caption : caption + " ";
}

bool SoundRoutes::Stopped() const {
  return state_.stop_flag == 1 || !scene_.MainWindowVisible();
}

void SoundRoutes::WaitUntilStopped(std::int16_t tick_ms) {
  do {
    platform_.pump.ProcessPending([this] { return Stopped(); });
    waves_.delay(tick_ms);
  } while (!Stopped());
}

}  // namespace tone
