#include "base/errors.h"

namespace base {

const char* Description(ErrorCode code) {
  switch (code) {
    case ErrorCode::kInvalidCall:
      return "Invalid procedure call or argument";
    case ErrorCode::kOverflow:
      return "Overflow";
    case ErrorCode::kOutOfMemory:
      return "Out of memory";
    case ErrorCode::kSubscriptOutOfRange:
      return "Subscript out of range";
    case ErrorCode::kTypeMismatch:
      return "Type mismatch";
    case ErrorCode::kBadFileName:
      return "Bad file name or number";
    case ErrorCode::kFileNotFound:
      return "File not found";
    case ErrorCode::kDeviceError:
      return "Device I/O error";
    case ErrorCode::kDiskFull:
      return "Disk full";
    case ErrorCode::kPermissionDenied:
      return "Permission denied";
    case ErrorCode::kPathFileAccess:
      return "Path/File access error";
    case ErrorCode::kPathNotFound:
      return "Path not found";
  }
  return "Unknown error";
}

}  // namespace base
