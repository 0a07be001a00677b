// The tone modes of the main window: one row each, in the order of their buttons.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "app/form1_controls.h"
#include "base/error_value.h"
#include "base/sound_mode.h"
#include "lang/slots.h"
#include "lang/texts.h"

namespace app {

// The number is the one that the activity log tells.
enum class ToneMode : std::int16_t {
  kNone = 0,
  kLow = 1,
  kAverage = 2,
  kHigh = 3,
  kExtreme = 4,
  kSpooky = 5,
  kSweep = 6,
  kCustom = 7,
  kMorse = 8,
  kHearingAge = 9,
};

// What a mode does when Play is pressed.
enum class ToneKind : std::int8_t {
  kNone,
  kFixedPitch,
  kSweep,
  kSlider,  // the pitch of the slider
  kMorseTool,
  kHearingTest,
};

struct ToneModeFacts {
  ToneMode mode;
  ToneKind kind;
  std::int16_t pitch_hz;  // of a fixed pitch
  ui::OptionButton Form1Controls::*option;
  lang::Slot caption;
  lang::Slot description;
  base::ErrorValue error_value;
  bool in_direct_sound;  // can be chosen in the sound mode DirectSound
  std::string_view design_description;
};

inline constexpr std::array<ToneModeFacts, 9> kToneModes{{
    {ToneMode::kLow, ToneKind::kFixedPitch, 1000, &Form1Controls::Option1, lang::Slot::kOption1,
     lang::Slot::kDescription1, base::ErrorValue::kOption1, true,
     "A low tone of 1000 Hz. Everybody hears it: use it to check your speakers."},
    {ToneMode::kAverage, ToneKind::kFixedPitch, 4500, &Form1Controls::Option2, lang::Slot::kOption2,
     lang::Slot::kDescription2, base::ErrorValue::kOption2, true,
     "A clear tone of 4500 Hz, in the range where the ear is most sensitive."},
    {ToneMode::kHigh, ToneKind::kFixedPitch, 10000, &Form1Controls::Option3, lang::Slot::kOption3,
     lang::Slot::kDescription3, base::ErrorValue::kOption3, true,
     "A high tone of 10000 Hz. It sounds sharp: set the volume low before you play it."},
    {ToneMode::kExtreme, ToneKind::kFixedPitch, 16600, &Form1Controls::Option4,
     lang::Slot::kOption4, lang::Slot::kDescription4, base::ErrorValue::kOption4, true,
     "A very high tone of 16600 Hz. Many adults do not hear it at all, but it is still there: keep "
     "the volume low and do not play it for long."},
    {ToneMode::kSpooky, ToneKind::kFixedPitch, 21000, &Form1Controls::Option5, lang::Slot::kOption5,
     lang::Slot::kDescription5, base::ErrorValue::kOption5, true,
     "A tone of 21000 Hz, above what most people hear. Animals may. You will not notice how loud "
     "it is: keep the volume low and do not play it for long."},
    {ToneMode::kSweep, ToneKind::kSweep, 0, &Form1Controls::Option6, lang::Slot::kOption6,
     lang::Slot::kDescription6, base::ErrorValue::kOption6, false,
     "A tone that climbs in small steps from 200 Hz to 32000 Hz and then starts again. Its upper "
     "end may be loud without being heard: keep the volume low."},
    {ToneMode::kCustom, ToneKind::kSlider, 0, &Form1Controls::Option7, lang::Slot::kOption7,
     lang::Slot::kDescription7, base::ErrorValue::kOption7, true,
     "A tone of the pitch that you choose with the slider below, from 4 Hz to 32000 Hz. Move the "
     "slider first, then play."},
    {ToneMode::kMorse, ToneKind::kMorseTool, 0, &Form1Controls::Option8, lang::Slot::kOption8,
     lang::Slot::kDescription8, base::ErrorValue::kOption8, false,
     "Opens a window in which you type a text and hear it as Morse code."},
    {ToneMode::kHearingAge, ToneKind::kHearingTest, 0, &Form1Controls::Option9,
     lang::Slot::kOption9, lang::Slot::kDescription9, base::ErrorValue::kOption9, false,
     "Starts a test that finds the highest pitch you can hear and the age it fits."},
}};

// The row of a mode; kNone is of kind kNone and has no button.
const ToneModeFacts& FactsOf(ToneMode mode);

// Whether the play button opens a tool instead of sounding a tone, and its caption.
bool OpensTool(ToneKind kind);
lang::Slot PlayCaption(ToneKind kind);

// The texts the program is designed with.
lang::Texts DesignTexts();

// What Play writes into the activity log in place of a pitch: the pitch, or the number that stands
// for "Low to high", for the Morse tool, or for no mode at all.
std::int16_t PitchInLog(ToneKind kind, std::int16_t pitch_hz);

// The route that a tone takes.
enum class Route : std::int8_t {
  kNone,
  kSound16,
  kSound32,
  kToneDXRND,
  kSoundWinmmRND,
  kLowToHigh,
  kSoundWinmmLTH,
};
Route RouteOf(ToneKind kind, base::SoundMode sound_mode);

}  // namespace app
