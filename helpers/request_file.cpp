#include "helpers/request_file.h"

#include <array>

#include "helpers/environment.h"
#include "helpers/request.h"
#include "platform/windows/api/windows_api.h"

namespace helpers {
namespace {

std::uint64_t Joined(const FILETIME& time) {
  return static_cast<std::uint64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

}  // namespace

RequestFile::RequestFile() : path_(EnvironmentVariable(L"TEMP")) {
  path_.Append(L"\\sound.ini");
}

std::optional<std::uint32_t> RequestFile::Read() {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (!GetFileAttributesExW(path_.c_str(), GetFileExInfoStandard, &data)) return std::nullopt;
  written_ = Joined(data.ftLastWriteTime);
  const platform::windows::KernelHandle file = OpenToRead(path_, FILE_ATTRIBUTE_NORMAL);
  // One character more than a line may have, so that a longer one is seen to be longer.
  std::array<char, kLongestLine + 1> text;
  DWORD size = 0;
  if (!file || !ReadFile(file.get(), text.data(), text.size(), &size, nullptr)) return std::nullopt;
  return ParseRequest({text.data(), size});
}

bool RequestFile::Missing() const {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (GetFileAttributesExW(path_.c_str(), GetFileExInfoStandard, &data)) {
    return Joined(data.ftLastWriteTime) != written_;
  }
  const DWORD error = GetLastError();
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

}  // namespace helpers
