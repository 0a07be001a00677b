#include "platform/windows/system/clock.h"

#include "platform/windows/api/wide_text.h"
#include "platform/windows/api/windows_api.h"

namespace platform::windows {
namespace {

constexpr int kLongestFormat = 80;  // characters; what the system allows a date or time format

}  // namespace

LocalTime WindowsClock::Now() {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

std::string WindowsClock::ShortDate() {
  wchar_t text[kLongestFormat * 2] = L"";
  GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, text, kLongestFormat * 2);
  return Narrow(text);
}

std::string WindowsClock::ShortTime() {
  wchar_t text[kLongestFormat * 2] = L"";
  GetTimeFormatW(LOCALE_USER_DEFAULT, TIME_NOSECONDS, nullptr, nullptr, text, kLongestFormat * 2);
  return Narrow(text);
}

WindowsRandom::WindowsRandom() {
  FILETIME now{};
  GetSystemTimeAsFileTime(&now);
  state_ = (static_cast<std::uint64_t>(now.dwHighDateTime) << 32 | now.dwLowDateTime) ^
           static_cast<std::uint64_t>(GetCurrentProcessId()) << 32;
}

double WindowsRandom::Next() {
  state_ += 0x9E3779B97F4A7C15u;
  std::uint64_t mixed = state_;
  mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
  mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
  mixed ^= mixed >> 31;
  return static_cast<double>(mixed >> 11) * 0x1p-53;
}

}  // namespace platform::windows
