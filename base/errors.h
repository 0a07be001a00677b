// Run-time errors: what a failing service throws and what every handler traps.
//
// The numbers are the ones users find in the error log; descriptions are fixed English texts.
// Expected bad input (a damaged file) is never an error, it is a value.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace base {

enum class ErrorCode : std::int16_t {
  kInvalidCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kSubscriptOutOfRange = 9,
  kTypeMismatch = 13,
  kBadFileName = 52,
  kFileNotFound = 53,
  kDeviceError = 57,
  kDiskFull = 61,
  kPermissionDenied = 70,
  kPathFileAccess = 75,
  kPathNotFound = 76,
};

// The description of `code`, e.g. "Permission denied".
const char* Description(ErrorCode code);

class RuntimeError : public std::runtime_error {
 public:
  explicit RuntimeError(ErrorCode code) : std::runtime_error(Description(code)), code_(code) {}

  ErrorCode code() const { return code_; }
  std::int16_t number() const { return static_cast<std::int16_t>(code_); }
  std::string description() const { return what(); }

 private:
  ErrorCode code_;
};

}  // namespace base
