// Playing the tone program.
#include "base/command_line.h"
#include "base/numbers.h"
#include "program_files/form9.h"
#include "tone/quietly.h"

namespace program_files {
namespace {

// The 16-bit helper's own start.
constexpr std::int16_t kClassicStartMs = 1000;

}  // namespace

void Form9::Command1_Click() {
  tone::Quietly([this] {
    Command1.SetEnabled(false);
    // Stopped, but not over yet: plays follow each other, they never run within one another.
    replays_ = playing_;
    if (playing_) return;
    KillHelpers();
    PlayUntilDone();
  });
}

void Form9::Command2_Click() {
  tone::Quietly([this] {
    stop_flag_ = 1;
    tone_number_ = 6;
    table_index_ = 1;
    Command1.SetEnabled(true);
    replays_ = false;
  });
}

void Form9::Command3_Click() {
  tone::Quietly([this] {
    stop_flag_ = 1;
    Unload();
  });
}

void Form9::PlayUntilDone() {
  playing_ = true;
  Play();
  while (replays_) {
    replays_ = false;
    Command1.SetEnabled(false);
    KillHelpers();
    Play();
  }
  playing_ = false;
}

void Form9::Play() {
  tone::Quietly([this] {
    support_.ReadTempFolder();
    Label1.SetCaption("0");
    ProgressBar1.SetRange(0, ToneCount());
    ProgressBar1.SetValue(0);
    stop_flag_ = 0;
    tone_number_ = 0;
    table_index_ = 0;
    // A tone that fails is the last one.
    tone::Quietly([this] {
      do {
        PlayTone();
        // What the user did meanwhile: a stop ends the play with the tone that sounded.
        platform_.pump.ProcessPending();
      } while (tone_number_ < ToneCount() && stop_flag_ != 1);
    });
    if (program_.hidden_flag == 1) Unload();
    ShowAllPlayed();
    Command1.SetEnabled(true);
    Label6.SetCaption("");
    Label8.SetCaption("");
  });
}

void Form9::PlayTone() {
  platform_.pump.ProcessPending();
  ++tone_number_;
  ++table_index_;
  const std::int16_t pitch = program_.pitch_hz[table_index_];
  support_.WriteHandOver(pitch);
  Label6.SetCaption(base::BareNumber(pitch));
  Label8.SetCaption(base::BareNumber(program_.duration_ms[table_index_]));
  platform_.pump.ProcessPending();
  StartHelper();
  SoundTone();
  EndHelper();
  const double played = base::LeadingNumber(Label1.Caption()) + 1;
  Label1.SetCaption(base::BareNumber(base::ToInt16(played)));
  ProgressBar1.SetValue(ProgressBar1.Value() + 1);
}

void Form9::StartHelper() {
  if (sound_mode_ == "16") {
    platform_.processes.StartHidden(
        base::InterpreterCommand(platform_.environment.ProgramFolder(), "play16.exe"));
  }
  if (sound_mode_ == "32") platform_.processes.StartHidden("tone32.dll");
}

void Form9::SoundTone() {
  const std::int16_t duration = program_.duration_ms[table_index_];
  if (sound_mode_ == "256" || sound_mode_ == "128" || sound_mode_ == "64") {
    winmm_.SoundWinmmRNDTMP(program_.pitch_hz[table_index_],
                            base::ToInt16(duration + program_.extra_time_ms));
    return;
  }
  if (sound_mode_ == "16") support_.waves.delay(kClassicStartMs);
  support_.waves.delay(program_.extra_time_ms);
  support_.waves.delay(duration);
}

void Form9::EndHelper() {
  if (sound_mode_ == "16") support_.killer.KillProcess("tone16.dll");
  if (sound_mode_ == "128" || sound_mode_ == "64" || sound_mode_ == "32") {
    support_.killer.KillProcess("tone32.dll");
  }
}

void Form9::ShowAllPlayed() {
  Label1.SetCaption(base::BareNumber(ToneCount()));
  ProgressBar1.SetValue(ToneCount());
}

}  // namespace program_files
