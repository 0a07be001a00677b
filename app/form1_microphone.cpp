// The microphone display of the main window: what is recorded, drawn as it comes.
#include "app/form1.h"
#include "display/pictures.h"

namespace app {
namespace {

constexpr std::int32_t kSamplesPerSecond = 44100;
constexpr std::int16_t kBitsPerSample = 16;
constexpr std::int16_t kChannels = 2;
constexpr std::int32_t kDefaultHalfBuffer = 0;
constexpr char kDefaultDevice[] = "";

}  // namespace

void Form1::StartCapture() {
  base::TrapErrors(context_.errors, base::ErrorValue::kStartCapture, [&] {
    DirectSoundRecord = std::make_unique<display::frmDX_Record>(platform_, context_.errors, *this);
    DirectSoundRecord->GotWaveData = [this](auto block, auto bits_per_sample, auto channels) {
      DirectSoundRecord_GotWaveData(block, bits_per_sample, channels);
    };
    const std::string failure = DirectSoundRecord->Initialize(
        kSamplesPerSecond, kBitsPerSample, kChannels, kDefaultHalfBuffer, kDefaultDevice);
    if (failure.empty()) {
      DirectSoundRecord->SoundPlay();
      return;
    }
    DirectSoundRecord.reset();
    platform_.messages.Show(failure, "DirectSound Error", platform::MessageIcon::kExclamation,
                            platform::MessageButtons::kOk);
    microinputonoff.SetChecked(false);
    Program(context_).WriteLine(settings::kMicrophoneON, settings::YesNo(false));
    state_.MicrophoneON = 0;
  });
}

void Form1::StopCapture() {
  base::TrapErrors(context_.errors, base::ErrorValue::kStopCapture, [this] {
    if (!DirectSoundRecord) return;
    DirectSoundRecord->SoundStop();
    DirectSoundRecord->UninitializeSound();
  });
}

void Form1::EndCapture() {
  StopCapture();
  if (DirectSoundRecord) DirectSoundRecord->SoundStop();
  DirectSoundRecord.reset();
}

void Form1::DirectSoundRecord_GotWaveData(std::span<const std::uint8_t> block,
                                          std::int16_t bits_per_sample, std::int16_t channels) {
  // Nobody sees it; and a drawing that fails is not tried again while its error is shown.
  if (!Visible() || !picWave.CanBeSeen()) return;
  base::TrapErrors(context_.errors, base::ErrorValue::kGotWaveData, [&] {
    const bool stereo = channels == 2;
    if (bits_per_sample == 8) Draw8(block, stereo);
    if (bits_per_sample == 16) Draw16(block, stereo);
  });
}

void Form1::Draw16(std::span<const std::uint8_t> block, bool stereo) {
  base::TrapErrors(context_.errors, base::ErrorValue::kDraw16,
                   [&] { DrawWave(display::Samples16(block), stereo); });
}

void Form1::DrawWave(std::span<const std::int16_t> samples, bool stereo) {
  base::TrapErrors(context_.errors, base::ErrorValue::kDrawWave,
                   [&] { ShowWave(display::DrawSamples(samples, MicrophoneView(stereo))); });
}

void Form1::Draw8(std::span<const std::uint8_t> block, bool stereo) {
  base::TrapErrors(context_.errors, base::ErrorValue::kDraw8,
                   [&] { ShowWave(display::DrawSamples8(block, MicrophoneView(stereo))); });
}

display::WaveView Form1::MicrophoneView(bool stereo) const {
  return {picWave.Bounds().width * display::kTwipsPerPixel, state_.Microphone, stereo};
}

void Form1::ShowWave(const display::WaveDrawing& drawing) {
  picWave.Draw([&](ui::Canvas& canvas) { display::Draw(drawing, canvas); });
}

}  // namespace app
