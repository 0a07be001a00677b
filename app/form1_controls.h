// The main window's controls, menu and layout, and which of them belong to which row of the tables
// of languages, sound modes and settings.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "base/error_value.h"
#include "base/pitches.h"
#include "base/sound_mode.h"
#include "lang/languages.h"
#include "settings/settings.h"
#include "ui/window.h"

namespace app {

class Form1Controls : public ui::Window {
 protected:
  const lang::Languages languages_;

 public:
  Form1Controls(ui::WindowSystem& system, lang::Languages languages)
      : ui::Window(system, {"Form1", "Tonmira", 640, 486}), languages_(languages) {
    Option1.StartGroup();
    HScroll1.StartGroup();
    HScroll1.DesignSpokenName("Custom pitch (Hz)");
    HScroll1.DesignTip(
        "Arrow keys: steps of 100 Hz; with Shift 10, with Ctrl 1. The wheel does the same. Or type "
        "the number.");
    Picture1.DesignSpokenName("Wave of the chosen tone");
    picWave.DesignSpokenName("Wave of the microphone input");
    Command4.DesignSpokenName("Raise the microphone sensitivity");
    Command5.DesignSpokenName("Lower the microphone sensitivity");
  }

  ui::Frame Frame1{*this, 100, "Frame1", {12, 8, 176, 270}, "Choices"};
  ui::OptionButton Option1{*this, 101, "Option1", {28, 34, 148, 22}, "Low pitch"};
  ui::OptionButton Option2{*this, 102, "Option2", {28, 60, 148, 22}, "Average pitch"};
  ui::OptionButton Option3{*this, 103, "Option3", {28, 86, 148, 22}, "High pitch"};
  ui::OptionButton Option4{*this, 104, "Option4", {28, 112, 148, 22}, "Extreme pitch"};
  ui::OptionButton Option5{*this, 105, "Option5", {28, 138, 148, 22}, "Spooky pitch"};
  ui::OptionButton Option6{*this, 106, "Option6", {28, 164, 148, 22}, "Low to high"};
  ui::OptionButton Option7{*this, 107, "Option7", {28, 190, 148, 22}, "Custom pitch"};
  ui::OptionButton Option8{*this, 108, "Option8", {28, 216, 148, 22}, "Morse tool"};
  ui::OptionButton Option9{*this, 109, "Option9", {28, 242, 148, 22}, "Hearing age"};

  ui::Frame Frame2{*this, 110, "Frame2", {200, 8, 428, 270}, "Info"};
  ui::Label Label1{*this, 111, "Label1", {216, 34, 396, 82}, "<< Select a mode >>"};
  ui::Label Label8{*this, 112, "Label8", {216, 118, 396, 18}, "No information avaible"};
  ui::Label Label9{
      *this, 113, "Label9", {216, 146, 396, 22}, "Custom pitch", ui::Label::Style::kHeading};
  ui::Label Label3{*this, 114, "Label3", {216, 174, 180, 18}, "Selected pitch (Hz):"};
  ui::Label Label10{*this, 115, "Label10", {400, 174, 80, 18}, "1000"};
  ui::Label Label5{*this, 116, "Label5", {216, 202, 50, 18}, "4 Hz ->"};
  ui::ScrollBar HScroll1{
      *this, 117, "HScroll1", {268, 200, 256, 20}, {4, base::kHighestPitch, 100, 1000, 1000}};
  ui::Label Label6{*this, 118, "Label6", {532, 202, 88, 18}, "<- 32000 Hz"};
  ui::Button Command2{*this, 119, "Command2", {12, 416, 302, 36}, "Play Sound"};
  ui::Button Command3{*this, 120, "Command3", {326, 416, 302, 36}, "Stop Sound"};
  ui::Button Command1{*this, 121, "Command1", {516, 238, 96, 28}, "Help"};

  ui::Frame Frame3{*this, 122, "Frame3", {12, 284, 302, 122}, "Sound waves"};
  ui::LineControl Line1{*this, 123, "Line1", {24, 350, 278, 1}};
  ui::PictureBox Picture1{*this, 124, "Picture1", {24, 306, 278, 88}};

