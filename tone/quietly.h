// The trap of procedures that end quietly when something fails: no message, no log.
#pragma once

#include <new>

#include "base/errors.h"

namespace tone {

// Runs `body`; false when it threw a run-time error.
template <class Body>
bool Quietly(const Body& body) {
  try {
    body();
    return true;
  } catch (const base::RuntimeError&) {
    return false;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

}  // namespace tone
