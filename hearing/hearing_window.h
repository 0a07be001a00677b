// The window of the hearing test.
//
// It shows its first page until Start, then trial after trial: a tone or none while it says
// "Listen...", and then the question, which the user answers at leisure. An answer that is given
// before the question is none. At the end stand the result and its picture, or why there is none;
// Start begins anew. Nothing sounds but trials.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "hearing/procedure.h"
#include "hearing/scale_picture.h"
#include "hearing/texts.h"
#include "hearing/tone_output.h"
#include "platform/system.h"
#include "platform/timers.h"
#include "ui/controls.h"
#include "ui/window.h"

namespace hearing {

class HearingWindow : public ui::Window {
 public:
  // What the window asks of its surroundings.
  struct Services {
    ui::WindowSystem& windows;
    platform::Timers& timers;
    platform::Random& random;
    platform::MessageBoxes& messages;
    ToneOutput& output;
  };

  static constexpr int kTickMs = 50;
  static constexpr int kLouderPauseMs = 2500;  // time to turn the volume up
  static constexpr int kLostAfterMs = 4000;    // that a trial sounds without an end
  static constexpr int kRedrawMs = 500;

  HearingWindow(const Services& services, Language language);

  void HelpRequested() override;

 private:
  static constexpr int kBarHeight = 14;
  static constexpr int kScaleTop = 238;
  static constexpr ui::Rect BarLabel(int bar) {
    return {16, kScaleTop + bar * kBarHeight, 70, kBarHeight + 2};
  }
  static constexpr ui::Rect PitchLabel(int at_hz) {
    return {68 + (at_hz - kLowestPitch) * 338 / (kHighestPitch - kLowestPitch), 324, 60, 16};
  }

 public:
  ui::Label lblText{*this, 100, "lblText", {16, 12, 440, 68}, ""};
  ui::Label lblState{*this, 101, "lblState", {16, 86, 440, 24}, "", ui::Label::Style::kHeading};
  ui::Button cmdStart{*this, 102, "cmdStart", {16, 116, 101, 28}, ""};
  ui::Button cmdYes{*this, 103, "cmdYes", {129, 116, 101, 28}, ""};
  ui::Button cmdNo{*this, 104, "cmdNo", {242, 116, 101, 28}, ""};
  ui::Button cmdClose{*this, 105, "cmdClose", {355, 116, 101, 28}, ""};
  ui::Label lblResult{*this, 106, "lblResult", {16, 158, 440, 24}, "", ui::Label::Style::kHeading};
  ui::Label lblAges{*this, 107, "lblAges", {16, 186, 440, 48}, ""};
  ui::Label lblAge30{*this, 108, "lblAge30", BarLabel(0), ""};
  ui::Label lblAge40{*this, 109, "lblAge40", BarLabel(1), ""};
  ui::Label lblAge50{*this, 110, "lblAge50", BarLabel(2), ""};
  ui::Label lblAge60{*this, 111, "lblAge60", BarLabel(3), ""};
  ui::Label lblAge70{*this, 112, "lblAge70", BarLabel(4), ""};
  ui::PictureBox picScale{*this, 113, "picScale", {96, kScaleTop, 340, kBarHeight* kScaleParts}};
  ui::Label lblPitch8{*this, 114, "lblPitch8", PitchLabel(8000), "8000 Hz"};
  ui::Label lblPitch12{*this, 115, "lblPitch12", PitchLabel(12000), "12000 Hz"};
  ui::Label lblPitch16{*this, 116, "lblPitch16", PitchLabel(16000), "16000 Hz"};
  ui::Label lblPitch20{*this, 117, "lblPitch20", PitchLabel(20000), "20000 Hz"};
  ui::Label lblCaution{*this, 118, "lblCaution", {16, 350, 440, 36}, ""};

 protected:
  void DesignState() override;
  void Form_Unload() override;

 private:
  void Start();
  void BeginTrial();
  void Play();
  void Tick();
  void Ask();
  void Answer(bool heard);
  void ShowVerdict();
  void ShowResult();
  void DrawAt(int pitch_hz);
  void End(std::string_view reason);
  void EndTest();
  void ShowScale(bool visible);
  void SayOnPage(std::string_view text);

  const Services services_;
  const Texts& texts_;
  std::optional<Procedure> procedure_;  // while a test goes on
  ToneOutput::Rates rates_;
  // While a trial sounds or is about to; while a result is shown, to draw it anew on a finer
  // screen.
  std::unique_ptr<platform::Timer> timer_;
  int drawn_width_ = 0;
  int pause_ms_ = 0;  // until it sounds
  int sounding_ms_ = 0;
  bool playing_ = false;
  bool asking_ = false;
};

}  // namespace hearing
