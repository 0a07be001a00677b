#include "app/tone_modes.h"

#include <string>

namespace app {
namespace {

constexpr ToneModeFacts kNoMode{};

constexpr std::int16_t kLoggedSweep = 1;
constexpr std::int16_t kLoggedMorseTool = 3;

}  // namespace

const ToneModeFacts& FactsOf(ToneMode mode) {
  for (const ToneModeFacts& facts : kToneModes) {
    if (facts.mode == mode) return facts;
  }
  return kNoMode;
}

bool OpensTool(ToneKind kind) {
  return kind == ToneKind::kMorseTool || kind == ToneKind::kHearingTest;
}

lang::Slot PlayCaption(ToneKind kind) {
  return OpensTool(kind) ? lang::Slot::kPlayTool : lang::Slot::kPlayTone;
}

lang::Texts DesignTexts() {
  lang::Texts texts;
  for (const ToneModeFacts& facts : kToneModes) {
    texts.Set(facts.description, std::string(facts.design_description));
  }
  texts.Set(lang::Slot::kPlayTone, "Play Sound");
  texts.Set(lang::Slot::kPlayTool, "Start");
  return texts;
}

std::int16_t PitchInLog(ToneKind kind, std::int16_t pitch_hz) {
  switch (kind) {
    case ToneKind::kSweep:
      return kLoggedSweep;
    case ToneKind::kMorseTool:
      return kLoggedMorseTool;
    default:
      return pitch_hz;
  }
}

Route RouteOf(ToneKind kind, base::SoundMode sound_mode) {
  const base::Output output = base::OutputOf(sound_mode);
  if (kind == ToneKind::kSweep) {
    return output == base::Output::kPlayer ? Route::kSoundWinmmLTH : Route::kLowToHigh;
  }
  switch (output) {
    case base::Output::kHelper16:
      return Route::kSound16;
    case base::Output::kHelper32:
      return Route::kSound32;
    case base::Output::kDirectSound:
      return Route::kToneDXRND;
    case base::Output::kPlayer:
      return Route::kSoundWinmmRND;
    case base::Output::kNone:
      break;
  }
  return Route::kNone;
}

}  // namespace app
