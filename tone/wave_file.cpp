#include "tone/wave_file.h"

#include <algorithm>
#include <cstdint>

#include "tone/wave_layout.h"

namespace tone {
namespace {

constexpr std::size_t kRiffHeader = 12;
constexpr std::size_t kChunkHeader = 8;

std::uint32_t Number(std::string_view bytes, std::size_t at, int count) {
  std::uint32_t value = 0;
  for (int i = count - 1; i >= 0; --i) {
    value = value << 8 | static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
  }
  return value;
}

// The content of the first chunk of that name, cut at the end of the image.
std::string_view Chunk(std::string_view image, std::string_view name) {
  std::size_t at = kRiffHeader;
  while (at + kChunkHeader <= image.size()) {
    const std::size_t size = Number(image, at + 4, 4);
    const std::string_view content =
        image.substr(at + kChunkHeader, std::min(size, image.size() - at - kChunkHeader));
    if (image.substr(at, 4) == name) return content;
    at += kChunkHeader + content.size() + content.size() % 2;
  }
  return {};
}

std::optional<base::WaveFormat> Format(std::string_view chunk) {
  if (chunk.size() < kFormatBytes || Number(chunk, 0, 2) != kPcm) return std::nullopt;
  base::WaveFormat format;
  format.channels = static_cast<std::int16_t>(Number(chunk, 2, 2));
  format.sample_rate = static_cast<std::int32_t>(Number(chunk, 4, 4));
  format.bits_per_sample = static_cast<std::int16_t>(Number(chunk, 14, 2));
  const bool bits_known = format.bits_per_sample == 8 || format.bits_per_sample == 16;
  if (!bits_known || format.channels < 1 || format.channels > 2 || format.sample_rate < 1) {
    return std::nullopt;
  }
  return format;
}

}  // namespace

std::optional<WaveFile> ParseWaveFile(std::string_view image) {
  if (!image.starts_with("RIFF") || image.size() < kRiffHeader || image.substr(8, 4) != "WAVE") {
    return std::nullopt;
  }
  const auto format = Format(Chunk(image, "fmt "));
  if (!format) return std::nullopt;
  std::string_view data = Chunk(image, "data");
  const auto frame = static_cast<std::size_t>(format->channels * format->bits_per_sample / 8);
  data = data.substr(0, data.size() / frame * frame);
  if (data.empty()) return std::nullopt;
  return WaveFile{*format, std::string(data)};
}

}  // namespace tone
