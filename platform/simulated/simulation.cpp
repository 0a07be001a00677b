#include "platform/simulated/simulation.h"

#include <utility>

namespace platform::simulated {

Simulation::Simulation() {
  files.AddFolder("C:\\Tonmira");
  for (const char* program : {"play16.exe", "tone32.dll", "upsend.exe"}) {
    files.Put(std::string("C:\\Tonmira\\") + program, "");
  }
  files.AddFolder(kTemp);
  files.AddFolder(kAppData);
  for (const char* helper : {"play16.exe", "tone16.dll", "tone32.dll"}) {
    files.Put(environment.program_folder + "\\" + helper, "a program");
  }
  environment.variables["TEMP"] = kTemp;
  environment.variables["APPDATA"] = kAppData;
}

void Simulation::At(std::chrono::milliseconds moment, std::function<void()> action) {
  pump.At(moment.count(), std::move(action));
}

bool Simulation::Run(const std::function<void()>& program) {
  try {
    program();
    return false;
  } catch (const ProcessEnded&) {
    return true;
  } catch (const ScriptOver&) {
    return false;
  }
}

std::vector<std::string> Simulation::Lines(const std::string& path) const {
  const std::string content = files.Get(path).value_or("");
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < content.size()) {
    const std::size_t end = std::min(content.find("\r\n", start), content.size());
    lines.push_back(content.substr(start, end - start));
    start = end + 2;
  }
  return lines;
}

}  // namespace platform::simulated
