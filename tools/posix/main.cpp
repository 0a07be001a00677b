// tnf on Linux and its like, where a text is UTF-8 already.
#include <csignal>
#include <string>
#include <vector>

#include "tools/command_line.h"
#include "tools/system.h"

int main(int count, char** arguments) {
  // Who closes a pipe is told of as an error of writing.
  std::signal(SIGPIPE, SIG_IGN);
  tools::System system;
  return system.Close(
      tools::RunTnf(std::vector<std::string>(arguments + 1, arguments + count), system));
}
