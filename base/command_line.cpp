#include "base/command_line.h"

#include "base/characters.h"
#include "base/text.h"

namespace base {
namespace {

bool BeginsWithProgram(std::string_view line, std::string_view path) {
  return !path.empty() && ToLower(line.substr(0, path.size())) == ToLower(path) &&
         (line.size() == path.size() || IsBlank(line[path.size()]));
}

std::size_t NameLength(std::string_view line) {
  bool quoted = false;
  std::size_t at = 0;
  for (; at < line.size() && (quoted || !IsBlank(line[at])); ++at) {
    if (line[at] == '"') quoted = !quoted;
  }
  return at;
}

}  // namespace

std::string_view Arguments(std::string_view command_line, std::string_view program_path) {
  std::size_t at = BeginsWithProgram(command_line, program_path) ? program_path.size()
                                                                 : NameLength(command_line);
  while (at < command_line.size() && IsBlank(command_line[at])) ++at;
  return command_line.substr(at);
}

std::string InterpreterCommand(const std::string& folder, const std::string& name) {
  const std::string program = "\"" + folder + "\\" + name + "\"";
  const bool loses_quotes = folder.find_first_of("&<>()@^|") != std::string::npos;
  return "cmd /c " + (loses_quotes ? "\"" + program + "\"" : program);
}

}  // namespace base
