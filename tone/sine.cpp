#include "tone/sine.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>

#include "base/numbers.h"

namespace tone {
namespace {

static_assert(std::endian::native == std::endian::little);

constexpr double kRadiansPerSample = 0.00014247585204429924;
constexpr double kAmplitude = 30000.0;
constexpr std::size_t kBlock = 210;   // samples; 210 blocks make a second
constexpr std::size_t kMiddle = 105;  // the middle block

constexpr double kToInteger = 6755399441055744.0;  // 1.5 * 2^52

// Adding this leaves a number with 16 bits behind the point in the low 32 bits of the sum, and
// adding a half more makes the upper 16 of them the nearest integer.
constexpr double kToFixedPoint = kToInteger / 65536 + 0.5;

using Frame = std::uint32_t;  // a sample of each channel
using Block = std::array<Frame, kBlock>;

double Phase(std::int32_t pitch_hz, std::size_t sample) {
  return pitch_hz * static_cast<std::int32_t>(sample) * kRadiansPerSample;
}

// The nearest integer, ties to even, in both channels.
Frame PlainFrame(std::int32_t pitch_hz, std::size_t sample) {
  const double value = std::sin(Phase(pitch_hz, sample)) * kAmplitude;
  return (std::bit_cast<std::uint64_t>(value + kToInteger) & 0xFFFF) * 0x10001;
}

// Sine and cosine, times an amplitude, of the phases of kCount * kGroup samples that are `step`
// samples apart.
template <std::size_t kCount, std::size_t kGroup>
struct Phasors {
  std::array<double, kCount * kGroup> sine;
  std::array<double, kCount * kGroup> cosine;

  Phasors(std::int32_t pitch_hz, std::size_t first, std::size_t step, double amplitude) {
    std::array<double, kGroup> small_sine;
    std::array<double, kGroup> small_cosine;
    for (std::size_t j = 0; j < kGroup; ++j) {
      small_sine[j] = std::sin(Phase(pitch_hz, j * step));
      small_cosine[j] = std::cos(Phase(pitch_hz, j * step));
    }
    for (std::size_t i = 0; i < kCount; ++i) {
      const double phase = Phase(pitch_hz, first + i * kGroup * step);
      const double large_sine = std::sin(phase) * amplitude;
      const double large_cosine = std::cos(phase) * amplitude;
      for (std::size_t j = 0; j < kGroup; ++j) {
        sine[i * kGroup + j] = large_sine * small_cosine[j] + large_cosine * small_sine[j];
        cosine[i * kGroup + j] = large_cosine * small_cosine[j] - large_sine * small_sine[j];
      }
    }
  }
};

class Rotation {
 public:
  Rotation(std::int32_t pitch_hz, char* frames)
      : pitch_hz_(pitch_hz),
        frames_(frames),
        middle_(pitch_hz, kMiddle * kBlock, 1, kAmplitude),
        distances_(pitch_hz, 0, kBlock, 1) {}

  void WriteAll() {
    for (std::size_t distance = 0; distance <= kMiddle; ++distance) WritePair(distance);
  }

 private:
  // The blocks so far after and before the middle; there is none 105 after it.
  void WritePair(std::size_t distance) {
    const double sine = distances_.sine[distance];
    const double cosine = distances_.cosine[distance];
    Block after;
    Block before;
    for (std::size_t j = 0; j < kBlock; ++j) {
      const double one = middle_.sine[j] * cosine + kToFixedPoint;
      const double other = middle_.cosine[j] * sine;
      after[j] = static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(one + other));
      before[j] = static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(one - other));
    }
    Write(before, kMiddle - distance);
    if (distance < kMiddle) Write(after, kMiddle + distance);
  }

  static bool NearTie(std::uint32_t fixed_point) {
    return static_cast<std::uint16_t>(fixed_point + 2) < 4;
  }

  void Write(const Block& fixed_point, std::size_t block) {
    Block frames;
    std::uint32_t ties = 0;
    for (std::size_t j = 0; j < kBlock; ++j) {
      ties |= static_cast<std::uint32_t>(NearTie(fixed_point[j]));
      frames[j] = fixed_point[j] >> 16 | (fixed_point[j] & 0xFFFF0000U);
    }
    for (std::size_t j = 0; ties != 0 && j < kBlock; ++j) {
      if (NearTie(fixed_point[j])) frames[j] = PlainFrame(pitch_hz_, block * kBlock + j);
    }
    std::memcpy(frames_ + block * sizeof(frames), frames.data(), sizeof(frames));
  }

  std::int32_t pitch_hz_;
  char* frames_;
  Phasors<14, 15> middle_;
  Phasors<8, 14> distances_;  // from the middle, in blocks
};

}  // namespace

void WriteSineFrames(std::int32_t pitch_hz, char* frames) {
  base::MultiplyInt32(pitch_hz, kSampleRate - 1);  // the largest product of the second
  Rotation(pitch_hz, frames).WriteAll();
}

SampleBuffer SineSecond(std::int32_t pitch_hz) {
  std::vector<std::int16_t> samples(kSineBytes / sizeof(std::int16_t));
  WriteSineFrames(pitch_hz, reinterpret_cast<char*>(samples.data()));
  SampleBuffer buffer(kChannels, static_cast<std::size_t>(kSampleRate));
  std::copy(samples.begin(), samples.end(), buffer.Frame(0));
  return buffer;
}

}  // namespace tone
