#include "tone/sine.h"

#include <array>
#include <bit>
#include <cmath>

#include "base/numbers.h"

namespace tone {
namespace {

constexpr double kRadiansPerSample = 0.00014247585204429924;
constexpr double kAmplitude = 30000.0;
constexpr std::size_t kBlock = 210;  // samples; 210 blocks make a second
constexpr double kTieMargin = 4e-6;

using Block = std::array<double, kBlock>;

double Phase(std::int32_t pitch_hz, std::size_t sample) {
  return pitch_hz * static_cast<std::int32_t>(sample) * kRadiansPerSample;
}

// Adding 1.5 * 2^52 leaves the nearest integer, ties to even, in the low bits of the sum.
std::int64_t Rounded(double value) {
  return std::bit_cast<std::int64_t>(value + 6755399441055744.0);
}

class Rotation {
 public:
  explicit Rotation(std::int32_t pitch_hz) : pitch_hz_(pitch_hz) {
    for (std::size_t j = 0; j < kBlock; ++j) {
      sine_[j] = std::sin(Phase(pitch_hz, j));
      cosine_[j] = std::cos(Phase(pitch_hz, j));
    }
  }

  // Fills frames `first` to `first` + kBlock - 1 of both channels.
  void Fill(std::int32_t* frames, std::size_t first) const {
    const double start_sine = std::sin(Phase(pitch_hz_, first)) * kAmplitude;
    const double start_cosine = std::cos(Phase(pitch_hz_, first)) * kAmplitude;
    std::array<std::int64_t, kBlock> rounded;
    std::int64_t near_tie = 0;
    for (std::size_t j = 0; j < kBlock; ++j) {
      const double value = start_sine * cosine_[j] + start_cosine * sine_[j];
      rounded[j] = Rounded(value - kTieMargin);
      near_tie |= rounded[j] ^ Rounded(value + kTieMargin);
    }
    for (std::size_t j = 0; j < kBlock; ++j) {
      frames[2 * j] = frames[2 * j + 1] = static_cast<std::int32_t>(rounded[j]);
    }
    if (near_tie != 0) FillExactly(frames, first);
  }

 private:
  void FillExactly(std::int32_t* frames, std::size_t first) const {
    for (std::size_t j = 0; j < kBlock; ++j) {
      const double exact = std::sin(Phase(pitch_hz_, first + j)) * kAmplitude;
      frames[2 * j] = frames[2 * j + 1] = static_cast<std::int32_t>(Rounded(exact));
    }
  }

  std::int32_t pitch_hz_;
  Block sine_;
  Block cosine_;
};

}  // namespace

SampleBuffer SineSecond(std::int32_t pitch_hz) {
  base::MultiplyInt32(pitch_hz, kSampleRate - 1);  // the largest product of the second
  SampleBuffer buffer(kChannels, static_cast<std::size_t>(kSampleRate));
  const Rotation rotation(pitch_hz);
  for (std::size_t first = 0; first < buffer.samples(); first += kBlock) {
    rotation.Fill(buffer.Frame(first), first);
  }
  return buffer;
}

}  // namespace tone
