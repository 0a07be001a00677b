#include "settings/form6.h"

#include <utility>

namespace settings {

Form6::Form6(ui::WindowSystem& system, std::function<void()> unload_all,
             std::function<void()> visit_site)
    : ui::Window(system, {"Form6", "Error", 500, 214}), unload_all_(std::move(unload_all)) {
  Command1.OnClick = [this] { Leave(); };
  Command2.OnClick = std::move(visit_site);
  SetDefaultButton(&Command1);
  SetCancelButton(&Command1);
}

void Form6::Present(const std::vector<std::string>& lines) {
  done_flag = 0;
  Load();
  List1.SetItems(lines);
  Show();
}

void Form6::Close() {
  Handle([this] { Leave(); });
}

void Form6::Leave() {
  done_flag = 1;
  unload_all_();
}

}  // namespace settings
