// The image of a WAV file in memory: a RIFF container (Multimedia Programming Interface and Data
// Specifications 1.0, IBM and Microsoft, 1991) with one PCM format block and one data block.
#pragma once

#include <cstdint>
#include <string>

#include "tone/sine.h"

namespace tone {

inline constexpr std::size_t kWaveHeaderBytes = 44;

struct WaveHeaderFields {
  std::int32_t channels = 0;
  std::int32_t sample_rate = 0;
  std::int32_t bits_per_sample = 0;
  std::uint32_t data_bytes = 0;  // at most kMostDataBytes, or kEndlessData
};

// The header counts 36 bytes of its own into a size of 32 bits.
inline constexpr std::uint32_t kMostDataBytes = 0xFFFFFFFF - 36;

// For a stream of more: as many bytes as follow. Both sizes of the header are this.
inline constexpr std::uint32_t kEndlessData = 0xFFFFFFFF;

// The kWaveHeaderBytes bytes that stand before the samples. Throws base::RuntimeError kOverflow
// when a rate leaves 32 bits.
std::string WaveHeader(const WaveHeaderFields& fields);

// The low 16 or the low 8 bits of every sample, frame by frame. `bits_per_sample` is 8 or 16;
// 8-bit samples are expected in offset encoding. Throws base::RuntimeError kOverflow when a size
// or rate leaves 32 bits.
std::string WaveImage(const SampleBuffer& samples, std::int32_t sample_rate,
                      std::int16_t bits_per_sample);

// The image of one second of a sine tone in both channels, 16 bits: made in place, in memory that
// serves one pitch after the other.
class SineImage {
 public:
  // WaveImage(SineSecond(pitch_hz), kSampleRate, 16), until the next call. Throws
  // base::RuntimeError kOverflow as SineSecond.
  const std::string& Of(std::int32_t pitch_hz);

 private:
  std::string image_;
};

}  // namespace tone
