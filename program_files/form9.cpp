// The player window and its load routine.
#include "program_files/form9.h"

#include "base/error_trap.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "program_files/program_reader.h"

namespace program_files {

Form9::Form9(platform::Platform& platform, settings::MainState& state, tone::PlayScene& play_scene,
             Surroundings around)
    : ui::Window(platform.windows, {"Form9", "Tonmira", 480, 160}),
      platform_(platform),
      state_(state),
      around_(std::move(around)),
      support_(platform, state, play_scene),
      helpers_(platform) {
  ProgressBar1.DesignSpokenName("Tones played");
  Command1.OnClick = [this] { Command1_Click(); };
  Command2.OnClick = [this] { Command2_Click(); };
  Command3.OnClick = [this] { Command3_Click(); };
  SetDefaultButton(&Command1);
  SetCancelButton(&Command2);
}

void Form9::Form_Load() {
  base::Quietly([this] { LoadProgram(); });
  if (closes_after_loading_) Unload();
}

void Form9::LoadProgram() {
  around_.unload_news_window();
  if (loading_guard_ == 1) return;
  loading_guard_ = 1;
  state_.stop_flag = 0;
  KillHelpers();
  Label4.SetCaption(file_path_);
  if (!platform_.files.Exists(file_path_)) {
    IllFile();
    return;
  }
  if (Audible()) awake_.Prepare();
  bool whole = false;
  if (!base::Quietly([&] { whole = ReadLines(); })) IllFile();
  if (!whole) return;
  Command1.SetEnabled(false);
  if (!Parse()) {
    IllFile();
    return;
  }
  // Also when it is to be closed after the play: what sounds can be stopped and left.
  if (program_.hidden_flag == 0) Show();
  PlayUntilDone();
  if (program_.hidden_flag == 1) Unload();
}

std::unique_ptr<platform::InputFile> Form9::OpenFile() {
  auto file = platform_.files.OpenForReading(file_path_);
  if (!file) throw base::RuntimeError(base::ErrorCode::kFileNotFound);
  return file;
}

// False when the file is too large to be a program: there is nothing to check or play then.
bool Form9::ReadLines() {
  using enum FirstPass::Progress;
  const auto file = OpenFile();
  FirstPass pass(*file, parse_.lines,
                 [this](std::string_view line) { return platform_.code_page.Decode(line); });
  FirstPass::Step step{kGoesOn, {}};
  while (step.progress == kGoesOn) {
    step = pass.ReadLine();
    Tell(step.findings);
  }
  return step.progress == kDone;
}

// False when the file cannot be read a second time.
bool Form9::Parse() {
  ProgramChecks checks(parse_, program_);
  Tell(checks.CheckHead());
  std::int32_t lines = 0;
  if (!base::Quietly([&] { lines = SecondPass(*OpenFile()); })) return false;
  base::Quietly([&] {
    checks.BeginEntries(lines);
    while (checks.HasEntry()) {
      platform_.pump.ProcessPending();
      Tell(checks.CheckEntry());
    }
    Label2.SetCaption(base::BareNumber(ToneCount()));
  });
  return true;
}

void Form9::Tell(std::span<const Finding> findings) {
  for (const Finding& finding : findings) {
    if (finding.report == Report::kVersion) {
      lowFile();
    } else {
      IllFile();
    }
  }
}

void Form9::IllFile() {
  platform_.messages.Show(file_path_ + " is not a legal tnf file!", "Error",
                          platform::MessageIcon::kCritical, platform::MessageButtons::kOk);
  CloseAfterLoading();
}

void Form9::lowFile() {
  platform_.messages.Show("Your Tonmira version is not compatible with this file!", "Error",
                          platform::MessageIcon::kExclamation, platform::MessageButtons::kOk);
  CloseAfterLoading();
}

// The load routine goes on: every failed check has its message, and what was read is played, where
// Stop ends it, too.
void Form9::CloseAfterLoading() {
  closes_after_loading_ = true;
  Hide();
}

void Form9::KillHelpers() {
  helpers_.EndAll();
}

void Form9::Form_Unload() {
  awake_.End();
  base::Quietly([this] {
    // A helper may just have begun to sound, as it is started without waiting for it.
    if (playing_ && SoundsByHelper()) EndHelper();
    around_.unload_every_window();
  });
}

}  // namespace program_files