  ui::Frame Frame4{*this, 125, "Frame4", {326, 284, 302, 122}, "Microphone input, sensitivity: 1"};
  ui::PictureBox picWave{*this, 126, "picWave", {338, 306, 242, 88}};
  ui::Button Command4{*this, 127, "Command4", {588, 306, 28, 41}, "+"};
  ui::Button Command5{*this, 128, "Command5", {588, 353, 28, 41}, "-"};

  ui::StatusBar StatusBar1{*this, 129, "StatusBar1", "Actual pitch (Hertz):"};

  ui::MenuItem file{*this, 1000, "file", "File"};
  ui::MenuItem openfile{file, 1001, "openfile", "Open tone program..."};
  ui::MenuItem file_separator{file, 1002, "-", ""};
  ui::MenuItem exit{file, 1003, "exit", "Exit"};

  ui::MenuItem settings{*this, 1004, "settings", "Settings"};
  ui::MenuItem soundmode{settings, 1005, "soundmode", "Sound mode"};
  ui::MenuItem sndclassic{soundmode, 1006, "sndclassic", "Classic"};
  ui::MenuItem sndsound32{soundmode, 1007, "sndsound32", "Sound32"};
  ui::MenuItem snddirectsound{soundmode, 1008, "snddirectsound", "DirectSound"};
  ui::MenuItem sndautomatic{soundmode, 1009, "sndautomatic", "Automatic"};
  ui::MenuItem sndwinmm{soundmode, 1010, "sndwinmm", "Winmm"};
  ui::MenuItem language{settings, 1011, "language", "Language"};
  std::vector<std::unique_ptr<ui::MenuItem>> language_items = LanguageItems();  // as the languages
  ui::MenuItem& english = *language_items[0];
  ui::MenuItem& dutch = *language_items[1];
  ui::MenuItem separator{settings, 1014, "-", ""};
  ui::MenuItem microinputonoff{settings, 1015, "microinputonoff", "Display Microphone Input"};
  ui::MenuItem autoupdate{settings, 1016, "autoupdate", "Check for updates at start"};
  ui::MenuItem help{*this, 1017, "help", "Help"};
  ui::MenuItem webpage{help, 1018, "webpage", "Website"};
  ui::MenuItem contact{help, 1019, "contact", "Contact"};
  ui::MenuItem donate{help, 1020, "donate", "Donate"};
  ui::MenuItem help_separator{help, 1021, "-", ""};
  ui::MenuItem about{help, 1022, "about", "About Tonmira"};

  // Which menu item chooses a sound mode.
  struct SoundModeItem {
    base::SoundMode mode;
    ui::MenuItem& item;
    base::ErrorValue error_value;
  };
  const std::array<SoundModeItem, 5> sound_mode_items{{
      {base::SoundMode::kClassic, sndclassic, base::ErrorValue::kClassic},
      {base::SoundMode::kSound32, sndsound32, base::ErrorValue::kSound32},
      {base::SoundMode::kDirectSound, snddirectsound, base::ErrorValue::kDirectSound},
      {base::SoundMode::kAutomatic, sndautomatic, base::ErrorValue::kAutomatic},
      {base::SoundMode::kWinmm, sndwinmm, base::ErrorValue::kWinmm},
  }};

  // Settings that are nothing but a check mark: choosing the item turns it and writes it down.
  struct CheckMark {
    ui::MenuItem& item;
    const settings::Setting& setting;
    base::ErrorValue error_value;
  };
  const std::array<CheckMark, 1> check_marks{{
      {autoupdate, settings::kAutoUpdate, base::ErrorValue::kAutoUpdate},
  }};

 protected:
  void DesignState() override;

  // The group around the slider: its labels, the slider and Help.
  void EnableCustomPitch(bool enabled);

 private:
  std::vector<std::unique_ptr<ui::MenuItem>> LanguageItems();
};

}  // namespace app
