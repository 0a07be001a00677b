#include "platform/start_errors.h"

namespace platform {

base::ErrorCode StartErrorCode(std::uint32_t system_error) {
  switch (system_error) {
    case 2:  // ERROR_FILE_NOT_FOUND
      return base::ErrorCode::kFileNotFound;
    case 3:    // ERROR_PATH_NOT_FOUND
    case 15:   // ERROR_INVALID_DRIVE
    case 53:   // ERROR_BAD_NETPATH
    case 67:   // ERROR_BAD_NET_NAME
    case 267:  // ERROR_DIRECTORY
      return base::ErrorCode::kPathNotFound;
    case 5:     // ERROR_ACCESS_DENIED
    case 32:    // ERROR_SHARING_VIOLATION
    case 33:    // ERROR_LOCK_VIOLATION
    case 740:   // ERROR_ELEVATION_REQUIRED
    case 1223:  // ERROR_CANCELLED
      return base::ErrorCode::kPermissionDenied;
    case 225:   // ERROR_VIRUS_INFECTED
    case 226:   // ERROR_VIRUS_DELETED
    case 577:   // ERROR_INVALID_IMAGE_HASH
    case 786:   // ERROR_ACCESS_DISABLED_NO_SAFER_UI_BY_POLICY
    case 1260:  // ERROR_ACCESS_DISABLED_BY_POLICY
    case 1277:  // ERROR_ACCESS_DISABLED_WEBBLADE
    case 1278:  // ERROR_ACCESS_DISABLED_WEBBLADE_TAMPER
    case 4551:  // ERROR_SYSTEM_INTEGRITY_POLICY_VIOLATION
      return base::ErrorCode::kPathFileAccess;
    case 8:     // ERROR_NOT_ENOUGH_MEMORY
    case 14:    // ERROR_OUTOFMEMORY
    case 1455:  // ERROR_COMMITMENT_LIMIT
      return base::ErrorCode::kOutOfMemory;
    case 123:  // ERROR_INVALID_NAME
    case 161:  // ERROR_BAD_PATHNAME
    case 206:  // ERROR_FILENAME_EXCED_RANGE
      return base::ErrorCode::kBadFileName;
    default:
      return base::ErrorCode::kInvalidCall;
  }
}

}  // namespace platform
