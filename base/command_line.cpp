#include "base/command_line.h"

#include <algorithm>

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

// What cmd takes for nothing but a part of a name, with quotes around it or, but for the blank,
// without.
bool IsPlain(char c) {
  return IsLetter(c) || IsDigit(c) || std::string_view(" \\:._-").find(c) != std::string_view::npos;
}

}  // namespace

std::string_view Arguments(std::string_view command_line, std::string_view program_path) {
  std::size_t at = BeginsWithProgram(command_line, program_path) ? program_path.size()
                                                                 : NameLength(command_line);
  while (at < command_line.size() && IsBlank(command_line[at])) ++at;
  return command_line.substr(at);
}

std::string InterpreterCommand(const std::string& folder, const std::string& name) {
  if (folder.find_first_of("%!") != std::string::npos) return "cmd /c .\\" + name;
  const std::string program = "\"" + folder + "\\" + name + "\"";
  const bool plain = std::all_of(folder.begin(), folder.end(), IsPlain);
  return "cmd /c " + (plain ? program : "\"" + program + "\"");
}

}  // namespace base
