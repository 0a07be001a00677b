#include "helpers/web_put.h"

#include <memory>

#include "platform/windows/api/system_library.h"
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

// The functions of wininet.dll that are needed here; null where it has none.
struct Internet {
  const HMODULE library = platform::windows::LoadSystemLibrary(L"wininet.dll");
  decltype(&InternetOpenW) open = Of<decltype(&InternetOpenW)>("InternetOpenW");
  decltype(&InternetSetOptionW) set_option =
      Of<decltype(&InternetSetOptionW)>("InternetSetOptionW");
  decltype(&InternetConnectW) connect = Of<decltype(&InternetConnectW)>("InternetConnectW");
  decltype(&HttpOpenRequestW) open_request = Of<decltype(&HttpOpenRequestW)>("HttpOpenRequestW");
  decltype(&HttpSendRequestW) send = Of<decltype(&HttpSendRequestW)>("HttpSendRequestW");
  decltype(&HttpQueryInfoW) query = Of<decltype(&HttpQueryInfoW)>("HttpQueryInfoW");
  decltype(&InternetCloseHandle) close = Of<decltype(&InternetCloseHandle)>("InternetCloseHandle");

  template <typename Function>
  Function Of(const char* name) const {
    return platform::windows::FunctionOf<Function>(library, name);
  }
  bool complete() const {
    return open != nullptr && set_option != nullptr && connect != nullptr &&
           open_request != nullptr && send != nullptr && query != nullptr && close != nullptr;
  }
};

using InternetHandle = std::unique_ptr<void, decltype(&InternetCloseHandle)>;

InternetHandle OpenSession(const Internet& internet) {
  InternetHandle session(
      internet.open(L"Tonmira", INTERNET_OPEN_TYPE_PRECONFIG, nullptr, nullptr, 0), internet.close);
  if (session) {
    const auto set = [&](DWORD option, DWORD value) {
      internet.set_option(session.get(), option, &value, sizeof(value));
    };
    set(INTERNET_OPTION_CONNECT_RETRIES, 1);
    for (const DWORD timeout : {INTERNET_OPTION_CONNECT_TIMEOUT, INTERNET_OPTION_SEND_TIMEOUT,
                                INTERNET_OPTION_RECEIVE_TIMEOUT}) {
      set(timeout, kTimeoutMs);
    }
  }
  return session;
}

bool WasTaken(const Internet& internet, HINTERNET request) {
  DWORD status = 0;
  DWORD size = sizeof(status);
  return internet.query(request, HTTP_QUERY_STATUS_CODE | HTTP_QUERY_FLAG_NUMBER, &status, &size,
                        nullptr) &&
         status >= HTTP_STATUS_OK && status < HTTP_STATUS_AMBIGUOUS;
}

}  // namespace

bool Put(const Destination& destination, const WideText& path, std::span<char> content) {
  const Internet internet;
  if (!internet.complete()) return false;
  const InternetHandle session = OpenSession(internet);
  if (!session) return false;
  const InternetHandle connection(
      internet.connect(session.get(), WideText().AppendAscii(destination.host).c_str(),
                       destination.port, nullptr, nullptr, INTERNET_SERVICE_HTTP, 0, 0),
      internet.close);
  if (!connection) return false;
  const InternetHandle request(
      internet.open_request(connection.get(), L"PUT", path.c_str(), nullptr, nullptr, nullptr,
                            kFlags | (destination.encrypted ? INTERNET_FLAG_SECURE : 0), 0),
      internet.close);
  return request &&
         internet.send(request.get(), kHeaders, static_cast<DWORD>(-1), content.data(),
                       static_cast<DWORD>(content.size())) &&
         WasTaken(internet, request.get());
}

}  // namespace helpers
