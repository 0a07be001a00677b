#include "platform/simulated/direct_sound.h"

#include "base/errors.h"

namespace platform::simulated {
namespace {

class Counted {
 public:
  explicit Counted(FakeDirectSound& sound) : sound_(sound) { ++sound_.live_objects; }
  ~Counted() { --sound_.live_objects; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

  FakeDirectSound& sound() const { return sound_; }

 private:
  FakeDirectSound& sound_;
};

class FakeBuffer : public DirectSoundBuffer {
 public:
  explicit FakeBuffer(FakeDirectSound& sound) : counted_(sound) {}
  ~FakeBuffer() override { SetPlaying(false); }

  void Play(std::uint32_t flags) override {
    counted_.sound().Call(DirectSoundCall::kPlay, "buffer play " + std::to_string(flags));
    if (stopped_) throw base::RuntimeError(base::ErrorCode::kDeviceError);
    SetPlaying(true);
  }
  void Stop() override {
    counted_.sound().Call(DirectSoundCall::kStop, "buffer stop");
    SetPlaying(false);
    stopped_ = true;
  }
  void SetFrequency(std::uint32_t frequency) override {
    counted_.sound().Call(DirectSoundCall::kPlay, "buffer frequency " + std::to_string(frequency));
  }

 private:
  void SetPlaying(bool playing) {
    if (playing == playing_) return;
    playing_ = playing;
    counted_.sound().playing_buffers += playing ? 1 : -1;
  }

  Counted counted_;
  bool playing_ = false;
  bool stopped_ = false;
};

class FakeDevice : public DirectSoundDevice {
 public:
  explicit FakeDevice(FakeDirectSound& sound) : counted_(sound) {}

  void SetCooperativeLevel(ui::WindowView&, std::uint32_t level) override {
    counted_.sound().Call(DirectSoundCall::kLevel, "cooperative level " + std::to_string(level));
  }

  std::unique_ptr<DirectSoundBuffer> CreateBuffer(const WaveFormat& format, const std::string& data,
                                                  std::uint32_t flags) override {
    counted_.sound().Call(DirectSoundCall::kBuffer,
                          "buffer of " + std::to_string(data.size()) + " bytes, " +
                              std::to_string(format.sample_rate) + " Hz, " +
                              std::to_string(format.channels) + " channels, " +
                              std::to_string(format.bits_per_sample) + " bits, flags " +
                              std::to_string(flags));
    return std::make_unique<FakeBuffer>(counted_.sound());
  }

 private:
  Counted counted_;
};

class FakeRoot : public DirectSoundRoot {
 public:
  explicit FakeRoot(FakeDirectSound& sound) : counted_(sound) {}

  std::unique_ptr<DirectSoundDevice> CreateDevice() override {
    counted_.sound().Call(DirectSoundCall::kDevice, "device");
    return std::make_unique<FakeDevice>(counted_.sound());
  }

 private:
  Counted counted_;
};

}  // namespace

std::unique_ptr<DirectSoundRoot> FakeDirectSound::Create() {
  Call(DirectSoundCall::kRoot, "root");
  return std::make_unique<FakeRoot>(*this);
}

void FakeDirectSound::Call(DirectSoundCall call, const std::string& text) {
  if (fails_[call]) throw base::RuntimeError(base::ErrorCode::kDeviceError);
  journal_.Add(Kind::kSound, "directsound " + text);
}

}  // namespace platform::simulated
