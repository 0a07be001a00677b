#include "tone/direct_sound_routes.h"

#include "base/error_trap.h"
#include "tone/wave_file.h"

namespace tone {

void DirectSoundRoutes::ToneDXRND(std::int16_t pitch) {
  base::Quietly([&] {
    support_.ReadTempFolder();
    support_.WriteTone(pitch);
    support_.Loop(support_.WavePath());
    CreateDevice();
    PlayBuffer(support_.WavePath());
    support_.ShowPitch(pitch);
    support_.WaitUntilStopped(kWaveTickMs, [this] { buffer_->Stop(); });
    support_.DeleteIfThere(support_.WavePath());
  });
}

void DirectSoundRoutes::ToneDXRNDTMP(std::int16_t pitch, std::int16_t Duration) {
  base::Quietly([&] {
    support_.ReadTempFolder();
    support_.WriteTone(pitch);
    CreateDevice();
    PlayBuffer(support_.WavePath());
    support_.Wait(Duration);
    buffer_->Stop();
    support_.DeleteIfThere(support_.WavePath());
  });
}

void DirectSoundRoutes::ToneDX(std::int32_t pitch, const std::string& modeval, std::int32_t delay) {
  base::Quietly([&] {
    CreateDevice();
    PlayBuffer("tonedx" + modeval + ".dll");
    if (delay != 0) buffer_->SetFrequency(static_cast<std::uint32_t>(delay));
    support_.ShowPitch(pitch);
    support_.WaitUntilStopped(kWaveTickMs, [this] { buffer_->Stop(); });
  });
}

void DirectSoundRoutes::CreateDevice() {
  if (!root_) root_ = platform_.direct_sound.Create();
  buffer_.reset();
  device_ = root_->CreateDevice();
  device_->SetCooperativeLevel(scene_.MainWindowView(), platform::kLevelNormal);
}

void DirectSoundRoutes::PlayBuffer(const std::string& path) {
  const auto image = platform_.Texts().ReadBytes(path);
  if (!image) throw base::RuntimeError(base::ErrorCode::kFileNotFound);
  const auto wave = ParseWaveFile(*image);
  if (!wave) throw base::RuntimeError(base::ErrorCode::kInvalidCall);
  buffer_ = device_->CreateBuffer(
      wave->format, wave->data, platform::kBufferControlFrequency | platform::kBufferControlVolume);
  buffer_->Play(platform::kBufferLooping);
}

}  // namespace tone
