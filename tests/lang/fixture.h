// The language loader on a simulated machine, with one small window to translate.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lang/language_loader.h"
#include "lang/texts.h"
#include "platform/simulated/simulation.h"
#include "tests/lang/file_of.h"
#include "tests/lang/noting_errors.h"

namespace lang {

using platform::simulated::Kind;
using Lines = std::vector<std::string>;

// Has a caption of every kind.
class SmallWindow : public ui::Window {
 public:
  explicit SmallWindow(ui::WindowSystem& system)
      : ui::Window(system, {"Small", "Small", 200, 80}) {}

  ui::OptionButton Option1{*this, 100, "Option1", {8, 8, 80, 18}, "Low pitch"};
  ui::Label Label1{*this, 101, "Label1", {8, 32, 80, 18}, "Select a mode"};
  ui::MenuItem exit{*this, 1000, "exit", "Exit"};

  std::vector<CaptionSlot> Captions() {
    return {{Slot::kOption1, &Option1},
            {Slot::kExit, &exit},
            {Slot::kSelectAMode, &Label1},
            {Slot::kMorseTitle, this}};
  }
};

class LanguageLoaderTest : public testing::Test {
 protected:
  platform::simulated::Simulation sim;
  NotingErrors errors;
  SmallWindow window{sim.services.windows};
  Texts texts;
  Lines asked;  // the windows whose captions were asked for
  Lines taken;  // the windows for which the message texts were taken, and what they showed then
  Captions captions{
      [this](std::int16_t formval) { return CaptionsOf(formval); },
      [this](const LanguageFile& file, std::int16_t formval) {
        texts.Take(file);
        taken.push_back(std::to_string(formval) + " with Option1 as " + window.Option1.Caption());
      }};
  LanguageLoader loader{sim.services, captions, errors};

 private:
  std::vector<CaptionSlot> CaptionsOf(std::int16_t formval) {
    asked.push_back(std::to_string(formval));
    return formval == kMainWindow ? window.Captions() : std::vector<CaptionSlot>{};
  }
};

}  // namespace lang
