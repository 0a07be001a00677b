// How fine the system's timers are for this process.
#pragma once

namespace platform::windows {

// From Windows 11 on the system does not heed a program's wish for fine timers (timeBeginPeriod)
// while none of its windows can be seen; then tones that follow each other would be too long. This
// asks it to heed it always. Does nothing where the system knows no such thing.
void KeepTimersFine();

}  // namespace platform::windows
