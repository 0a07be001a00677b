// The default sound device, for trials of the hearing test.
#pragma once

#include <vector>

#include "hearing/tone_output.h"
#include "helpers/mixer.h"
#include "platform/windows/api/wave_out_functions.h"

namespace helpers {

class WaveOutput final : public hearing::ToneOutput {
 public:
  WaveOutput() = default;
  ~WaveOutput() override { Close(); }
  WaveOutput(const WaveOutput&) = delete;
  WaveOutput& operator=(const WaveOutput&) = delete;

  std::optional<Rates> Open() override;
  bool Play(const std::vector<std::int16_t>& samples) override;
  bool Played() const override;
  void Close() override;

 private:
  bool OpenAt(std::uint32_t rate_hz);
  void Forget();

  platform::windows::WaveOutFunctions wave_out_;
  Mixer mixer_{COINIT_APARTMENTTHREADED};
  HWAVEOUT device_ = nullptr;
  std::vector<std::int16_t> samples_;  // what header_ plays
  WAVEHDR header_{};
};

}  // namespace helpers
