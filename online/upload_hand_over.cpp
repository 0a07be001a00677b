#include "online/upload_hand_over.h"

#include "base/text.h"

namespace online {

// With one of certain characters between the quotes, the command interpreter takes the first and
// the last quote of its command away. A second pair is there to be taken then.
std::string UploadCommand(const std::string& program_folder) {
  const std::string program = "\"" + program_folder + "\\upsend.exe\"";
  const bool loses_quotes = program_folder.find_first_of("&<>()@^|") != std::string::npos;
  return "cmd /c " + (loses_quotes ? "\"" + program + "\"" : program);
}

void UploadHandOver::FTPSend(const std::string& LocalFileName, const std::string& FileName) {
  settings::TrapErrors(errors_, settings::kUploadErrorValue, [&] {
    platform_.Texts().Write(platform_.environment.Get("TEMP") + "\\snd.ini",
                            base::Line(LocalFileName) + base::Line(FileName));
    platform_.processes.StartHidden(UploadCommand(platform_.environment.ProgramFolder()));
  });
}

}  // namespace online
