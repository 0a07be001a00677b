// What the compiler's stack protector needs of the program: a value that nobody outside can know,
// and an end at once where a function finds it overwritten. The compiler's own library for this
// would bring messages on a console that these programs do not have.
#include <cstdint>

#include "platform/windows/api/windows_api.h"

namespace {

constexpr UINT kOverrun = 0xC0000409;  // STATUS_STACK_BUFFER_OVERRUN, the exit code

// A byte of zero: what copies texts cannot write it.
constexpr std::uintptr_t kTextEnd = 0xFF;

std::uintptr_t Stirred(std::uintptr_t value, std::uint64_t more) {
  constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;
  const std::uint64_t mixed = (value + more) * kOdd;
  return static_cast<std::uintptr_t>(mixed ^ mixed >> 32);
}

}  // namespace

// The compiler fixes these names.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,readability-identifier-naming)
extern "C" {

std::uintptr_t __stack_chk_guard = 0;

[[noreturn]] void __stack_chk_fail() {
  TerminateProcess(GetCurrentProcess(), kOverrun);
  for (;;) {
  }
}

}  // extern "C"

// Before any other code of the program. A function that is running then would miss the value that
// it has kept, so this one keeps none.
__attribute__((constructor(101), no_stack_protector)) static void ChooseStackGuard() {
  FILETIME now;
  LARGE_INTEGER counter;
  GetSystemTimeAsFileTime(&now);
  QueryPerformanceCounter(&counter);
  std::uintptr_t value = reinterpret_cast<std::uintptr_t>(&now);
  value = Stirred(value, now.dwLowDateTime);
  value = Stirred(value, static_cast<std::uint64_t>(counter.QuadPart));
  value = Stirred(value, GetCurrentProcessId());
  value = Stirred(value, GetCurrentThreadId());
  value = Stirred(value, GetTickCount());
  value = Stirred(value, reinterpret_cast<std::uintptr_t>(&ChooseStackGuard));
  __stack_chk_guard = value & ~kTextEnd;
}
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,readability-identifier-naming)
