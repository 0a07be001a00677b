#include "tone/wave_image.h"

#include "base/numbers.h"
#include "tone/wave_layout.h"

namespace tone {
namespace {

constexpr std::uint32_t kRiffBytes = 36;  // of the header that the container's size counts

// The bytes of `samples` frames, as the field in front of them counts them.
std::int32_t DataBytes(std::int32_t channels, std::int32_t samples, std::int32_t bits) {
  using base::MultiplyInt32;
  return base::ToInt32(MultiplyInt32(MultiplyInt32(channels, samples), bits) / 8.0);
}

// Appends the `bytes` low bytes of `value`, low byte first.
void Append(std::string& image, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) {
    image += static_cast<char>(value & 0xFF);
    value >>= 8;
  }
}

// Writes the low bytes of each value, low byte first.
template <std::size_t kBytes>
void WriteData(const std::int32_t* values, std::size_t count, char* data) {
  for (std::size_t i = 0; i < count; ++i) {
    for (std::size_t byte = 0; byte < kBytes; ++byte) {
      data[i * kBytes + byte] = static_cast<char>(values[i] >> (8 * byte));
    }
  }
}

}  // namespace

std::string WaveHeader(const WaveHeaderFields& fields) {
  using base::MultiplyInt32;
  const auto [channels, rate, bits, data_bytes] = fields;
  const std::int32_t byte_rate =
      base::ToInt32(MultiplyInt32(MultiplyInt32(rate, channels), bits) / 8.0);
  const std::int32_t block_align = base::ToInt32(MultiplyInt32(bits, channels) / 8.0);
  std::string header;
  const auto append = [&](std::int32_t value, int bytes) {
    Append(header, static_cast<std::uint32_t>(value), bytes);
  };
  header += "RIFF";
  Append(header, data_bytes == kEndlessData ? data_bytes : data_bytes + kRiffBytes, 4);
  header += "WAVEfmt ";
  append(kFormatBytes, 4);
  append(kPcm, 2);
  append(channels, 2);
  append(rate, 4);
  append(byte_rate, 4);
  append(block_align, 2);
  append(bits, 2);
  header += "data";
  Append(header, data_bytes, 4);
  return header;
}

namespace {

// The header, and behind it room for the data.
std::string Prepared(std::size_t channel_count, std::size_t sample_count, std::int32_t sample_rate,
                     std::int16_t bits_per_sample) {
  const std::int32_t channels = base::ToInt32(static_cast<double>(channel_count));
  const std::int32_t count = base::ToInt32(static_cast<double>(sample_count));
  const std::int32_t data_bytes = DataBytes(channels, count, bits_per_sample);
  const std::int32_t total =
      base::AddInt32(data_bytes, static_cast<std::int32_t>(kWaveHeaderBytes));
  std::string image =
      WaveHeader({channels, sample_rate, bits_per_sample, static_cast<std::uint32_t>(data_bytes)});
  image.resize(static_cast<std::size_t>(total));
  return image;
}

}  // namespace

std::string WaveImage(const SampleBuffer& samples, std::int32_t sample_rate,
                      std::int16_t bits_per_sample) {
  std::string image = Prepared(samples.channels(), samples.samples(), sample_rate, bits_per_sample);
  char* const data = image.data() + kWaveHeaderBytes;
  const std::size_t values = samples.channels() * samples.samples();
  if (bits_per_sample == 16) {
    WriteData<2>(samples.Frame(0), values, data);
  } else {
    WriteData<1>(samples.Frame(0), values, data);
  }
  return image;
}

const std::string& SineImage::Of(std::int32_t pitch_hz) {
  if (image_.empty()) image_ = Prepared(kChannels, kSampleRate, kSampleRate, 16);
  WriteSineFrames(pitch_hz, image_.data() + kWaveHeaderBytes);
  return image_;
}

}  // namespace tone
