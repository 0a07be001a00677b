// Why a program could not be started.
#pragma once

#include <cstdint>

#include "base/errors.h"

namespace platform {

// The program's error for `system_error`, the system's number as winerror.h lists it: 53 or 76 it
// is not there, 70 no access, or somebody holds the file, 75 a policy or a virus scanner blocks it,
// 7 no memory, 52 no file name, 5 it is no program for this system, and all else.
base::ErrorCode StartErrorCode(std::uint32_t system_error);

}  // namespace platform
