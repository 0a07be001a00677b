#include "tone/process_killer.h"

#include "base/text.h"

namespace tone {

int ProcessKiller::KillProcess(const std::string& name_process) {
  if (name_process.empty()) return 0;
  const std::string ending = base::ToLower(name_process);
  int ended = 0;
  for (const platform::ProcessEntry& process : platform_.processes.Snapshot()) {
    const bool matches = base::EndsWith(base::ToLower(process.name), ending);
    if (matches && platform_.processes.Terminate(process.id)) ++ended;
  }
  return ended;
}

}  // namespace tone
