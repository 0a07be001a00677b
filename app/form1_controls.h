// The main window's controls, menu and layout, and which of them belong to which row of the tables
// of languages, sound modes and settings.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "base/error_value.h"
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
  }

  ui::Frame Frame1{*this, "Frame1", {12, 8, 176, 270}, "Choices"};
  ui::OptionButton Option1{*this, "Option1", {28, 34, 148, 22}, "Low pitch"};
  ui::OptionButton Option2{*this, "Option2", {28, 60, 148, 22}, "Average pitch"};
  ui::OptionButton Option3{*this, "Option3", {28, 86, 148, 22}, "High pitch"};
  ui::OptionButton Option4{*this, "Option4", {28, 112, 148, 22}, "Extreme pitch"};
  ui::OptionButton Option5{*this, "Option5", {28, 138, 148, 22}, "Spooky pitch"};
  ui::OptionButton Option6{*this, "Option6", {28, 164, 148, 22}, "Low to high"};
  ui::OptionButton Option7{*this, "Option7", {28, 190, 148, 22}, "Custom pitch"};
  ui::OptionButton Option8{*this, "Option8", {28, 216, 148, 22}, "Morse tool"};
  ui::OptionButton Option9{*this, "Option9", {28, 242, 148, 22}, "Hearing age"};

  ui::Frame Frame2{*this, "Frame2", {200, 8, 428, 270}, "Info"};
  ui::Label Label1{*this, "Label1", {216, 34, 396, 82}, "<< Select a mode >>"};
  ui::Label Label8{*this, "Label8", {216, 118, 396, 18}, "No information avaible"};
  ui::Label Label9{
      *this, "Label9", {216, 146, 396, 22}, "Custom pitch", ui::Label::Style::kHeading};
  ui::Label Label3{*this, "Label3", {216, 174, 180, 18}, "Selected pitch (Hz):"};
  ui::Label Label10{*this, "Label10", {400, 174, 80, 18}, "1000"};
  ui::Label Label5{*this, "Label5", {216, 202, 50, 18}, "4 Hz ->"};
  ui::ScrollBar HScroll1{*this, "HScroll1", {268, 200, 256, 20}, {4, 32000, 100, 1000, 1000}};
  ui::Label Label6{*this, "Label6", {532, 202, 88, 18}, "<- 32000 Hz"};
  ui::Button Command2{*this, "Command2", {12, 416, 302, 36}, "Play Sound"};
  ui::Button Command3{*this, "Command3", {326, 416, 302, 36}, "Stop Sound"};
  ui::Button Command1{*this, "Command1", {516, 238, 96, 28}, "Help"};

  ui::Frame Frame3{*this, "Frame3", {12, 284, 302, 122}, "Sound waves"};
  ui::LineControl Line1{*this, "Line1", {24, 350, 278, 1}};
  ui::PictureBox Picture1{*this, "Picture1", {24, 306, 278, 88}};

  ui::Frame Frame4{*this, "Frame4", {326, 284, 302, 122}, "Microphone input, sensitivity: 1"};
  ui::PictureBox picWave{*this, "picWave", {338, 306, 242, 88}};
  ui::Button Command4{*this, "Command4", {588, 306, 28, 41}, "+"};
  ui::Button Command5{*this, "Command5", {588, 353, 28, 41}, "-"};

  ui::StatusBar StatusBar1{*this, "StatusBar1", "Actual pitch (Hertz):"};

  ui::MenuItem file{*this, "file", "File"};
  ui::MenuItem openfile{file, "openfile", "Open tone program..."};
  ui::MenuItem file_separator{file, "-", ""};
  ui::MenuItem exit{file, "exit", "Exit"};

  ui::MenuItem settings{*this, "settings", "Settings"};
  ui::MenuItem soundmode{settings, "soundmode", "Sound mode"};
  ui::MenuItem sndclassic{soundmode, "sndclassic", "Classic"};
  ui::MenuItem sndsound32{soundmode, "sndsound32", "Sound32"};
  ui::MenuItem snddirectsound{soundmode, "snddirectsound", "DirectSound"};
  ui::MenuItem sndautomatic{soundmode, "sndautomatic", "Automatic"};
  ui::MenuItem sndwinmm{soundmode, "sndwinmm", "Winmm"};
  ui::MenuItem language{settings, "language", "Language"};
  std::vector<std::unique_ptr<ui::MenuItem>> language_items = LanguageItems();  // as the languages
  ui::MenuItem& english = *language_items[0];
  ui::MenuItem& dutch = *language_items[1];
  ui::MenuItem separator{settings, "-", ""};
  ui::MenuItem microinputonoff{settings, "microinputonoff", "Display Microphone Input"};
  ui::MenuItem autoupdate{settings, "autoupdate", "Check for updates at start"};
  ui::MenuItem help{*this, "help", "Help"};
  ui::MenuItem webpage{help, "webpage", "Website"};
  ui::MenuItem contact{help, "contact", "Contact"};
  ui::MenuItem donate{help, "donate", "Donate"};
  ui::MenuItem help_separator{help, "-", ""};
  ui::MenuItem about{help, "about", "About Tonmira"};

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
