// One second of a sine tone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tone {

inline constexpr std::int32_t kSampleRate = 44100;  // frames per second
inline constexpr std::size_t kChannels = 2;

// Samples by channel and index, both from 0, as 32-bit integers.
class SampleBuffer {
 public:
  SampleBuffer(std::size_t channels, std::size_t samples)
      : channels_(channels), samples_(samples), values_(channels * samples) {}

  std::size_t channels() const { return channels_; }
  std::size_t samples() const { return samples_; }

  std::int32_t At(std::size_t channel, std::size_t sample) const {
    return values_[sample * channels_ + channel];
  }
  // The samples of all channels from frame `sample` on, frame by frame.
  std::int32_t* Frame(std::size_t sample) { return values_.data() + sample * channels_; }
  const std::int32_t* Frame(std::size_t sample) const {
    return values_.data() + sample * channels_;
  }

  void Set(std::size_t channel, std::size_t sample, std::int32_t value) {
    values_[sample * channels_ + channel] = value;
  }

 private:
  std::size_t channels_;
  std::size_t samples_;
  std::vector<std::int32_t> values_;  // frame by frame
};

// Sample i of both channels is sin(pitch * i * 0.00014247585204429924) * 30000, rounded to the
// nearest integer, ties to even. The constant is 2 pi / 44100 in single precision, so a looped
// second joins itself with a phase step far below what can be heard.
//
// Method: 210 blocks of 210 samples. One sine and cosine per block and per place in a block give
// every sample by sin(a + b) = sin a cos b + cos a sin b, which differs from the plain formula by
// less than 2e-6 of a step: each phase is at most 306,000 rad, so its rounding to double moves it
// by at most 2^-36 rad, and two such roundings times the amplitude are 9e-7. A block with a sample
// closer than 4e-6 to a rounding tie is computed by the plain formula instead. So the samples are
// the plain formula's, bit for bit, whatever the machine.
//
// `pitch_hz` is a whole number of Hz. Throws base::RuntimeError kOverflow when pitch * i leaves
// 32 bits.
SampleBuffer SineSecond(std::int32_t pitch_hz);

}  // namespace tone
