// The pointer that the system shows while a program starts.
#pragma once

namespace helpers {

// The system shows a busy pointer until a program first asks for its messages. In a file of its
// own: whoever does not call it does not have the system's window library loaded, which takes a
// third of a helper's start.
void EndBusyPointer();

}  // namespace helpers
