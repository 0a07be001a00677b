#include "platform/simulated/faulty_sound.h"

#include <utility>

namespace platform::simulated {
namespace {

using base::ErrorCode;

constexpr ErrorCode kDevice = ErrorCode::kDeviceError;

class FaultySilence : public SilentSound {
 public:
  FaultySilence(std::unique_ptr<SilentSound> real, Calls& calls)
      : real_(std::move(real)), calls_(calls) {}

  bool Plays() override { return !calls_.Next("silence.Plays") && real_->Plays(); }

 private:
  std::unique_ptr<SilentSound> real_;
  Calls& calls_;
};

class FaultyBuffer : public DirectSoundBuffer {
 public:
  FaultyBuffer(std::unique_ptr<DirectSoundBuffer> real, Calls& calls)
      : real_(std::move(real)), calls_(calls) {}

  void Play(std::uint32_t flags) override {
    calls_.Enter("direct_sound.Play", {}, kDevice);
    real_->Play(flags);
  }
  void Stop() override {
    calls_.Enter("direct_sound.Stop", {}, kDevice);
    real_->Stop();
  }
  void SetFrequency(std::uint32_t frequency) override {
    calls_.Enter("direct_sound.SetFrequency", {}, kDevice);
    real_->SetFrequency(frequency);
  }

 private:
  std::unique_ptr<DirectSoundBuffer> real_;
  Calls& calls_;
};

class FaultyDevice : public DirectSoundDevice {
 public:
  FaultyDevice(std::unique_ptr<DirectSoundDevice> real, Calls& calls)
      : real_(std::move(real)), calls_(calls) {}

  void SetCooperativeLevel(ui::WindowView& window, std::uint32_t level) override {
    calls_.Enter("direct_sound.SetCooperativeLevel", {}, kDevice);
    real_->SetCooperativeLevel(window, level);
  }
  std::unique_ptr<DirectSoundBuffer> CreateBuffer(const WaveFormat& format, const std::string& data,
                                                  std::uint32_t flags) override {
    calls_.Enter("direct_sound.CreateBuffer", {}, kDevice);
    return std::make_unique<FaultyBuffer>(real_->CreateBuffer(format, data, flags), calls_);
  }

 private:
  std::unique_ptr<DirectSoundDevice> real_;
  Calls& calls_;
};

class FaultyRoot : public DirectSoundRoot {
 public:
  FaultyRoot(std::unique_ptr<DirectSoundRoot> real, Calls& calls)
      : real_(std::move(real)), calls_(calls) {}

  std::unique_ptr<DirectSoundDevice> CreateDevice() override {
    calls_.Enter("direct_sound.CreateDevice", {}, kDevice);
    return std::make_unique<FaultyDevice>(real_->CreateDevice(), calls_);
  }

 private:
  std::unique_ptr<DirectSoundRoot> real_;
  Calls& calls_;
};

class FaultyCaptureBuffer : public CaptureBuffer {
 public:
  FaultyCaptureBuffer(std::unique_ptr<CaptureBuffer> real, Calls& calls)
      : real_(std::move(real)), calls_(calls) {}

  void SetPositions(std::span<const CapturePosition> positions) override {
    calls_.Enter("capture.SetPositions", {}, kDevice);
    real_->SetPositions(positions);
  }
  bool Start(std::uint32_t flags) override {
    return !calls_.Next("capture.Start") && real_->Start(flags);
  }
  bool Stop() override { return !calls_.Next("capture.Stop") && real_->Stop(); }
  bool Read(std::uint32_t offset, std::span<std::uint8_t> bytes) override {
    return !calls_.Next("capture.Read") && real_->Read(offset, bytes);
  }

 private:
  std::unique_ptr<CaptureBuffer> real_;
  Calls& calls_;
};

class FaultyCaptureDevice : public CaptureDevice {
 public:
  FaultyCaptureDevice(std::unique_ptr<CaptureDevice> real, Calls& calls)
      : real_(std::move(real)), calls_(calls) {}

  std::unique_ptr<CaptureBuffer> CreateBuffer(const WaveFormat& format,
                                              std::uint32_t size_bytes) override {
    calls_.Enter("capture.CreateBuffer", {}, kDevice);
    return std::make_unique<FaultyCaptureBuffer>(real_->CreateBuffer(format, size_bytes), calls_);
  }

 private:
  std::unique_ptr<CaptureDevice> real_;
  Calls& calls_;
};

class FaultyCaptureRoot : public CaptureRoot {
 public:
  FaultyCaptureRoot(std::unique_ptr<CaptureRoot> real, Calls& calls)
      : real_(std::move(real)), calls_(calls) {}

  std::vector<std::string> Devices() override {
    calls_.Enter("capture.Devices", {}, kDevice);
    return real_->Devices();
  }
  std::unique_ptr<CaptureDevice> CreateDevice(const std::string& identifier) override {
    calls_.Enter("capture.CreateDevice", {}, kDevice);
    return std::make_unique<FaultyCaptureDevice>(real_->CreateDevice(identifier), calls_);
  }
  std::unique_ptr<CaptureEvent> MakeEvent(std::function<void(std::int32_t)> callback) override {
    calls_.Enter("capture.MakeEvent", {}, kDevice);
    return real_->MakeEvent(std::move(callback));
  }

 private:
  std::unique_ptr<CaptureRoot> real_;
  Calls& calls_;
};

}  // namespace

// Its failure is silent.
void FaultyWaves::Play(const std::string& path, std::uint32_t flags) {
  if (!calls_.Next("waves.Play", path)) real_.Play(path, flags);
}

void FaultyWaves::Stop(std::uint32_t flags) {
  calls_.Enter("waves.Stop", {}, kDevice);
  real_.Stop(flags);
}

std::unique_ptr<SilentSound> FaultyAwakeOutput::Start() {
  if (calls_.Next("awake_output.Start")) return nullptr;
  auto real = real_.Start();
  if (!real) return nullptr;
  return std::make_unique<FaultySilence>(std::move(real), calls_);
}

void FaultyBeeper::Beep(int pitch_hz, int duration_ms) {
  calls_.Enter("beeper.Beep", {}, kDevice);
  real_.Beep(pitch_hz, duration_ms);
}

std::unique_ptr<DirectSoundRoot> FaultyDirectSound::Create() {
  calls_.Enter("direct_sound.Create", {}, kDevice);
  return std::make_unique<FaultyRoot>(real_.Create(), calls_);
}

std::unique_ptr<CaptureRoot> FaultyCapture::Create() {
  calls_.Enter("capture.Create", {}, kDevice);
  return std::make_unique<FaultyCaptureRoot>(real_.Create(), calls_);
}

}  // namespace platform::simulated
