// Playing the tone program.
#include "base/error_trap.h"
#include "base/numbers.h"
#include "program_files/form9.h"
#include "tone/pace.h"

namespace program_files {
namespace {

// The 16-bit helper's own start.
constexpr std::int16_t kClassicStartMs = 1000;

}  // namespace

void Form9::Command1_Click() {
  base::Quietly([this] {
    Command1.SetEnabled(false);
    // Stopped, but not over yet: plays follow each other, they never run within one another.
    replays_ = playing_;
    if (playing_) return;
    KillHelpers();
    PlayUntilDone();
  });
}

void Form9::Command2_Click() {
  base::Quietly([this] {
    stop_flag_ = 1;
    tone_number_ = 6;
    table_index_ = 1;
    Command1.SetEnabled(true);
    replays_ = false;
  });
}

void Form9::Command3_Click() {
  base::Quietly([this] {
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
  awake_.End();
  playing_ = false;
}

void Form9::Play() {
  base::Quietly([this] {
    support_.ReadTempFolder();
    Label1.SetCaption("0");
    ProgressBar1.SetRange(0, ToneCount());
    ProgressBar1.SetValue(0);
    stop_flag_ = 0;
    tone_number_ = 0;
    table_index_ = 0;
    if (Audible()) awake_.Begin([this] { return stop_flag_ == 1; });
    const auto failure = PlayTones();
    if (failure) NoteFailure(*failure);
    if (program_.hidden_flag == 1) Unload();
    if (!failure) ShowAllPlayed();
    Command1.SetEnabled(true);
    Label6.SetCaption("");
    Label8.SetCaption("");
  });
}

std::optional<base::RuntimeError> Form9::PlayTones() {
  return base::Caught([this] {
    do {
      PlayTone();
      // What the user did meanwhile: a stop ends the play with the tone that sounded.
      platform_.pump.ProcessPending();
    } while (tone_number_ < ToneCount() && stop_flag_ != 1);
  });
}

void Form9::NoteFailure(const base::RuntimeError& error) {
  around_.log(">>> Tone " + base::BareNumber(tone_number_) +
              " cannot be played: " + error.description());
}

void Form9::PlayTone() {
  platform_.pump.ProcessPending();
  ++tone_number_;
  ++table_index_;
  const std::int16_t pitch = program_.ToneAt(table_index_).pitch_hz;
  support_.WriteHandOver(pitch);
  Label6.SetCaption(base::BareNumber(pitch));
  Label8.SetCaption(base::BareNumber(program_.ToneAt(table_index_).duration_ms));
  platform_.pump.ProcessPending();
  StartHelper();
  SoundTone();
  EndHelper();
  const double played = base::LeadingNumber(Label1.Caption()) + 1;
  Label1.SetCaption(base::BareNumber(base::ToInt16(played)));
  ProgressBar1.SetValue(ProgressBar1.Value() + 1);
}

void Form9::StartHelper() {
  helpers_.Start(base::OutputOf(sound_mode_), tone::HelperPrograms::Named::kByPath);
}

bool Form9::SoundsByHelper() const {
  const base::Output output = base::OutputOf(sound_mode_);
  return output == base::Output::kHelper16 || output == base::Output::kHelper32;
}

// DirectSound plays through the multimedia player, too; with no sound mode the time passes in
// silence.
void Form9::SoundTone() {
  const Tone tone = program_.ToneAt(table_index_);
  const base::Output output = base::OutputOf(sound_mode_);
  if (output == base::Output::kPlayer || output == base::Output::kDirectSound) {
    const auto failure =
        winmm_.SoundWinmmRNDTMP(tone.pitch_hz, tone.duration_ms + program_.extra_time_ms);
    base::ThrowAgain(failure);
    return;
  }
  tone::Pace pace(platform_);
  if (output == base::Output::kHelper16) pace.Wait(kClassicStartMs);
  pace.Wait(program_.extra_time_ms);
  pace.Wait(tone.duration_ms);
}

// Sound32's helper is looked for in two modes that start none: another copy may have left it.
void Form9::EndHelper() {
  switch (sound_mode_) {
    case base::SoundMode::kClassic:
      helpers_.End(base::Output::kHelper16);
      break;
    case base::SoundMode::kSound32:
    case base::SoundMode::kDirectSound:
    case base::SoundMode::kAutomatic:
      helpers_.End(base::Output::kHelper32);
      break;
    case base::SoundMode::kWinmm:
    case base::SoundMode::kNone:
      break;
  }
}

void Form9::ShowAllPlayed() {
  Label1.SetCaption(base::BareNumber(ToneCount()));
  ProgressBar1.SetValue(ToneCount());
}

}  // namespace program_files
