#include "platform/windows/system/file_errors.h"

namespace platform::windows {
namespace {

bool ReadOnlyOrFolder(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES &&
         (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0;
}

}  // namespace

base::ErrorCode FileErrorCode(DWORD system_error, const std::wstring& path) {
  switch (system_error) {
    case ERROR_FILE_NOT_FOUND:
      return base::ErrorCode::kFileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
      return base::ErrorCode::kPathNotFound;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_WRITE_PROTECT:
      return base::ErrorCode::kPermissionDenied;
    case ERROR_ACCESS_DENIED:
      return ReadOnlyOrFolder(path) ? base::ErrorCode::kPathFileAccess
                                    : base::ErrorCode::kPermissionDenied;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_NOT_ENOUGH_QUOTA:
      return base::ErrorCode::kDiskFull;
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
      return base::ErrorCode::kBadFileName;
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
      return base::ErrorCode::kOutOfMemory;
    default:
      return base::ErrorCode::kDeviceError;
  }
}

void ThrowFileError(DWORD system_error, const std::wstring& path) {
  throw base::RuntimeError(FileErrorCode(system_error, path));
}

bool MayPass(DWORD system_error, const std::wstring& path) {
  switch (system_error) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
      return true;
    case ERROR_ACCESS_DENIED:
      return !ReadOnlyOrFolder(path);
    default:
      return false;
  }
}

}  // namespace platform::windows
