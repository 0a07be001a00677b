#include "base/sound_mode.h"

namespace base {
namespace {

constexpr SoundModeFacts kModes[] = {
    {SoundMode::kClassic, "16", Output::kHelper16, true, true},
    {SoundMode::kSound32, "32", Output::kHelper32, true, false},
    {SoundMode::kDirectSound, "64", Output::kDirectSound, false, true},
    {SoundMode::kAutomatic, "128", Output::kPlayer, true, false},
    {SoundMode::kWinmm, "256", Output::kPlayer, true, false},
};
constexpr SoundModeFacts kNoMode{SoundMode::kNone, "", Output::kNone, true, false};

}  // namespace

std::span<const SoundModeFacts> SoundModes() {
  return kModes;
}

const SoundModeFacts& FactsOf(SoundMode mode) {
  for (const SoundModeFacts& facts : kModes) {
    if (facts.mode == mode) return facts;
  }
  return kNoMode;
}

SoundMode SoundModeOf(std::string_view code) {
  for (const SoundModeFacts& facts : kModes) {
    if (facts.code == code) return facts.mode;
  }
  return SoundMode::kNone;
}

}  // namespace base
