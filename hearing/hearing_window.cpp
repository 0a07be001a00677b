#include "hearing/hearing_window.h"

#include <array>

#include "hearing/age_guide.h"
#include "hearing/trial_sound.h"

namespace hearing {
namespace {

constexpr double kSeeds = 2147483646;  // of the random numbers that a procedure draws

}  // namespace

HearingWindow::HearingWindow(const Services& services, Language language)
    : ui::Window(services.windows, {"HearingAge", std::string(TextsOf(language).title), 472, 396}),
      services_(services),
      texts_(TextsOf(language)) {
  cmdStart.OnClick = [this] { Start(); };
  cmdYes.OnClick = [this] { Answer(true); };
  cmdNo.OnClick = [this] { Answer(false); };
  cmdClose.OnClick = [this] { Unload(); };
  SetCancelButton(&cmdClose);
}

void HearingWindow::DesignState() {
  cmdStart.SetCaption(std::string(texts_.start));
  cmdYes.SetCaption(std::string(texts_.yes));
  cmdNo.SetCaption(std::string(texts_.no));
  cmdClose.SetCaption(std::string(texts_.close));
  lblCaution.SetCaption(std::string(texts_.caution));
  picScale.SetSpokenName(std::string(texts_.scale));
  const std::array<ui::Label*, kBarAges.size()> labels{&lblAge30, &lblAge40, &lblAge50, &lblAge60,
                                                       &lblAge70};
  for (std::size_t bar = 0; bar < labels.size(); ++bar) {
    labels[bar]->SetCaption(std::string(texts_.age) + std::to_string(kBarAges[bar]));
  }
  EndTest();
  ShowScale(false);
  SayOnPage(texts_.first_page);
}

void HearingWindow::Form_Unload() {
  EndTest();
}

void HearingWindow::HelpRequested() {
  services_.messages.Show(std::string(texts_.help), Caption(), platform::MessageIcon::kNone,
                          platform::MessageButtons::kOk);
}

void HearingWindow::Start() {
  lblResult.SetCaption("");
  lblAges.SetCaption("");
  ShowScale(false);
  timer_.reset();
  const std::optional<ToneOutput::Rates> rates = services_.output.Open();
  if (!rates) return End(texts_.no_device);
  rates_ = *rates;
  const int highest = HighestPitchAt(rates_.carried_hz);
  if (highest < kLowestPitch) return End(texts_.device_too_low);
  procedure_.emplace(highest, static_cast<std::uint32_t>(services_.random.Next() * kSeeds) + 1);
  SetDefaultButton(&cmdYes);
  cmdYes.SetEnabled(true);
  cmdNo.SetEnabled(true);
  cmdStart.SetEnabled(false);
  SayOnPage(std::string(texts_.answering) + " " + LimitText(texts_, highest));
  pause_ms_ = 0;
  BeginTrial();
}

void HearingWindow::BeginTrial() {
  asking_ = false;
  playing_ = false;
  if (pause_ms_ == 0) return Play();
  lblState.SetCaption("");
  timer_ = services_.timers.Start(kTickMs, [this] { Handle([this] { Tick(); }); });
}

void HearingWindow::Play() {
  lblState.SetCaption(std::string(texts_.listen));
  if (!services_.output.Play(TrialSound(procedure_->Current(), rates_.stream_hz))) {
    return End(texts_.device_lost);
  }
  playing_ = true;
  sounding_ms_ = 0;
  timer_ = services_.timers.Start(kTickMs, [this] { Handle([this] { Tick(); }); });
}

void HearingWindow::Tick() {
  if (!playing_) {
    pause_ms_ -= kTickMs;
    if (pause_ms_ <= 0) Play();
    return;
  }
  sounding_ms_ += kTickMs;
  if (services_.output.Played()) {
    // A device that went away may give everything back at once.
    if (sounding_ms_ < kTrialMs / 2) return End(texts_.device_lost);
    Ask();
  } else if (sounding_ms_ >= kTrialMs + kLostAfterMs) {
    End(texts_.device_lost);
  }
}

void HearingWindow::Ask() {
  timer_.reset();
  playing_ = false;
  asking_ = true;
  lblState.SetCaption(std::string(texts_.question));
}

void HearingWindow::Answer(bool heard) {
  if (!asking_) return;
  const bool check = procedure_->Current() == kCheckPitch;
  procedure_->Answer(heard);
  if (procedure_->verdict() != Verdict::kNone) return ShowVerdict();
  pause_ms_ = 0;
  const std::string limit = LimitText(texts_, procedure_->highest());
  if (check && !heard) {
    pause_ms_ = kLouderPauseMs;
    SayOnPage(texts_.louder);
  } else {
    SayOnPage(std::string(texts_.answering) + " " + limit);
  }
  BeginTrial();
}

void HearingWindow::ShowVerdict() {
  switch (procedure_->verdict()) {
    case Verdict::kHeard:
      return ShowResult();
    case Verdict::kNoCheckTone:
      return End(texts_.no_check_tone);
    case Verdict::kNothingHeard:
      lblResult.SetCaption(std::string(texts_.nothing_heard));
      lblAges.SetCaption(std::string(texts_.nothing_heard_reason));
      break;
    case Verdict::kSilenceHeard:
      lblResult.SetCaption(std::string(texts_.not_reliable));
      lblAges.SetCaption(std::string(texts_.silence_heard));
      break;
    default:
      lblResult.SetCaption(std::string(texts_.not_reliable));
      lblAges.SetCaption(std::string(texts_.contradictory));
      break;
  }
  End(texts_.again);
}

void HearingWindow::ShowResult() {
  const int pitch = procedure_->Result();
  const std::string limit = LimitText(texts_, procedure_->highest());
  lblResult.SetCaption(std::string(texts_.highest_heard) + PitchText(pitch));
  lblAges.SetCaption(AgesText(texts_, AgesOf(pitch)) + (limit.empty() ? "" : " " + limit));
  ShowScale(true);
  End(texts_.again);
  DrawAt(pitch);
  timer_ = services_.timers.Start(kRedrawMs, [this, pitch] {
    if (picScale.Picture().width() != drawn_width_) DrawAt(pitch);
  });
}

void HearingWindow::DrawAt(int pitch_hz) {
  picScale.Draw([pitch_hz](ui::Canvas& canvas) { DrawScale(pitch_hz, canvas); });
  drawn_width_ = picScale.Picture().width();
}

void HearingWindow::End(std::string_view reason) {
  SayOnPage(reason);
  EndTest();
}

void HearingWindow::EndTest() {
  timer_.reset();
  services_.output.Close();
  procedure_.reset();
  asking_ = false;
  playing_ = false;
  lblState.SetCaption("");
  SetDefaultButton(&cmdStart);
  cmdStart.SetEnabled(true);
  cmdYes.SetEnabled(false);
  cmdNo.SetEnabled(false);
}

void HearingWindow::ShowScale(bool visible) {
  for (ui::Control* const control : Controls()) {
    if (control->Id() >= lblAge30.Id() && control->Id() <= lblPitch20.Id()) {
      control->SetVisible(visible);
    }
  }
}

void HearingWindow::SayOnPage(std::string_view text) {
  lblText.SetCaption(std::string(text));
}

}  // namespace hearing
