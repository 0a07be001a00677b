// Sound out and in, counted.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/awake_output.h"
#include "platform/direct_sound.h"
#include "platform/simulated/calls.h"
#include "platform/sound_capture.h"
#include "platform/system.h"

namespace platform::simulated {

class FaultyWaves : public WavePlayer {
 public:
  FaultyWaves(WavePlayer& real, Calls& calls) : real_(real), calls_(calls) {}

  void Play(const std::string& path, std::uint32_t flags) override;
  void Stop(std::uint32_t flags) override;

 private:
  WavePlayer& real_;
  Calls& calls_;
};

class FaultyAwakeOutput : public AwakeOutput {
 public:
  FaultyAwakeOutput(AwakeOutput& real, Calls& calls) : real_(real), calls_(calls) {}

  // Nothing where it goes wrong, as without a device.
  std::unique_ptr<SilentSound> Start() override;

 private:
  AwakeOutput& real_;
  Calls& calls_;
};

class FaultyBeeper : public Beeper {
 public:
  FaultyBeeper(Beeper& real, Calls& calls) : real_(real), calls_(calls) {}

  void Beep(int pitch_hz, int duration_ms) override;

 private:
  Beeper& real_;
  Calls& calls_;
};

class FaultyDirectSound : public DirectSound {
 public:
  FaultyDirectSound(DirectSound& real, Calls& calls) : real_(real), calls_(calls) {}

  std::unique_ptr<DirectSoundRoot> Create() override;

 private:
  DirectSound& real_;
  Calls& calls_;
};

class FaultyCapture : public SoundCapture {
 public:
  FaultyCapture(SoundCapture& real, Calls& calls) : real_(real), calls_(calls) {}

  std::unique_ptr<CaptureRoot> Create() override;

 private:
  SoundCapture& real_;
  Calls& calls_;
};

}  // namespace platform::simulated
