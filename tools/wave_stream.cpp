#include "tools/wave_stream.h"

#include <algorithm>
#include <string>
#include <vector>

#include "tone/wave_image.h"

namespace tools {
namespace {

constexpr std::int32_t kBits = 16;
constexpr std::int64_t kFrameBytes = 4;
constexpr std::size_t kBlockFrames = 16384;

// What the header says of so many bytes of samples.
std::uint32_t DataField(std::int64_t bytes, Destination::Kind kind) {
  if (kind == Destination::Kind::kTerminal) {
    throw Failure("a terminal cannot show samples; name a file with -o, or send them on");
  }
  if (bytes <= tone::kMostDataBytes) return static_cast<std::uint32_t>(bytes);
  if (kind == Destination::Kind::kStream) return tone::kEndlessData;
  throw Failure("the file would have " + std::to_string(bytes) +
                " bytes of samples; a WAV file has less than 4 GiB");
}

// Low byte first. `bytes` has two for each sample.
void Store(const std::vector<std::int16_t>& samples, std::size_t count, std::string& bytes) {
  for (std::size_t i = 0; i < count; ++i) {
    const auto sample = static_cast<std::uint16_t>(samples[i]);
    bytes[2 * i] = static_cast<char>(sample & 0xFF);
    bytes[2 * i + 1] = static_cast<char>(sample >> 8);
  }
}

}  // namespace

void WriteWave(program_files::ToneRenderer& renderer, Destination& destination) {
  const std::uint32_t data_bytes = DataField(renderer.Frames() * kFrameBytes, destination.kind());
  destination.Write(tone::WaveHeader(
      {static_cast<std::int32_t>(tone::kChannels), tone::kSampleRate, kBits, data_bytes}));
  std::vector<std::int16_t> samples(kBlockFrames * tone::kChannels);
  std::string bytes(samples.size() * 2, '\0');
  while (const std::size_t frames = renderer.Render(samples)) {
    const std::size_t count = frames * tone::kChannels;
    Store(samples, count, bytes);
    destination.Write(std::string_view(bytes).substr(0, 2 * count));
  }
  destination.Finish();
}

}  // namespace tools
