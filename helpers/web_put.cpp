#include "helpers/web_put.h"

#include <memory>

#include "platform/windows/api/handles.h"
#include "platform/windows/api/windows_api.h"

#include <wininet.h>

namespace helpers {
namespace {

constexpr DWORD kTimeoutMs = 15000;
constexpr DWORD kFlags = INTERNET_FLAG_NO_AUTO_REDIRECT | INTERNET_FLAG_NO_AUTH |
                         INTERNET_FLAG_NO_COOKIES | INTERNET_FLAG_NO_UI |
                         INTERNET_FLAG_NO_CACHE_WRITE | INTERNET_FLAG_RELOAD |
                         INTERNET_FLAG_PRAGMA_NOCACHE;
constexpr wchar_t kHeaders[] = L"Content-Type: application/octet-stream\r\n";

using InternetHandle = std::unique_ptr<void, platform::windows::Releaser<InternetCloseHandle>>;

void SetOption(HINTERNET handle, DWORD option, DWORD value) {
  InternetSetOptionW(handle, option, &value, sizeof(value));
}

InternetHandle OpenSession() {
  InternetHandle session(
      InternetOpenW(L"Tonmira", INTERNET_OPEN_TYPE_PRECONFIG, nullptr, nullptr, 0));
  if (session) {
    SetOption(session.get(), INTERNET_OPTION_CONNECT_RETRIES, 1);
    for (const DWORD timeout : {INTERNET_OPTION_CONNECT_TIMEOUT, INTERNET_OPTION_SEND_TIMEOUT,
                                INTERNET_OPTION_RECEIVE_TIMEOUT}) {
      SetOption(session.get(), timeout, kTimeoutMs);
    }
  }
  return session;
}

bool WasTaken(HINTERNET request) {
  DWORD status = 0;
  DWORD size = sizeof(status);
  return HttpQueryInfoW(request, HTTP_QUERY_STATUS_CODE | HTTP_QUERY_FLAG_NUMBER, &status, &size,
                        nullptr) &&
         status >= HTTP_STATUS_OK && status < HTTP_STATUS_AMBIGUOUS;
}

}  // namespace

bool Put(const Destination& destination, const WideText& path, std::span<char> content) {
  const InternetHandle session = OpenSession();
  if (!session) return false;
  const InternetHandle connection(
      InternetConnectW(session.get(), WideText().AppendAscii(destination.host).c_str(),
                       destination.port, nullptr, nullptr, INTERNET_SERVICE_HTTP, 0, 0));
  if (!connection) return false;
  const InternetHandle request(
      HttpOpenRequestW(connection.get(), L"PUT", path.c_str(), nullptr, nullptr, nullptr,
                       kFlags | (destination.encrypted ? INTERNET_FLAG_SECURE : 0), 0));
  return request &&
         HttpSendRequestW(request.get(), kHeaders, static_cast<DWORD>(-1), content.data(),
                          static_cast<DWORD>(content.size())) &&
         WasTaken(request.get());
}

}  // namespace helpers
