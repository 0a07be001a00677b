// What must hold whatever the bytes are: a process that breaks it ends with a message, which is how
// libFuzzer knows of a finding. Memory, time and undefined behaviour are the sanitizers' and
// libFuzzer's own business.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace fuzz {

inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", what);
  std::abort();
}

}  // namespace fuzz
