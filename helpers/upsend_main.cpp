// upsend.exe: sends the log that the hand-over file "snd.ini" names to the maker's site and ends,
// after kTimeLimitMs at the latest. Shows nothing, whatever happens; the exit code is kSent only if
// the server has taken the log.
#include <array>
#include <string_view>

#include "helpers/destination.h"
#include "helpers/busy_pointer.h"
#include "helpers/environment.h"
#include "helpers/log_file.h"
#include "helpers/upload.h"
#include "helpers/web_put.h"
#include "online/addresses.h"
#include "platform/windows/api/system_library.h"
#include "platform/windows/api/windows_api.h"

namespace {

using helpers::WideText;

constexpr UINT kSent = 0;
constexpr UINT kNotSent = 1;
constexpr UINT kTooSlow = 2;
constexpr DWORD kTimeLimitMs = 19000;

DWORD WINAPI EndInTime(void*) {
  Sleep(kTimeLimitMs);
  // At once: an orderly end would wait for what hangs.
  TerminateProcess(GetCurrentProcess(), kTooSlow);
  return 0;
}

bool LimitTime() {
  return static_cast<bool>(
      platform::windows::Own(CreateThread(nullptr, 0, EndInTime, nullptr, 0, nullptr)));
}

// A short text of bytes.
template <std::size_t kSize>
struct Bytes {
  std::array<char, kSize> space;
  std::size_t size = 0;

  std::string_view view() const { return {space.data(), size}; }
};

// One byte more than the file may have, so that a longer one is seen to be longer.
using HandOver = Bytes<helpers::kLongestHandOver + 1>;

HandOver ReadHandOver(const WideText& folder) {
  HandOver text;
  const auto file =
      helpers::OpenToRead(WideText(folder).Append(L"\\snd.ini"), FILE_ATTRIBUTE_NORMAL);
  DWORD size = 0;
  if (file && ReadFile(file.get(), text.space.data(), text.space.size(), &size, nullptr)) {
    text.size = size;
  }
  return text;
}

// The folder's path as the hand-over file holds it: in the system's code page, with question marks
// for what that lacks. Empty if it is too long for the file.
HandOver InCodePage(const WideText& folder) {
  HandOver text;
  const bool is_utf8 = GetACP() == CP_UTF8;
  text.size = static_cast<std::size_t>(
      WideCharToMultiByte(CP_ACP, is_utf8 ? 0 : WC_NO_BEST_FIT_CHARS, folder.c_str(),
                          static_cast<int>(folder.view().size()), text.space.data(),
                          static_cast<int>(text.space.size()), is_utf8 ? nullptr : "?", nullptr));
  return text;
}

// The value of TONMIRA_SITE. Characters that no base can have become question marks, which none
// can have either; of a value that is too long so much is kept that it still is.
Bytes<online::kLongestSite + 1> NamedSite() {
  Bytes<online::kLongestSite + 1> named;
  const WideText value =
      helpers::EnvironmentVariable(WideText().AppendAscii(online::kSiteVariable).c_str());
  for (const wchar_t c : value.view()) {
    if (named.size == named.space.size()) break;
    named.space[named.size++] = c < 0x80 ? static_cast<char>(c) : '?';
  }
  return named;
}

bool Send() {
  const WideText folder = helpers::EnvironmentVariable(L"TEMP");
  const HandOver hand_over = ReadHandOver(folder);
  const auto upload = helpers::ParseUpload(hand_over.view(), InCodePage(folder).view());
  if (!upload) return false;
  helpers::LogFile log(WideText(folder).Append(L"\\").AppendAscii(helpers::FileName(upload->log)));
  if (log.content().empty()) return false;
  const auto named = NamedSite();
  const auto destination = helpers::DestinationOf(online::SiteBase(named.view()));
  const WideText path = WideText()
                            .AppendAscii(destination.folder)
                            .AppendAscii(online::kUploadFolder)
                            .AppendAscii(upload->name);
  return helpers::Put(destination, path, log.content());
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  platform::windows::LoadFromSystemFolderOnly();
  SetErrorMode(SEM_FAILCRITICALERRORS);
  helpers::EndBusyPointer();
  return LimitTime() && Send() ? kSent : kNotSent;
}
