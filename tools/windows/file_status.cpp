// The C++ library asks how much of a file is left with a function that the runtime library of
// Windows 2000 lacks; a program that imports it does not start there. No file is read through the
// C++ library here (only argument parsing's unused configuration files would be), so that the
// answer "not known" serves.
#ifndef _WIN64
#include <cerrno>

namespace {

int __cdecl NotKnown(int /*file*/, void* /*status*/) {
  errno = ENOSYS;
  return -1;
}

}  // namespace

// The import's place, by the name that the compiler makes of it on 32 bits.
extern "C" int(__cdecl* const _imp___fstat64)(int, void*) = NotKnown;
#endif
