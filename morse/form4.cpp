#include "morse/form4.h"

#include <utility>

#include "base/error_trap.h"
#include "base/numbers.h"
#include "base/pitches.h"
#include "base/text.h"
#include "morse/morse_code.h"
#include "tone/pace.h"

namespace morse {
namespace {

constexpr std::int16_t kTurnMs = 20;
constexpr char32_t kBackspace = 8;

}  // namespace

Form4::Form4(platform::Platform& platform, settings::MainState& state, tone::PlayScene& play_scene,
             std::function<void()> load_captions)
    : ui::Window(platform.windows, {"Form4", "Morse tool", 480, 328}),
      platform_(platform),
      state_(state),
      play_scene_(play_scene),
      load_captions_(std::move(load_captions)),
      tones_(platform, state, play_scene),
      awake_(platform) {
  Command1.OnClick = [this] { Command1_Click(); };
  Command2.OnClick = [this] { Command2_Click(); };
  Check1.OnClick = [this] { Check1_Click(); };
  for (ui::TextBox* field : {&Text2, &Text3}) {
    field->AcceptsKey = [this, field](char32_t key) {
      if (key == kBackspace) return true;
      const std::string text = field->Text() + static_cast<char>(key);
      return key < 128 && base::IsNumber(WithPoint(text));
    };
  }
  Text1.SelectAtFirstEntry();
  SetDefaultButton(&Command1);
  SetCancelButton(&Command2);
}

std::vector<lang::CaptionSlot> Form4::Captions() {
  using lang::Slot;
  return {{Slot::kMorseSpeed, &Label1},  {Slot::kMorsePitch, &Label2},
          {Slot::kMorseHide, &Check1},   {Slot::kMorseText, &Label3},
          {Slot::kMorsePlay, &Command1}, {Slot::kMorseStop, &Command2},
          {Slot::kMorseTitle, this},     {Slot::kMorseMessage, &Text1}};
}

void Form4::Form_Load() {
  if (loading_ == 1) return;
  loading_ = 1;
  base::Quietly([this] {
    stop_flag = 1;
    Check1.SetValue(false);
    Text1.SetText("Type your message here...");
    load_captions_();
  });
  if (tones_.Audible()) awake_.Prepare();
  loading_ = 0;
}

void Form4::Form_Unload() {
  stop_flag = 1;
  awake_.End();
}

void Form4::Command1_Click() {
  base::Quietly([this] {
    ReadFields();
    TakeNumbers();
    TakeMessage();
    position_ = 1;
    stop_flag = 0;
    Command1.SetEnabled(false);
    Command2.SetEnabled(true);
    if (tones_.Audible()) awake_.Begin([this] { return stop_flag == 1; });
    base::Quietly([this] { PlayLoop(); });
    awake_.End();
  });
}

void Form4::Command2_Click() {
  base::Quietly([this] {
    tone::RouteSupport(platform_, state_, play_scene_).KillAll();
    Command1.SetEnabled(true);
    Command2.SetEnabled(false);
    stop_flag = 1;
  });
}

void Form4::Check1_Click() {
  base::Quietly([this] {
    const bool shown = !Check1.Value();
    Text1.SetVisible(shown);
    Label3.SetVisible(shown);
  });
}

std::string Form4::WithPoint(const std::string& number) {
  return base::WithPoint(number, platform_.environment.DecimalSign());
}

void Form4::TakeNumbers() {
  speed_long_ = base::ToInt32(base::NumberFromText(WithPoint(Text2.Text())));
  pitch_long_ = base::ToInt32(base::NumberFromText(WithPoint(Text3.Text())));
  if (speed_long_ > 500) Correct(speed_long_, 0, "Max Speed", "Max speed = 500", Text2);
  if (pitch_long_ < 50) Correct(pitch_long_, 700, "Min Pitch", "Min pitch = 50 Hertz", Text3);
  if (pitch_long_ > base::kHighestPitch) {
    const std::string highest = base::BareNumber(base::kHighestPitch);
    Correct(pitch_long_, 700, "Max Pitch", "Max pitch = " + highest, Text3);
  }
  speed_ = base::ToInt16(speed_long_);
  pitch_ = base::ToInt16(pitch_long_);
}

void Form4::Correct(std::int32_t& value, std::int32_t corrected, const std::string& title,
                    const std::string& text, ui::TextBox& field) {
  value = corrected;
  platform_.messages.Show(text, title, platform::MessageIcon::kExclamation,
                          platform::MessageButtons::kOk);
  field.SetText(base::BareNumber(corrected));
}

void Form4::TakeMessage() {
  const auto message = base::Characters(Text1.Text());
  for (std::size_t i = 1; i < characters_.size(); ++i) {
    characters_[i] = i <= message.size() ? message[i - 1] : "";
  }
}

void Form4::PlayLoop() {
  tone::Pace pause(platform_);
  for (;;) {
    pause.Apart([this] { platform_.pump.ProcessPending([this] { return stop_flag == 1; }); });
    pause.Wait(kTurnMs);
    const std::string character = CharacterAt(position_);
    if (character == " ") pause.Wait(WordPause(speed_));
    if (position_ == kLastPosition) break;
    if (const auto ended = SoundCharacter(character)) pause.BeginAt(*ended);
    pause.Wait(CharacterPause(speed_));
    ++position_;
    UnloadIfHidden();
    if (CharacterAt(position_).empty()) {
      awake_.End();
      Command1.SetEnabled(true);
      Command2.SetEnabled(false);
    }
    if (stop_flag == 1) break;
  }
  stop_flag = 0;
}

// A character without a code is passed over in silence and without a message.
std::optional<platform::Moment> Form4::SoundCharacter(const std::string& character) {
  std::optional<platform::Moment> ended;
  if (character.size() != 1) return ended;
  for (const char symbol : SymbolsOf(character[0])) {
    ended = tones_.sound(pitch_, symbol == '.' ? DotLength(speed_) : DashLength(speed_));
  }
  return ended;
}

void Form4::UnloadIfHidden() {
  if (play_scene_.MainWindowVisible() && OnScreen()) return;
  Unload();
  // Also for a play that this one began in the tail of.
  stop_flag = 1;
}

const std::string& Form4::CharacterAt(std::int16_t position) const {
  if (position < 0 || position > kLastPosition) {
    throw base::RuntimeError(base::ErrorCode::kSubscriptOutOfRange);
  }
  return characters_[static_cast<std::size_t>(position)];
}

}  // namespace morse
