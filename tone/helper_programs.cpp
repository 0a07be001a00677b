#include "tone/helper_programs.h"

#include "base/command_line.h"
#include "base/errors.h"

namespace tone {
namespace {

constexpr char kStarter16[] = "play16.exe";
constexpr char kSounding16[] = "tone16.dll";
constexpr char kSounding32[] = "tone32.dll";

}  // namespace

void HelperPrograms::Start(base::Output output, Named named) {
  platform::Processes& processes = platform_.processes;
  if (output == base::Output::kHelper16) ExpectClassic();
  if (output == base::Output::kHelper16 && named == Named::kAlone) {
    processes.StartHidden(std::string("cmd /c ") + kStarter16);
  } else if (output == base::Output::kHelper16) {
    processes.StartHidden(
        base::InterpreterCommand(platform_.environment.ProgramFolder(), kStarter16));
  } else if (output == base::Output::kHelper32) {
    processes.StartHidden(kSounding32);
  }
}

// The command interpreter starts in any case, whatever it finds then.
void HelperPrograms::ExpectClassic() {
  const std::string folder = platform_.environment.ProgramFolder() + "\\";
  for (const char* name : {kStarter16, kSounding16}) {
    if (!platform_.files.Exists(folder + name)) {
      throw base::RuntimeError(base::ErrorCode::kFileNotFound);
    }
  }
}

void HelperPrograms::End(base::Output output) {
  if (output == base::Output::kHelper16) killer_.KillProcess(kSounding16);
  if (output == base::Output::kHelper32) killer_.KillProcess(kSounding32);
}

void HelperPrograms::EndAll() {
  End(base::Output::kHelper32);
  End(base::Output::kHelper16);
}

}  // namespace tone
