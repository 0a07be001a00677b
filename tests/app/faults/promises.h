// What holds whichever call goes wrong.
#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/text.h"
#include "tests/app/faults/reports.h"
#include "tests/app/faults/scenarios.h"

namespace app::faults {

// What a run without a fault left, and which settings lines it had on the way.
struct Normal {
  Outcome outcome;
  std::vector<std::set<std::string>> settings;  // by line
  std::string settings_before;                  // what the file held when the program started
};

// Names of the files that a program which ended by itself may leave in the user's folders, beside
// those that a run without a fault leaves.
inline bool MayStay(const std::string& path, const Normal& normal) {
  return normal.outcome.disk.contains(path) || path == kErrorLog || path == kLog ||
         path == kUploadHandOver || path == kSettings;
}

inline Lines LinesOf(const std::string& content) {
  Lines lines;
  std::size_t start = 0;
  for (std::size_t end; (end = content.find("\r\n", start)) != std::string::npos; start = end + 2) {
    lines.push_back(content.substr(start, end - start));
  }
  if (start < content.size()) lines.push_back(content.substr(start) + " (no line end)");
  return lines;
}

inline void TakeLines(const std::optional<std::string>& content, Normal& normal) {
  if (!content) return;
  const Lines lines = LinesOf(*content);
  normal.settings.resize(std::max(normal.settings.size(), lines.size()));
  for (std::size_t i = 0; i < lines.size(); ++i) normal.settings[i].insert(lines[i]);
}

inline Normal RunNormally(const Scenario& scenario) {
  Normal normal;
  Scene scene(scenario, 0, Fault::kFails);
  scene.calls.on_call = [&](const char*, std::string_view) {
    TakeLines(scene.sim.files.Get(kSettings), normal);
  };
  if (scenario.machine) {
    platform::simulated::Simulation machine;
    scenario.machine(machine);
    normal.settings_before = machine.files.Get(kSettings).value_or("");
  }
  normal.outcome = scene.Run();
  TakeLines(scene.sim.files.Get(kSettings), normal);
  // What a microphone that cannot be used leads to.
  if (normal.settings.size() == 6) normal.settings[5].insert("MicrophoneON=n");
  return normal;
}

// Old or new, line by line and whole.
inline std::string WrongSettings(const Normal& normal, const Outcome& outcome) {
  const auto settings = outcome.disk.find(kSettings);
  if (settings == outcome.disk.end()) {
    return normal.settings_before.empty() ? "" : "the settings are gone";
  }
  if (settings->second == normal.settings_before) return "";
  const Lines lines = LinesOf(settings->second);
  bool good = lines.size() == normal.settings.size();
  for (std::size_t i = 0; good && i < lines.size(); ++i) {
    good = normal.settings[i].contains(lines[i]);
  }
  return good ? "" : "settings: " + settings->second;
}

inline std::string LeftBehind(const Normal& normal, const Outcome& outcome) {
  for (const auto& [path, content] : outcome.disk) {
    // Nobody can delete a file whose deletion fails, or in a folder that is not known.
    const bool refused =
        outcome.hit == "files.Delete " + path || outcome.hit.starts_with("environment.Get");
    if (!MayStay(path, normal) && !refused) return "left behind: " + path;
  }
  return "";
}

// Starts the program on what a run has left, on a machine where all is well, plays a tone and
// leaves. What is wrong with that; empty when nothing is.
inline std::string WrongNextStart(const Normal& normal, std::map<std::string, std::string> disk) {
  disk.erase(kErrorLog);
  const bool first_run = !disk.contains(kSettings) || LinesOf(disk.at(kSettings)).size() != 6;
  Scenario scenario{"next start", {}, nullptr, {}, false};
  Scene scene(scenario, 0, Fault::kFails);
  for (const auto& [path, bytes] : disk) scene.sim.files.Put(path, bytes);
  Outcome begun;
  scenario.user = {{990ms, [&](Application&) { begun.disk = scene.sim.files.All(); }},
                   MainStep(1000ms, [](Form1& form1) {
                     form1.Option2.Click();
                     form1.Command2.Click();
                   })};
  scene.sim.At(1200ms, [&] {
    begun.main_window = scene.program->form1.Visible();
    if (scene.program->form5.Visible() != first_run) begun.hit = "the wrong window";
    scene.program->form1.Command3.Click();
  });
  const Outcome after = scene.Run();
  if (after.end != "ended") return "next start: " + after.end;
  if (begun.main_window == first_run) return "next start: the main window is wrong";
  if (!begun.hit.empty()) return "next start: " + begun.hit;
  if (after.error_dialogs > 0) return "next start: " + after.error_log.at(0);
  if (!after.messages.empty()) return "next start: " + after.messages.front();
  begun.disk.erase(kUpdateFile);  // the next search for updates replaces it
  const std::string left = LeftBehind(normal, begun);
  return left.empty() ? "" : "the next start has " + left;
}

// What is wrong with a run; empty when nothing is.
inline std::string Wrong(const Scenario& scenario, const Normal& normal, const Outcome& outcome,
                         Fault fault) {
  const bool gone = RuleFor(outcome.hit).telling == Telling::kGone ||
                    outcome.hit.starts_with("environment.ProgramFolder");
  if (outcome.hit.empty()) return "the call was not made again";
  if (outcome.end != "ended" && !gone) return outcome.end;
  if (outcome.plays_at_once > 1) return "a second play within the first";
  if (!outcome.twice.empty() && outcome.hit.find("waves.Stop") != 0 &&
      outcome.hit.find("processes.") != 0) {
    return "sounds twice: " + outcome.twice;
  }
  if (!outcome.missing.empty()) return "plays what is not there: " + outcome.missing;
  if (const std::string wrong = WrongSettings(normal, outcome); !wrong.empty()) return wrong;
  if (fault == Fault::kKilled) return "";
  if (outcome.stuck) return "neither Play nor Stop";
  if (!outcome.sounding.empty() && outcome.hit.find("processes.") != 0) {
    return "sounds on: " + outcome.sounding;
  }
  if (const std::string wrong = WrongReport(scenario, outcome, fault); !wrong.empty()) return wrong;
  return LeftBehind(normal, outcome);
}

}  // namespace app::faults
