#include "program_files/helper_command.h"

namespace program_files {

std::string ClassicHelperCommand(const std::string& folder) {
  const std::string program = "\"" + folder + "\\play16.exe\"";
  // With one of these between the quotes, cmd takes the outermost quotes away ("cmd /?" tells so).
  const bool loses_quotes = folder.find_first_of("&<>()@^|") != std::string::npos;
  return "cmd /c " + (loses_quotes ? "\"" + program + "\"" : program);
}

}  // namespace program_files
