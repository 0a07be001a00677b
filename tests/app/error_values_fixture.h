// The program with a user who meets an error and leaves its dialog.
#pragma once

#include <functional>
#include <string>

#include "tests/app/fixture.h"

namespace app {

class ErrorValueTest : public ProgramTest {
 protected:
  // `action` makes a handler fail one second after the start.
  void FailAt1s(std::function<void(Form1&)> action) {
    At(1s, std::move(action));
    LeaveTheErrorDialogAt(2s);
  }

  void LeaveTheErrorDialogAt(std::chrono::milliseconds moment) {
    sim.At(moment, [this] { program->form6.Command1.Click(); });
  }

  // The numbers of the next reports do not fit: 0.99 * 59 * 23 * 31 + 1 = 41646.
  void FailTheNextReports(int count) {
    sim.clock.now = {2026, 12, 31, 23, 59, 59};
    sim.random.first.assign(static_cast<std::size_t>(count), 0.99);
    sim.random.next = 0;
  }

  std::string FirstLine() const {
    const Lines lines = sim.Lines(kErrorLog);
    return lines.empty() ? "" : lines[0];
  }
};

}  // namespace app
