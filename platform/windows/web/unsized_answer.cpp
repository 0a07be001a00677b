#include "platform/windows/web/unsized_answer.h"

#include <algorithm>
#include <memory>

#include "platform/windows/api/system_library.h"
#include "platform/windows/api/windows_api.h"

#include <wininet.h>

namespace platform::windows {
namespace {

constexpr DWORD kTimeoutMs = 3000;
constexpr DWORD kFlags = INTERNET_FLAG_NO_AUTO_REDIRECT | INTERNET_FLAG_NO_AUTH |
                         INTERNET_FLAG_NO_COOKIES | INTERNET_FLAG_NO_UI |
                         INTERNET_FLAG_NO_CACHE_WRITE | INTERNET_FLAG_RELOAD |
                         INTERNET_FLAG_PRAGMA_NOCACHE;

// The functions of wininet.dll that are needed here.
struct Internet {
  const HMODULE library = LoadSystemLibrary(L"wininet.dll");
  decltype(&InternetOpenW) open = FunctionOf<decltype(&InternetOpenW)>(library, "InternetOpenW");
  decltype(&InternetSetOptionW) set_option =
      FunctionOf<decltype(&InternetSetOptionW)>(library, "InternetSetOptionW");
  decltype(&InternetOpenUrlW) open_url =
      FunctionOf<decltype(&InternetOpenUrlW)>(library, "InternetOpenUrlW");
  decltype(&HttpQueryInfoW) query =
      FunctionOf<decltype(&HttpQueryInfoW)>(library, "HttpQueryInfoW");
  decltype(&InternetReadFile) read =
      FunctionOf<decltype(&InternetReadFile)>(library, "InternetReadFile");
  decltype(&InternetCloseHandle) close =
      FunctionOf<decltype(&InternetCloseHandle)>(library, "InternetCloseHandle");

  bool complete() const {
    return open != nullptr && set_option != nullptr && open_url != nullptr && query != nullptr &&
           read != nullptr && close != nullptr;
  }
};

using Handle = std::unique_ptr<void, decltype(&InternetCloseHandle)>;

bool Succeeded(const Internet& internet, HINTERNET request) {
  DWORD status = 0;
  DWORD size = sizeof(status);
  return internet.query(request, HTTP_QUERY_STATUS_CODE | HTTP_QUERY_FLAG_NUMBER, &status, &size,
                        nullptr) &&
         status >= HTTP_STATUS_OK && status < HTTP_STATUS_AMBIGUOUS;
}

std::optional<std::string> ReadToTheEnd(const Internet& internet, HINTERNET request,
                                        std::size_t most_bytes, const std::atomic<bool>& given_up) {
  std::string content;
  char block[1024];
  for (;;) {
    DWORD count = 0;
    if (!internet.read(request, block, sizeof(block), &count) || given_up) return std::nullopt;
    if (count == 0) return content;
    content.append(block, count);
    if (content.size() > most_bytes) return std::nullopt;
  }
}

}  // namespace

std::optional<std::string> FetchUnsized(const std::wstring& link, std::size_t most_bytes,
                                        const std::atomic<bool>& given_up) {
  const Internet internet;
  if (!internet.complete()) return std::nullopt;
  const Handle session(internet.open(L"Tonmira", INTERNET_OPEN_TYPE_PRECONFIG, nullptr, nullptr, 0),
                       internet.close);
  if (!session) return std::nullopt;
  DWORD timeout = kTimeoutMs;
  for (const DWORD option : {INTERNET_OPTION_CONNECT_TIMEOUT, INTERNET_OPTION_RECEIVE_TIMEOUT}) {
    internet.set_option(session.get(), option, &timeout, sizeof(timeout));
  }
  const Handle request(internet.open_url(session.get(), link.c_str(), nullptr, 0, kFlags, 0),
                       internet.close);
  if (!request || !Succeeded(internet, request.get())) return std::nullopt;
  return ReadToTheEnd(internet, request.get(), most_bytes, given_up);
}

}  // namespace platform::windows
