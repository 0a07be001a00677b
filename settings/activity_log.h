// The activity log: "userdata.txt" in the temporary folder, one line per thing that the user or
// the program did in this run, at most 100 lines.
//
// Lines 1 and 2 are the date and time of the start, line 3 is empty. The log is read back with the
// free-format field reader before every entry, so an entry with commas becomes several lines.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "base/error_trap.h"
#include "platform/platform.h"

namespace settings {

class ActivityLog {
 public:
  ActivityLog(platform::Platform& platform, base::ErrorReporter& errors)
      : platform_(platform), errors_(errors) {}

  // Appends one entry; a full log has its last line replaced. A log that is held, by a virus
  // scanner say, is waited for, for a second at most. Throws base::RuntimeError.
  void PrintFile(std::string_view newdata);

  // Reads the log into the slots. Slots without an entry keep what they hold. Error value
  // kLoadFile.
  void LoadFile();

 private:
  static constexpr std::size_t kMaxLines = 100;
  static constexpr int kTries = 6;
  static constexpr int kPauseMs = 200;

  // Calls `body` until the log is not held any more, kTries times at most.
  void Insist(const std::function<void()>& body);

  std::string Path() const;

  platform::Platform& platform_;
  base::ErrorReporter& errors_;
  std::array<std::string, kMaxLines + 1> slots_;  // slot N holds line N
};

}  // namespace settings
