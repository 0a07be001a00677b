#include "tone/route_support.h"

#include "base/error_trap.h"
#include "base/numbers.h"
#include "base/sine_modes.h"
#include "base/text.h"
#include "lang/languages.h"
#include "tone/helper_programs.h"
#include "tone/pace.h"

namespace tone {
namespace {

constexpr char kPitchCaption[] = "Actual pitch (Hertz): ";

}  // namespace

void RouteSupport::KillAll() {
  base::Quietly([this] {
    ReadTempFolder();
    HelperPrograms(platform_).EndAll();
    waves_.WavPlay(" ", false, true);
    base::Quietly([this] { ShowPitchCaption(); });
    DeleteIfThere(HandOverPath());
    playing = 0;
    DeleteIfThere(temp_ + "\\tnfwinmmtmp.wav");
    // The one that a play still under way writes, too: it may never come to delete it.
    if (!state_.own_wave.empty()) DeleteIfThere(state_.own_wave);
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
  const std::string& image = image_.Of(pitch);
  auto failure = waves_.WriteWave(WavePath(), image);
  if (!failure) return;
  if (!platform_.files.Exists(WavePath())) base::ThrowAgain(failure);
  own_wave_ = platform_.files.TemporaryName(WavePath());
  state_.own_wave = own_wave_;
  failure = waves_.WriteWave(own_wave_, image);
  base::ThrowAgain(failure);
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

void RouteSupport::Wait(std::int32_t time_ms) {
  Pace(platform_).Wait(time_ms);
}

Awake RouteSupport::KeepAwake() {
  return Awake(platform_, [this] { return Stopped(); });
}

void RouteSupport::FinishStep(platform::Moment begin, std::int16_t time_ms) {
  PassUntil(begin + std::chrono::milliseconds(time_ms), platform::Grain::kFine, {});
}

void RouteSupport::WaitUntilStopped(std::int16_t tick_ms, const std::function<void()>& silence) {
  do {
    HandleMessages();
    PassUntil(Now() + std::chrono::milliseconds(tick_ms), platform::Grain::kCoarse, silence);
  } while (!Stopped());
}

void RouteSupport::PassUntil(platform::Moment end, platform::Grain grain,
                             const std::function<void()>& silence) {
  if (!platform_.pump.Pass([this] { return Stopped(); }, end, grain)) return;
  if (silence) silence();
  platform_.pump.SleepUntil(end);
}

std::string RouteSupport::PitchCaption() const {
  if (!lang::IsTranslated(language_)) return kPitchCaption;
  const std::string caption = scene_.StatusCaption();
  return caption.ends_with(' ') ? caption : caption + " ";
}

}  // namespace tone
