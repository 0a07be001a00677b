// Prints one digest over the samples of every pitch from 1 to 32000 (FNV-1a, 64 bits), which must
// be the same on every build. With "compare", also compares each pitch with the plain formula and
// fails at the first that differs.
#include <cinttypes>
#include <cstdio>
#include <cstring>

#include "tests/tone/plain_sine.h"
#include "tone/sine.h"

namespace {

constexpr std::int32_t kHighestPitch = 32000;

std::uint64_t Add(std::uint64_t digest, std::int32_t sample) {
  const auto bits = static_cast<std::uint32_t>(sample);
  for (int byte = 0; byte < 2; ++byte) {
    digest = (digest ^ (bits >> (8 * byte) & 0xFF)) * 0x100000001B3u;
  }
  return digest;
}

bool EqualsPlain(const tone::SampleBuffer& samples, std::int32_t pitch_hz) {
  const auto plain = tone::PlainSine(pitch_hz);
  for (std::size_t i = 0; i < plain.size(); ++i) {
    if (samples.At(0, i) != plain[i] || samples.At(1, i) != plain[i]) return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  const bool compare = argc > 1 && std::strcmp(argv[1], "compare") == 0;
  std::uint64_t digest = 0xCBF29CE484222325u;
  for (std::int32_t pitch_hz = 1; pitch_hz <= kHighestPitch; ++pitch_hz) {
    const tone::SampleBuffer samples = tone::SineSecond(pitch_hz);
    for (std::size_t i = 0; i < samples.samples(); ++i) digest = Add(digest, samples.At(0, i));
    if (compare && !EqualsPlain(samples, pitch_hz)) {
      std::printf("%" PRId32 " Hz differs from the plain formula\n", pitch_hz);
      return 1;
    }
  }
  std::printf("%08" PRIx32 "%08" PRIx32 "\n", static_cast<std::uint32_t>(digest >> 32),
              static_cast<std::uint32_t>(digest));
  return 0;
}
