#include "online/upload_hand_over.h"

#include "base/command_line.h"
#include "base/text.h"
#include "platform/interpreter.h"

namespace online {
namespace {

constexpr char kUploader[] = "\\upsend.exe";

}  // namespace

void UploadHandOver::FTPSend(const std::string& LocalFileName, const std::string& FileName) {
  base::TrapErrors(errors_, base::ErrorValue::kFTPSend, [&] {
    platform_.Texts().Write(platform_.environment.Get("TEMP") + "\\snd.ini",
                            base::Line(LocalFileName) + base::Line(FileName));
    const std::string folder = platform_.environment.ProgramFolder();
    // The interpreter could take another file for one that is not there.
    if (!platform_.files.Exists(folder + kUploader)) return;
    platform::StartInterpreter(platform_, base::InterpreterCommand(folder, kUploader + 1));
  });
}

}  // namespace online
