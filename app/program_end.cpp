#include "app/program_end.h"

#include "base/text.h"

namespace app {

void ProgramEnd::WriteTest() {
  base::TrapErrors(errors_, base::ErrorValue::kWriteTest, [this] {
    const std::string app_data = platform_.environment.Get("APPDATA");
    const std::string temp = platform_.environment.Get("TEMP");
    for (const std::string& folder : {temp, app_data}) {
      if (CanWriteIn(folder)) continue;
      platform_.messages.Show("Write error", "Write error", platform::MessageIcon::kExclamation,
                              platform::MessageButtons::kOk);
      platform_.processes.EndProcess();
    }
  });
}

void ProgramEnd::Terminate() {
  base::TrapErrors(errors_, base::ErrorValue::kTerminate, [this] {
    state_.stop_flag = 1;
    usage_.SendData();
    windows_.unload_other_windows();
    windows_.unload_main_window();
    platform_.processes.EndProcess();
  });
}

bool ProgramEnd::CanWriteIn(const std::string& folder) {
  const std::string probe = folder + "\\test.txt";
  // Not being able to write is what the test is there to find out, no run-time error.
  const auto failure =
      base::Caught([&] { platform_.Texts().Write(probe, base::Line("Tonmira write test")); });
  if (!failure && platform_.files.Exists(probe)) {
    platform_.files.Delete(probe);
    return true;
  }
  base::Quietly([&] { platform_.files.Delete(probe); });
  return false;
}

}  // namespace app
