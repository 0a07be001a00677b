// tnf.exe: the arguments as Windows has them, in UTF-8.
#include <string>
#include <vector>

#include "tools/command_line.h"
#include "tools/system.h"
#include "tools/windows/wide.h"

extern "C" int wmain(int count, wchar_t** arguments) {
  std::vector<std::string> words;
  for (int i = 1; i < count; ++i) words.push_back(tools::native::Narrow(arguments[i]));
  tools::System system;
  return system.Close(tools::RunTnf(words, system));
}
