#include "tone/route_support.h"

#include "base/error_trap.h"
#include "base/numbers.h"
#include "base/sine_modes.h"
#include "base/text.h"
#include "lang/languages.h"
#include "tone/helper_programs.h"

namespace tone {
namespace {

constexpr char kPitchCaption[] = "Actual pitch (Hertz): ";
constexpr std::int16_t kBitsPerSample = 16;

}  // namespace

void RouteSupport::KillAll() {
  base::Quietly([this] {
    ReadTempFolder();
    HelperPrograms(platform_).EndAll();
    waves_.WavPlay(" ", false, true);
    ShowPitchCaption();
    DeleteIfThere(HandOverPath());
    playing = 0;
    DeleteIfThere(WavePath());
  });
}

void RouteSupport::ReadTempFolder() {
  temp_ = platform_.environment.Get("TEMP");
}

std::string RouteSupport::WavePath() const {
  return own_wave_.empty() ? temp_ + "\\tnfwinmmtmp.wav" : own_wave_;
}

void RouteSupport::WriteHandOver(const std::string& line) {
  platform_.Texts().Write(HandOverPath(), base::Line(line));
}

void RouteSupport::WriteHandOver(std::int16_t pitch) {
  WriteHandOver(base::SignedNumber(pitch) + " ");
}

void RouteSupport::WriteTone(std::int32_t pitch) {
  const std::string image = waves_.CreateWaveArray(SineSecond(pitch), kSampleRate, kBitsPerSample);
  if (waves_.WriteWave(WavePath(), image) || !platform_.files.Exists(WavePath())) return;
  own_wave_ = platform_.files.TemporaryName(WavePath());
  waves_.WriteWave(own_wave_, image);
}

void RouteSupport::DeleteIfThere(const std::string& path) {
  base::Quietly([&] { platform_.files.Delete(path); });
}

void RouteSupport::ShowPitchCaption() {
  scene_.ShowStatus(PitchCaption());
}

void RouteSupport::ShowPitch(std::int32_t pitch) {
  scene_.ShowStatus(PitchCaption() + base::BareNumber(pitch));
}

void RouteSupport::DrawStep(std::int16_t pitch) {
  scene_.DrawSine(pitch, base::kStillSine);
}

bool RouteSupport::Stopped() const {
  return state_.stop_flag == 1 || !scene_.MainWindowVisible();
}

void RouteSupport::HandleMessages() {
  platform_.pump.ProcessPending([this] { return Stopped(); });
}

void RouteSupport::Pause(std::int16_t time_ms) {
  waves_.Pause(time_ms, [this] { return Stopped(); });
}

void RouteSupport::WaitUntilStopped(std::int16_t tick_ms) {
  do {
    HandleMessages();
    Pause(tick_ms);
  } while (!Stopped());
}

std::string RouteSupport::PitchCaption() const {
  if (!lang::IsTranslated(language_)) return kPitchCaption;
  const std::string caption = scene_.StatusCaption();
  return caption.ends_with(' ') ? caption : caption + " ";
}

}  // namespace tone
