// Who tells of a call that went wrong: by the call, which error value the report may have.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "tests/app/faults/scene.h"

namespace app::faults {

enum class Telling {
  kReport,    // the error dialog, with one of the values or one of the scenario's handlers
  kSilence,   // nothing is said
  kEither,    // shows only where the failure is noticed, if it is
  kMessage,   // a message box of its own and no report
  kPatience,  // what is held is waited for, so that only other failures are reported
  kLastWord,  // no handler is on the way: the dialog comes without a report
  kGone,      // not even windows are there yet: the program ends
};

struct Rule {
  std::string_view call;  // a part of its name
  Telling telling;
  std::vector<int> values;
};

// Procedures that report under a value of their own, whoever calls them.
inline const std::vector<int> kProcedures{102,  103,  104,  106,  108,  1010, 1012,
                                          1013, 1014, 1015, 1024, 1025, 1026, 1027};

// The first that fits counts. A call without a rule is reported by the handler.
inline const std::vector<Rule>& Rules() {
  using enum Telling;
  static const std::vector<Rule> rules{
      // Before anything is on the screen, and what a click does before its handler runs.
      {"environment.Arguments", kGone, {}},
      {"environment.FullPath", kGone, {}},
      {"environment.SetCurrentFolder", kGone, {}},
      {"environment.ProgramFolder", kEither, {502, 1025}},
      {"windows.Open Form1", kLastWord, {}},
      {"windows.Changed Form1.Option", kEither, {1010, 1015}},
      {"windows.Changed Form5.Co", kEither, {501, 504}},
      {"windows.Changed Form5.Ch", kEither, {501}},
      {"windows.ShowWindow Form1", kEither, {}},

      // A variable that cannot be read is an empty one, and only its reader knows what that means.
      {"environment.Get", kEither, kProcedures},
      {"code_page", kEither, kProcedures},
      {"pump.", kEither, kProcedures},

      {"environment.DecimalSign", kSilence, {}},
      {"environment.SystemFolder", kEither, {1025}},  // a helper is silent, an upload is not
      {"environment.ProgramName", kEither, {14, 15, 502}},

      // Files. The first lines of the log are not waited for.
      {"files.Exists", kEither, {}},
      {"files.Beginning", kSilence, {}},
      {"files.Delete C:\\Temp\\userdata.txt", kEither, {14}},
      {"files.OpenForReading C:\\Temp\\userdata.txt", kPatience, {108}},
      {"file.Read C:\\Temp\\userdata.txt", kPatience, {108}},
      {"files.OpenForWriting C:\\Temp\\userdata.txt", kPatience, kProcedures},
      {"file.Write C:\\Temp\\userdata.txt", kPatience, kProcedures},
      {"file.Close C:\\Temp\\userdata.txt", kPatience, kProcedures},
      {"tonmira.ini", kReport, {102, 103, 502}},
      {"lng_", kReport, {1015}},
      {"files.Delete C:\\Temp\\test.txt", kEither, {1012}},
      {"files.Delete C:\\Users\\Tom\\AppData\\Roaming\\test.txt", kReport, {1012}},
      {"test.txt", kMessage, {}},
      {"files.Delete C:\\Temp\\testcon.dat", kEither, {14}},
      {"updatetonmira.txt", kReport, {1013, 1024}},
      {"snd.ini", kReport, {1025}},
      {"files.Delete C:\\Temp\\testhearing.ini", kEither, {}},

      // Sound never says anything.
      {"sound.ini", kSilence, {}},
      {"tnfwinmmtmp", kSilence, {}},
      {"waves.", kSilence, {}},
      {"beeper.", kSilence, {}},
      {"awake_output.", kSilence, {}},
      {"silence.", kSilence, {}},
      {"timers.Start 60000", kSilence, {}},
      {"direct_sound.", kSilence, {}},
      {"processes.Snapshot", kSilence, {}},
      {"processes.Terminate", kSilence, {}},
      {"play16.exe", kSilence, {}},
      {"tone32.dll", kSilence, {}},
      {"windows.IsShown", kSilence, {}},
      {"windows.Changed Form1.StatusBar1", kEither, {1015}},

      // Recording says so in a message, or shows nothing.
      {"capture.Start", kSilence, {}},
      {"capture.Stop", kSilence, {}},
      {"capture.Read", kSilence, {}},
      {"capture.", kMessage, {}},
      {"windows.Changed Form1.picWave", kReport, {37}},

      // The web and the news.
      {"downloader.Begin", kReport, {1024}},
      {"download.", kSilence, {}},
      {"upsend.exe", kReport, {1025}},
      {"clock.Now", kReport, {106}},
      {"random.Next", kReport, {106}},
      {"Form3", kReport, {14, 301}},
      {"Form7", kReport, {1013, 702}},

      // The system, and windows by the procedure that fills them.
      {"screen.", kReport, {1026}},
      {"version.Query", kReport, {1027}},
      {"registry.", kMessage, {}},
      {"messages.Show", kSilence, {}},
      {"file_dialogs.", kSilence, {}},
      {"timers.Start", kReport, {1014}},
      {"windows.Changed Form1.Picture1", kReport, {1010, 1014}},
      {"windows.Changed Form1.", kReport, {102, 103, 1010, 1015}},
      {"windows.Open Form5", kReport, {104}},
      {"windows.ShowWindow Form5", kReport, {104}},
      {"Form5", kReport, {501, 504}},
      {"windows.Open Form9", kReport, {14}},
      {"files.OpenForReading C:\\My Tones", kMessage, {}},
      {"file.Read C:\\My Tones", kMessage, {}},
      {"Form9", kSilence, {}},
      {"windows.Open Form4", kReport, {4}},
      {"windows.ShowWindow Form4", kReport, {4}},
      {"Form4", kSilence, {}},
      {"frmAbout", kReport, {1, 1015}},
  };
  return rules;
}

inline Rule RuleFor(std::string_view call) {
  for (const Rule& rule : Rules()) {
    if (call.find(rule.call) != std::string_view::npos) return rule;
  }
  return {call, Telling::kReport, {}};
}

// The value in the first line of the error log; 0 when there is none.
inline int ReportedValue(const Outcome& outcome) {
  if (outcome.error_log.empty()) return 0;
  const std::string& line = outcome.error_log.front();
  return std::stoi(line.substr(line.rfind(':') + 1));
}

// What is wrong with the way in which the failure was told; empty when nothing is.
inline std::string WrongReport(const Scenario& scenario, const Outcome& outcome, Fault fault) {
  using enum Telling;
  const Rule rule = RuleFor(outcome.hit);
  const Telling telling = rule.telling != kPatience ? rule.telling
                          : fault == Fault::kDenied ? kSilence
                                                    : kReport;
  const int value = ReportedValue(outcome);
  const bool last_word = outcome.error_dialogs == 1 && value == 0;
  const auto holds = [value](const std::vector<int>& values) {
    return std::find(values.begin(), values.end(), value) != values.end();
  };
  for (const std::string& text : outcome.messages) {
    if (text.find("Run-time error") != std::string::npos) return "a message nobody knows";
  }
  // The first error is shown all the same, whatever became of its log. What fails once the dialog
  // is there has it shown once more.
  if (scenario.reports) {
    const int dialogs = outcome.error_dialogs;
    return dialogs == 1 || dialogs == 2 ? "" : std::to_string(dialogs) + " dialogs";
  }
  if (outcome.hit == scenario.ahead) {
    return value == 0 && outcome.error_dialogs == 0 ? "" : "told of what nobody waits for";
  }
  if (scenario.silent) return outcome.error_dialogs == 0 ? "" : "an error dialog";
  if (outcome.error_dialogs > 1) return "two error dialogs";
  if (last_word && telling != kLastWord && telling != kEither) return "an untrapped error";
  if (value == 0) {
    if (telling == kReport) return "not reported";
    if (telling == kLastWord && !last_word) return "the last word is missing";
    if (telling == kMessage && outcome.messages.empty()) return "no message";
    return "";
  }
  const bool first_lines = rule.telling == kPatience && value == 14;
  if (first_lines) return "";
  if (telling != kReport && telling != kEither) return "reported as " + std::to_string(value);
  if (holds(rule.values) || holds(scenario.values)) return "";
  return "reported under the wrong value " + std::to_string(value);
}

}  // namespace app::faults
