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
  return {{31, &Label1}, {32, &Label2}, {33, &Label3}, {34, &Label4}, {35, &Label5},
          {37, &Label6}, {38, &Label7}, {39, &Label8}, {40, &Label9}};
}

}  // namespace app
