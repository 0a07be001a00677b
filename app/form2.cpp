#include "app/form2.h"

namespace app {

Form2::Form2(ui::WindowSystem& system) : ui::Window(system, {"Form2", "Help", 560, 432}) {}

}  // namespace app
