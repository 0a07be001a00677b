// The tone modes of the main window.

#include "app/form1.h"
#include "base/sine_modes.h"

namespace app {

std::vector<ui::OptionButton*> Form1::Options() {
  std::vector<ui::OptionButton*> options;
  options.reserve(kToneModes.size());
  for (const ToneModeFacts& mode : kToneModes) options.push_back(&OptionOf(mode.mode));
  return options;
}

ToneMode Form1::SelectedMode() {
  for (const ToneModeFacts& mode : kToneModes) {
    if (OptionOf(mode.mode).Value()) return mode.mode;
  }
  return ToneMode::kNone;
}

void Form1::EnableToolModes(bool enabled) {
  for (auto mode = kToneModes.rbegin(); mode != kToneModes.rend(); ++mode) {
    if (!mode->in_direct_sound) OptionOf(mode->mode).SetEnabled(enabled);
  }
}

void Form1::OptionClick(const ToneModeFacts& mode) {
  Program program(context_);
  base::TrapErrors(program, mode.error_value, [&] {
    program.SelectRadio(mode.mode);
    if (mode.kind != ToneKind::kHearingTest) mode_chosen_flag = 1;
    ShowSine(program, mode);
  });
}

// The other modes show nothing until they draw themselves: the slider, the steps of a sweep.
void Form1::ShowSine(Program& program, const ToneModeFacts& mode) {
  if (mode.kind == ToneKind::kFixedPitch) {
    program.DrawSine(mode.pitch_hz, base::kMovingSine);
  } else {
    sine_animation_.Stop();
  }
}

void Form1::DrawSine(std::int16_t pitch, std::int16_t mode) {
  Program(context_).DrawSine(pitch, mode);
}

void Form1::ReselectMode(Program& program) {
  const ToneModeFacts& mode = FactsOf(SelectedMode());
  if (mode.kind == ToneKind::kNone) return;
  const bool playing = Command3.Enabled();
  const bool slider = HScroll1.Enabled();
  const std::string status = StatusBar1.Caption();
  program.SelectRadio(mode.mode);
  if (playing) {
    // Selecting a mode offers Play and the slider, and its captions clear the status panel. The
    // tone that sounds is still the one that was started: a second Play would run within the first.
    Command2.SetEnabled(false);
    HScroll1.SetEnabled(slider);
    ShowStatus(status);
  }
  if (mode.kind == ToneKind::kFixedPitch) ShowSine(program, mode);
}

void Form1::ShowMode(ToneMode mode) {
  const ToneModeFacts& facts = FactsOf(mode);
  for (const ToneModeFacts& other : kToneModes) {
    if (other.mode != mode) OptionOf(other.mode).SetValue(false);
  }
  Picture1.SetVisible(!OpensTool(facts.kind));
  Line1.SetVisible(!OpensTool(facts.kind));
  Command2.SetEnabled(true);
  EnableCustomPitch(facts.kind == ToneKind::kSlider);
  Label1.SetCaption(texts_.Of(facts.description));
  Label8.SetVisible(false);
  Command2.SetCaption(texts_.Of(PlayCaption(facts.kind)));
  // Enter plays, but not before there is something to play.
  SetDefaultButton(&Command2);
}

void Form1::HScroll1_Change() {
  Program program(context_);
  base::TrapErrors(program, base::ErrorValue::kSlider, [&] {
    Label10.SetCaption(base::SignedNumber(HScroll1.Value()));
    program.DrawSine(SliderPitch(), base::kStillSine);
  });
}

}  // namespace app
