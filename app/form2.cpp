#include "app/form2.h"

#include <utility>

namespace app {

Form2::Form2(ui::WindowSystem& system, std::function<void()> load_captions)
    : ui::Window(system, {"Form2", "Help", 560, 464}), load_captions_(std::move(load_captions)) {
  Command1.OnClick = [this] { Unload(); };
  SetDefaultButton(&Command1);
  SetCancelButton(&Command1);
}

std::vector<lang::CaptionSlot> Form2::Captions() {
  using lang::Slot;
  return {{Slot::kHelpHeading, &Label1},
          {Slot::kHelpPlay, &Label2},
          {Slot::kHelpPitches, &Label3},
          {Slot::kHelpSweep, &Label4},
          {Slot::kHelpCustomPitch, &Label5},
          {Slot::kHelpTools, &Label6},
          {Slot::kHelpSoundModesHeading, &Label7},
          {Slot::kHelpSoundModes, &Label8},
          {Slot::kHelpVolume, &Label9}};
}

}  // namespace app
