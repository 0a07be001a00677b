#include "tone/helper_programs.h"

#include "base/command_line.h"
#include "base/errors.h"
#include "platform/interpreter.h"

namespace tone {
namespace {

constexpr char kStarter16[] = "play16.exe";
constexpr char kSounding16[] = "tone16.dll";
constexpr char kSounding32[] = "tone32.dll";

}  // namespace

void HelperPrograms::Start(base::Output output, Named named) {
  if (output == base::Output::kHelper16) {
    RequireOwn(kStarter16);
    RequireOwn(kSounding16);
    platform::StartInterpreter(platform_, StarterCommand(named));
  } else if (output == base::Output::kHelper32) {
    platform_.processes.StartHidden(RequireOwn(kSounding32), kSounding32);
  }
}

// The interpreter would look for one that is not there along PATH.
std::string HelperPrograms::RequireOwn(const std::string& name) {
  const std::string path = platform_.environment.ProgramFolder() + "\\" + name;
  if (!platform_.files.Exists(path)) throw base::RuntimeError(base::ErrorCode::kFileNotFound);
  return path;
}

// Where this variable is set, the interpreter looks for a bare name along PATH only.
std::string HelperPrograms::StarterCommand(Named named) {
  const bool looks_elsewhere =
      !platform_.environment.Get("NoDefaultCurrentDirectoryInExePath").empty();
  if (named == Named::kAlone && !looks_elsewhere) return std::string("cmd /c ") + kStarter16;
  return base::InterpreterCommand(platform_.environment.ProgramFolder(), kStarter16);
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
