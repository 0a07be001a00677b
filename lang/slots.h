// The slots of a language file: entry K of the file is the text of slot K. docs/languages.md says
// what each is for.
#pragma once

#include <cstddef>

namespace lang {

enum class Slot : std::size_t {
  // The main window.
  kOption1 = 4,
  kOption2 = 5,
  kOption3 = 6,
  kOption4 = 7,
  kOption5 = 8,
  kOption6 = 9,
  kOption7 = 10,
  kOption8 = 11,
  kOption9 = 12,
  kChoices = 13,
  kPlay = 14,
  kStop = 15,
  kCustomPitch = 16,
  kSelectedPitch = 17,
  kSoundWaves = 18,
  kFileMenu = 19,
  kExit = 20,
  kSettingsMenu = 21,
  kSoundModeMenu = 22,
  kLanguageMenu = 23,
  kMicrophoneMenu = 24,
  kAutoUpdate = 25,
  kAbout = 26,
  kContact = 27,
  kDonate = 28,
  kStatus = 29,

  // The help window.
  kHelpHeading = 31,
  kHelpPlay = 32,
  kHelpPitches = 33,
  kHelpSweep = 34,
  kHelpCustomPitch = 35,
  kHelpTools = 37,
  kHelpSoundModesHeading = 38,
  kHelpSoundModes = 39,
  kHelpVolume = 40,

  // The Morse tool.
  kMorseSpeed = 42,
  kMorsePitch = 43,
  kMorseHide = 44,
  kMorseText = 45,
  kMorsePlay = 46,
  kMorseStop = 47,
  kMorseTitle = 48,

  // The update dialog.
  kUpdateQuestion = 49,
  kUpdateTitle = 50,
  kUpdateAccept = 51,
  kUpdateDecline = 52,
  kUpdateCurrent = 53,
  kUpdateNew = 54,

  // What stands before and after the comma of the microphone frame's caption.
  kMicrophone = 56,
  kMicrophoneSensitivity = 57,

  // What the main window shows of the selected tone mode.
  kDescription1 = 60,
  kDescription2 = 61,
  kDescription3 = 62,
  kDescription4 = 63,
  kDescription5 = 64,
  kDescription6 = 65,
  kDescription7 = 66,
  kDescription8 = 67,
  kDescription9 = 68,
  kPlayTone = 69,  // the play button's caption, for modes that sound here
  kPlayTool = 70,  // and for modes that open a tool

  kSystemInfo = 72,

  // From here on a file may lack a text; what is shown stays then.
  kSelectAMode = 73,
  kNoInformation = 74,
  kInfo = 75,
  kHelpButton = 76,
  kClassic = 77,
  kAutomatic = 78,
  kMorseMessage = 79,
  kOpenFile = 80,
  kWebPage = 81,
  kHelpMenu = 82,

  // What screen readers call controls that have no caption to be read, and a tool tip.
  kSpokenSlider = 83,
  kSliderTip = 84,
  kSpokenWave = 85,
  kSpokenMicrophone = 86,
  kSpokenLouder = 87,
  kSpokenSofter = 88,
};

inline constexpr bool MayBeMissing(Slot slot) {
  return slot >= Slot::kSelectAMode;
}

}  // namespace lang
