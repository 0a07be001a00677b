// The help window: what the nine tone modes, the slider and the sound modes do.
#pragma once

#include <functional>
#include <vector>

#include "lang/language_loader.h"
#include "ui/window.h"

namespace app {

class Form2 : public ui::Window {
 public:
  // `load_captions` translates this window where the language asks for it.
  Form2(ui::WindowSystem& system, std::function<void()> load_captions);

  // The captions of this window, by slot of a language file.
  std::vector<lang::CaptionSlot> Captions();

  ui::Label Label1{
      *this, 100, "Label1", {16, 14, 528, 24}, "How to make a tone", ui::Label::Style::kHeading};
  ui::Label Label2{
      *this,
      101,
      "Label2",
      {16, 42, 528, 36},
      "Choose a tone mode on the left, then press Play Sound. The tone sounds until you "
      "press Stop Sound. The Enter key plays, the Esc key stops."};
  ui::Label Label3{
      *this,
      102,
      "Label3",
      {16, 90, 528, 36},
      "Low, Average, High and Extreme pitch play 1000, 4500, 10000 and 16600 Hz. Spooky "
      "pitch plays 21000 Hz, which most people do not hear."};
  ui::Label Label4{*this,
                   103,
                   "Label4",
                   {16, 134, 528, 36},
                   "Low to high climbs from 200 Hz to 32000 Hz in steps of 200 Hz and then starts "
                   "again. Above 22050 Hz most sound modes sound a lower pitch."};
  ui::Label Label5{*this,
                   104,
                   "Label5",
                   {16, 178, 528, 52},
                   "Custom pitch plays the pitch of the slider, from 4 Hz to 32000 Hz. Drag the "
                   "thumb, click beside it for steps of 1000 Hz, or use the arrows for steps of "
                   "100 Hz."};
  ui::Label Label6{*this,
                   105,
                   "Label6",
                   {16, 238, 528, 36},
                   "Morse tool turns a text that you type into Morse code. Hearing age finds the "
                   "highest pitch that you can hear."};
  ui::Label Label7{
      *this, 106, "Label7", {16, 290, 528, 24}, "Sound modes", ui::Label::Style::kHeading};
  ui::Label Label8{
      *this,
      107,
      "Label8",
      {16, 318, 528, 52},
      "The menu Settings, Sound mode says what plays the tone. Automatic is right for "
      "nearly every PC. Winmm is the multimedia player of Windows, DirectSound is what "
      "games use, Classic and Sound32 use a small helper program."};
  ui::Label Label9{*this,
                   108,
                   "Label9",
                   {16, 382, 528, 36},
                   "Loud high tones can damage your hearing, even tones that you do not hear. Set "
                   "the volume low before you play them."};
  ui::Button Command1{*this, 109, "Command1", {448, 424, 96, 28}, "OK"};

 protected:
  void Form_Load() override { load_captions_(); }

 private:
  std::function<void()> load_captions_;
};

}  // namespace app
