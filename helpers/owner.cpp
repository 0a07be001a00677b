#include "helpers/owner.h"

#include <array>
#include <optional>
#include <string_view>

#include "base/owner_text.h"

namespace helpers {
namespace {

constexpr DWORD kLongestText = 64;

std::optional<base::Owner> NamedOwner() {
  std::array<char, kLongestText> text;
  const DWORD length = GetEnvironmentVariableA(base::kOwner, text.data(), kLongestText);
  if (length >= kLongestText) return std::nullopt;
  return base::ParseOwner(std::string_view(text.data(), length));
}

// Another process may have the number by now.
bool BeganAt(HANDLE process, std::uint64_t moment) {
  FILETIME began{};
  FILETIME ignored{};
  if (!GetProcessTimes(process, &began, &ignored, &ignored, &ignored)) return true;
  return (static_cast<std::uint64_t>(began.dwHighDateTime) << 32 | began.dwLowDateTime) == moment;
}

}  // namespace

OwnerProcess::OwnerProcess() {
  const std::optional<base::Owner> owner = NamedOwner();
  if (!owner) return;
  process_ = platform::windows::Own(
      OpenProcess(SYNCHRONIZE | PROCESS_QUERY_INFORMATION, FALSE, owner->process));
  if (process_) {
    ended_before_ = !BeganAt(process_.get(), owner->began);
  } else {
    // Nobody has the number. One that merely may not be opened is not known to have ended.
    ended_before_ = GetLastError() == ERROR_INVALID_PARAMETER;
  }
}

bool OwnerProcess::Ended() const {
  return ended_before_ || (process_ && WaitForSingleObject(process_.get(), 0) == WAIT_OBJECT_0);
}

}  // namespace helpers
