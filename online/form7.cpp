#include "online/form7.h"

#include "online/links.h"
#include "online/web_link.h"

namespace online {

Form7::Form7(platform::Platform& platform, base::ErrorReporter& errors)
    : ui::Window(platform.windows, {"Form7", "Update found", 500, 198}),
      platform_(platform),
      errors_(errors) {
  Command1.OnClick = [this] { Command1_Click(); };
  Command2.OnClick = [this] { Command2_Click(); };
  // No default button: Enter, which the user may be typing elsewhere when the dialog comes up,
  // opens no link.
  SetCancelButton(&Command2);
}

// The link was written by whoever answered for the site. One that is no web address is not
// started; the program then goes on as after a check that failed.
void Form7::Command1_Click() {
  base::TrapErrors(errors_, base::ErrorValue::kUpdateAccept, [this] {
    if (IsWebAddress(download_link)) {
      OpenInBrowser(platform_, download_link);
      platform_.processes.EndProcess();
    }
    settings::ActivityLog(platform_, errors_).PrintFile("> Update error");
    Unload();
  });
}

void Form7::Command2_Click() {
  base::TrapErrors(errors_, base::ErrorValue::kUpdateDecline, [this] { Unload(); });
}

}  // namespace online
