// Any bytes as the image of a WAV file.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/errors.h"
#include "tests/fuzz/require.h"
#include "tone/wave_file.h"
#include "tone/wave_image.h"

namespace tone {
namespace {

using fuzz::Require;

std::int64_t Number(std::string_view bytes, std::size_t at, std::size_t count) {
  std::int64_t value = 0;
  std::int64_t weight = 1;
  for (std::size_t i = 0; i < count; ++i, weight *= 256) {
    value += weight * static_cast<unsigned char>(bytes[at + i]);
  }
  return value;
}

// Where the content of the first chunk of that name begins; nothing when there is none.
std::optional<std::size_t> ContentOf(std::string_view image, std::string_view name) {
  std::int64_t at = 12;
  while (at + 8 <= std::ssize(image)) {
    const auto here = static_cast<std::size_t>(at);
    if (image.substr(here, 4) == name) return here + 8;
    const std::int64_t size = Number(image, here + 4, 4);
    at += 8 + size + size % 2;
  }
  return std::nullopt;
}

std::size_t FrameOf(const base::WaveFormat& format) {
  return static_cast<std::size_t>(format.channels) *
         static_cast<std::size_t>(format.bits_per_sample) / 8;
}

void CheckFormat(const base::WaveFormat& format, std::string_view image) {
  const auto begin = ContentOf(image, "fmt ");
  Require(begin && *begin + 16 <= image.size(), "there is a format");
  Require(Number(image, *begin, 2) == 1, "it is PCM");
  Require(Number(image, *begin + 2, 2) == format.channels, "the channels that stand there");
  Require(Number(image, *begin + 4, 4) == format.sample_rate, "the rate that stands there");
  Require(Number(image, *begin + 14, 2) == format.bits_per_sample, "the bits that stand there");
  Require(format.channels == 1 || format.channels == 2, "one or two channels");
  Require(format.sample_rate >= 1, "a rate");
  Require(format.bits_per_sample == 8 || format.bits_per_sample == 16, "8 or 16 bits");
}

void CheckData(const WaveFile& wave, std::string_view image) {
  const std::size_t frame = FrameOf(wave.format);
  Require(!wave.data.empty() && wave.data.size() % frame == 0, "whole frames, at least one");
  const auto begin = ContentOf(image, "data");
  Require(begin.has_value(), "there are data");
  Require(image.substr(*begin, wave.data.size()) == wave.data, "the data that stand there");
  const std::int64_t said = Number(image, *begin - 4, 4);
  const std::int64_t rest =
      std::min(said, std::ssize(image) - static_cast<std::int64_t>(*begin)) - std::ssize(wave.data);
  Require(rest >= 0 && rest < static_cast<std::int64_t>(frame), "all of them");
}

SampleBuffer SamplesOf(const WaveFile& wave) {
  const auto channels = static_cast<std::size_t>(wave.format.channels);
  const std::size_t width = FrameOf(wave.format) / channels;
  SampleBuffer samples(channels, wave.data.size() / channels / width);
  for (std::size_t i = 0; i < channels * samples.samples(); ++i) {
    samples.Set(i % channels, i / channels,
                static_cast<std::int32_t>(Number(wave.data, width * i, width)));
  }
  return samples;
}

void CheckWrittenAgain(const WaveFile& wave) {
  const base::WaveFormat& format = wave.format;
  const std::int64_t bits_per_second =
      std::int64_t{format.sample_rate} * format.channels * format.bits_per_sample;
  try {
    const std::string image =
        WaveImage(SamplesOf(wave), format.sample_rate, format.bits_per_sample);
    Require(bits_per_second <= INT32_MAX, "a rate beyond 32 bits is an overflow");
    Require(image.size() == kWaveHeaderBytes + wave.data.size(), "a header and the data");
    const auto again = ParseWaveFile(image);
    Require(again && again->data == wave.data && again->format.channels == format.channels &&
                again->format.sample_rate == format.sample_rate &&
                again->format.bits_per_sample == format.bits_per_sample,
            "written again, it is the same");
  } catch (const base::RuntimeError& error) {
    Require(error.code() == base::ErrorCode::kOverflow && bits_per_second > INT32_MAX,
            "only a rate beyond 32 bits cannot be written");
  }
}

// How much of the chunk whose content begins at `begin` is there.
std::int64_t SizeOf(std::string_view image, std::size_t begin) {
  return std::min(Number(image, begin - 4, 4),
                  std::ssize(image) - static_cast<std::int64_t>(begin));
}

bool IsPlainlyAWave(std::string_view image) {
  if (image.size() < 12 || image.substr(0, 4) != "RIFF" || image.substr(8, 4) != "WAVE") {
    return false;
  }
  const auto format = ContentOf(image, "fmt ");
  const auto data = ContentOf(image, "data");
  if (!format || !data || SizeOf(image, *format) < 16) return false;
  const std::int64_t channels = Number(image, *format + 2, 2);
  const std::int64_t rate = Number(image, *format + 4, 4);
  const std::int64_t bits = Number(image, *format + 14, 2);
  return Number(image, *format, 2) == 1 && (channels == 1 || channels == 2) && rate >= 1 &&
         rate <= INT32_MAX && (bits == 8 || bits == 16) &&
         SizeOf(image, *data) >= channels * bits / 8;
}

void CheckImage(std::string_view image) {
  const auto wave = ParseWaveFile(image);
  Require(wave.has_value() == IsPlainlyAWave(image), "what has all its parts is a file");
  if (!wave) return;
  CheckFormat(wave->format, image);
  CheckData(*wave, image);
  CheckWrittenAgain(*wave);
  const auto shorter = ParseWaveFile(image.substr(0, image.size() - 1));
  if (shorter) Require(wave->data.starts_with(shorter->data), "a file cut short has less");
}

}  // namespace
}  // namespace tone

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  tone::CheckImage(bytes);
  return 0;
}
