// The Morse tool: sounds a typed message as Morse code through the current sound mode.
//
// Play returns only when its loop ends: at position 500 or at the stop flag. The fields of a play
// belong to the window, so a second Play during the silent tail of the first shares them.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "lang/language_loader.h"
#include "platform/platform.h"
#include "settings/main_state.h"
#include "tone/awake.h"
#include "tone/route_support.h"
#include "tone/short_tones.h"
#include "ui/window.h"

namespace morse {

class Form4 : public ui::Window {
 public:
  // `load_captions` translates this window where the language asks for it.
  Form4(platform::Platform& platform, settings::MainState& state, tone::PlayScene& play_scene,
        std::function<void()> load_captions);

  ui::Label Label3{*this, 100, "Label3", {16, 14, 448, 18}, "Text:"};
  ui::TextBox Text1{*this, 101, "Text1", {16, 34, 448, 112}, "", ui::TextBox::Lines::kMany};
  ui::Label Label1{
      *this, 102, "Label1", {16, 160, 350, 18}, "Speed (normal + this (ms)) (higher is slower):"};
  ui::TextBox Text2{*this, 103, "Text2", {374, 156, 90, 24}, "0"};
  ui::Label Label2{*this, 104, "Label2", {16, 192, 350, 18}, "Pitch (Hertz):"};
  ui::TextBox Text3{*this, 105, "Text3", {374, 188, 90, 24}, "700"};
  ui::LineControl Line1{*this, 106, "Line1", {16, 224, 448, 1}};
  ui::CheckBox Check1{*this, 107, "Check1", {16, 234, 448, 22}, "Hide input"};
  ui::LineControl Line2{*this, 108, "Line2", {16, 266, 448, 1}};
  ui::Button Command1{*this, 109, "Command1", {16, 278, 218, 34}, "Play sound"};
  ui::Button Command2{*this, 110, "Command2", {246, 278, 218, 34}, "Stop sound"};

  std::int16_t stop_flag = 0;  // 1 = stop requested, and after loading

  // The captions of this window, by slot of a language file.
  std::vector<lang::CaptionSlot> Captions();

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  static constexpr std::int16_t kLastPosition = 500;

  void Command1_Click();
  void Command2_Click();
  void Check1_Click();

  // A number as the user's locale writes it, with a point for its decimal sign.
  std::string WithPoint(const std::string& number);
  void TakeNumbers();
  void Correct(std::int32_t& value, std::int32_t corrected, const std::string& title,
               const std::string& text, ui::TextBox& field);
  void TakeMessage();
  void PlayLoop();
  // Returns when its last tone was over, or nothing where it has no tones.
  std::optional<platform::Moment> SoundCharacter(const std::string& character);
  void UnloadIfHidden();
  const std::string& CharacterAt(std::int16_t position) const;

  platform::Platform& platform_;
  settings::MainState& state_;
  tone::PlayScene& play_scene_;
  std::function<void()> load_captions_;
  tone::ShortTones tones_;
  tone::Awake awake_;

  std::int16_t loading_ = 0;
  std::int16_t position_ = 1;
  std::int32_t speed_long_ = 0;
  std::int32_t pitch_long_ = 0;
  std::int16_t speed_ = 0;
  std::int16_t pitch_ = 0;
  std::array<std::string, kLastPosition + 1> characters_;  // UTF-8, one each, from 1
};

}  // namespace morse
