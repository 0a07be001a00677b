#include "app/leftovers.h"

#include <algorithm>

#include "base/error_trap.h"
#include "base/text.h"

namespace app {
namespace {

// In the temporary folder.
constexpr const char* kNames[] = {"tnfwinmmtmp.wav", "sound.ini", "testcon.dat", "testhearing.ini",
                                  "test.txt"};
// Files that arrive or are replaced under a temporary name, and there is a second generated tone.
constexpr const char* kWithTemporaryNames[] = {"tnfwinmmtmp.wav", "testcon.dat",
                                               "updatetonmira.txt", "error.log"};
constexpr char kTemporaryEnding[] = ".tmp";

}  // namespace

void Leftovers::ClearAtStart() {
  if (!Alone()) return;
  for (const char* name : kNames) Delete(TempFolder() + name);
  ClearTemporaryNames();
}

void Leftovers::ClearAtEnd(const settings::MainState& state) {
  for (const std::string& own : {state.own_wave, state.hearing_file}) {
    if (!own.empty()) Delete(own);
  }
  if (Alone()) ClearTemporaryNames();
}

std::string Leftovers::TempFolder() {
  return platform_.environment.Get("TEMP") + "\\";
}

void Leftovers::ClearTemporaryNames() {
  for (const char* name : kWithTemporaryNames) DeleteTemporaryNames(TempFolder() + name);
  DeleteTemporaryNames(platform_.environment.Get("APPDATA") + "\\tonmira.ini");
}

// This copy may be among the processes, too.
bool Leftovers::Alone() {
  const std::string own = base::ToLower(platform_.environment.ProgramName() + ".exe");
  const auto processes = platform_.processes.Snapshot();
  return std::count_if(processes.begin(), processes.end(), [&](const auto& process) {
           return base::ToLower(process.name) == own;
         }) <= 1;
}

void Leftovers::Delete(const std::string& path) {
  base::Quietly([&] {
    if (platform_.files.Exists(path)) platform_.files.Delete(path);
  });
}

void Leftovers::DeleteTemporaryNames(const std::string& path) {
  for (const std::string& found : platform_.files.Beginning(path + ".")) {
    if (base::EndsWith(base::ToLower(found), kTemporaryEnding)) Delete(found);
  }
}

}  // namespace app
