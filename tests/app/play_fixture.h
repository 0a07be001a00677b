// The program with a user who plays.
#pragma once

#include "tests/app/fixture.h"

namespace app {

class PlayTest : public ProgramTest {
 protected:
  Lines EntriesAfterStart() const {
    const Lines entries = LogEntries();
    return Lines(entries.begin() + 13, entries.end());
  }
};

}  // namespace app
