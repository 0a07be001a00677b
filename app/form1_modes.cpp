// The tone modes of the main window.
#include "app/form1.h"

#include "app/tone_modes.h"
#include "base/numbers.h"

namespace app {

void Form1::OptionClick(int mode) {
  const ProgramPtr program = NewProgram();
  settings::TrapErrors(*program, static_cast<std::int16_t>(16 + mode), [&] {
    program->SelectRadio(static_cast<std::int16_t>(mode));
    if (mode != kHearingMode) mode_chosen_flag = 1;
    ShowSine(*program, mode);
  });
}

// The other modes show nothing until they draw themselves: the slider, the steps of a sweep.
void Form1::ShowSine(Program& program, int mode) {
  if (HasOwnPitch(mode)) {
    program.DrawSine(ModePitch(mode), display::kAnimated);
  } else {
    sine_animation_.Stop();
  }
}

void Form1::DrawSine(std::int16_t pitch, std::int16_t mode) {
  const ProgramPtr program = program_;
  program->DrawSine(pitch, mode);
}

void Form1::ReselectMode(const ProgramPtr& program) {
  const int mode = SelectedMode();
  if (mode == 0) return;
  const bool playing = Command3.Enabled();
  const bool slider = HScroll1.Enabled();
  const std::string status = StatusBar1.Caption();
  program->SelectRadio(static_cast<std::int16_t>(mode));
  if (playing) {
    // Selecting a mode offers Play and the slider, and its captions clear the status panel. The
    // tone that sounds is still the one that was started: a second Play would run within the first.
    Command2.SetEnabled(false);
    HScroll1.SetEnabled(slider);
    ShowStatus(status);
  }
  if (HasOwnPitch(mode)) ShowSine(*program, mode);
}

void Form1::ShowMode(int mode) {
  for (int other = 1; other <= kModes; ++other) {
    if (other != mode) Options()[static_cast<std::size_t>(other - 1)]->SetValue(false);
  }
  Picture1.SetVisible(ShowsSine(mode));
  Line1.SetVisible(ShowsSine(mode));
  Command2.SetEnabled(true);
  EnableCustomPitch(UsesSlider(mode));
  Label1.SetCaption(texts_.messages[static_cast<std::size_t>(lang::kModeDescriptions + mode)]);
  Label8.SetVisible(false);
  Command2.SetCaption(texts_.messages[OpensTool(mode) ? lang::kPlayCaptionB : lang::kPlayCaptionA]);
  // Enter plays, but not before there is something to play.
  SetDefaultButton(&Command2);
}

void Form1::HScroll1_Change() {
  const ProgramPtr program = NewProgram();
  settings::TrapErrors(*program, 26, [&] {
    Label10.SetCaption(base::SignedNumber(HScroll1.Value()));
    program->DrawSine(SelectedPitch(), display::kStillPicture);
  });
}

std::int16_t Form1::SelectedPitch() const {
  return base::ToInt16(base::WholePart(base::NumberFromText(Label10.Caption())));
}

}  // namespace app
