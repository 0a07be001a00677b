#include "online/upload_hand_over.h"

#include "base/command_line.h"
#include "base/text.h"

namespace online {

void UploadHandOver::FTPSend(const std::string& LocalFileName, const std::string& FileName) {
  base::TrapErrors(errors_, base::ErrorValue::kFTPSend, [&] {
    platform_.Texts().Write(platform_.environment.Get("TEMP") + "\\snd.ini",
                            base::Line(LocalFileName) + base::Line(FileName));
    platform_.processes.StartHidden(
        base::InterpreterCommand(platform_.environment.ProgramFolder(), "upsend.exe"));
  });
}

}  // namespace online
