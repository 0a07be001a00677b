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
// Method: 210 blocks of 210 samples around the middle block. With the middle block's sines and
// cosines at m, those of the blocks n after and n before it are sin(m +- n) = sin m cos n +- cos m
// sin n, and both tables are made from 51 sines and cosines by the same rule. The sums have 16 bits
// behind the point. They differ from the plain formula by less than 2^-16 from rounding there and
// 2e-6 from rounding phases: each is at most 306,000 rad, so that double precision moves the plain
// formula's by at most 2^-35 rad and the two partial ones, which are at most half of it, by 2^-36
// rad each, times the amplitude. A sample within 2^-15 of a rounding tie is computed by the plain
// formula instead. So the samples are the plain formula's, bit for bit, whatever the machine.
//
// `pitch_hz` is a whole number of Hz. Throws base::RuntimeError kOverflow when pitch * i leaves
// 32 bits.
SampleBuffer SineSecond(std::int32_t pitch_hz);

inline constexpr std::size_t kSineFrameBytes = 4;
inline constexpr std::size_t kSineBytes = kSampleRate * kSineFrameBytes;

// The same second as 16-bit samples of both channels, frame by frame, low byte first: writes
// kSineBytes bytes.
void WriteSineFrames(std::int32_t pitch_hz, char* frames);

}  // namespace tone
