#include "tone/wave_image.h"

#include "base/numbers.h"

namespace tone {
namespace {

constexpr std::int16_t kPcm = 1;
constexpr std::int32_t kFormatBytes = 16;

struct Sizes {
  std::int32_t byte_rate;
  std::int32_t block_align;
  std::int32_t data_bytes;  // what the image holds
  std::int32_t data_field;  // what its header says
};

Sizes Compute(std::int32_t channels, std::int32_t samples, std::int32_t rate, std::int32_t bits) {
  using base::MultiplyInt32;
  Sizes sizes{};
  sizes.byte_rate = base::ToInt32(MultiplyInt32(MultiplyInt32(rate, channels), bits) / 8.0);
  sizes.block_align = base::ToInt32(MultiplyInt32(bits, channels) / 8.0);
  sizes.data_bytes = MultiplyInt32(sizes.block_align, samples);
  sizes.data_field = base::ToInt32(MultiplyInt32(MultiplyInt32(channels, samples), bits) / 8.0);
  return sizes;
}

// Appends the `bytes` low bytes of `value`, low byte first.
void Append(std::string& image, std::int32_t value, int bytes) {
  auto rest = static_cast<std::uint32_t>(value);
  for (int i = 0; i < bytes; ++i) {
    image += static_cast<char>(rest & 0xFF);
    rest >>= 8;
  }
}

// The header, and behind it room for the data.
std::string Prepared(std::size_t channel_count, std::size_t sample_count, std::int32_t sample_rate,
                     std::int16_t bits_per_sample) {
  const std::int32_t channels = base::ToInt32(static_cast<double>(channel_count));
  const std::int32_t count = base::ToInt32(static_cast<double>(sample_count));
  const Sizes sizes = Compute(channels, count, sample_rate, bits_per_sample);
  const std::int32_t total =
      base::AddInt32(sizes.data_bytes, static_cast<std::int32_t>(kWaveHeaderBytes));

  std::string image;
  image.reserve(static_cast<std::size_t>(total));
  image += "RIFF";
  Append(image, total - 8, 4);
  image += "WAVEfmt ";
  Append(image, kFormatBytes, 4);
  Append(image, kPcm, 2);
  Append(image, channels, 2);
  Append(image, sample_rate, 4);
  Append(image, sizes.byte_rate, 4);
  Append(image, sizes.block_align, 2);
  Append(image, bits_per_sample, 2);
  image += "data";
  Append(image, sizes.data_field, 4);
  image.resize(static_cast<std::size_t>(total));
  return image;
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
