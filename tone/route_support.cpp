#include "tone/route_support.h"

#include "base/numbers.h"
#include "tone/quietly.h"

namespace tone {
namespace {

constexpr char kPitchCaption[] = "Actual pitch (Hertz): ";
constexpr std::int16_t kBitsPerSample = 16;
constexpr std::int16_t kStillSine = 930;

}  // namespace

void RouteSupport::KillAll() {
  Quietly([this] {
    ReadTempFolder();
    killer.KillProcess("TONE32.dll");
    killer.KillProcess("TONE16.dll");
    waves.WavPlay(" ", false, true);
    ShowPitchCaption();
    DeleteIfThere(HandOverPath());
    playing = 0;
    DeleteIfThere(WavePath());
  });
}

void RouteSupport::ReadTempFolder() {
  temp_ = services.environment.Get("TEMP");
}

void RouteSupport::WriteTone(std::int32_t pitch) {
  waves.WriteWave(WavePath(),
                  waves.CreateWaveArray(SineSecond(pitch), kSampleRate, kBitsPerSample));
}

void RouteSupport::DeleteIfThere(const std::string& path) {
  Quietly([&] { services.files.Delete(path); });
}

void RouteSupport::ShowPitchCaption() {
  scene.ShowStatus(PitchCaption());
}

void RouteSupport::ShowPitch(std::int32_t pitch) {
  scene.ShowStatus(PitchCaption() + base::BareNumber(pitch));
}

void RouteSupport::DrawStep(std::int16_t pitch) {
  scene.DrawSine(pitch, kStillSine);
}

bool RouteSupport::Stopped() const {
  return state.stop_flag == 1 || !scene.MainWindowVisible();
}

void RouteSupport::HandleMessages() {
  services.pump.ProcessPending([this] { return Stopped(); });
}

void RouteSupport::Pause(std::int16_t time_ms) {
  waves.Pause(time_ms, [this] { return Stopped(); });
}

void RouteSupport::WaitUntilStopped(std::int16_t tick_ms) {
  do {
    HandleMessages();
    Pause(tick_ms);
  } while (!Stopped());
}

std::string RouteSupport::PitchCaption() const {
  if (language_ != "nl") return kPitchCaption;
  const std::string caption = scene.StatusCaption();
  return caption.ends_with(' ') ? caption : caption + " ";
}

}  // namespace tone
