#include "platform/windows/web/download_callback.h"

#include <algorithm>
#include <cwchar>
#include <iterator>
#include <string_view>
#include <utility>

#include "platform/redirections.h"

namespace platform::windows {
namespace {

constexpr wchar_t kAsItIs[] = L"Accept-Encoding: identity\r\n";

// The value of a header among the lines of an answer, or null.
const wchar_t* HeaderValue(const wchar_t* headers, std::wstring_view name) {
  const std::wstring line = L"\n" + std::wstring(name) + L":";
  for (const wchar_t* at = headers; *at != L'\0'; ++at) {
    if (_wcsnicmp(at, line.c_str(), line.size()) == 0) return at + line.size();
  }
  return nullptr;
}

// Whether any line follows the first: what is not HTTP at all is reported as an answer without.
bool HasHeaders(const wchar_t* answer) {
  const wchar_t* const end = answer == nullptr ? nullptr : std::wcschr(answer, L'\n');
  return end != nullptr && end[1] != L'\0' && end[1] != L'\r' && end[1] != L'\n';
}

}  // namespace

STDMETHODIMP DownloadCallback::QueryInterface(REFIID id, void** object) {
  if (id == __uuidof(IUnknown) || id == __uuidof(IBindStatusCallback)) {
    *object = static_cast<IBindStatusCallback*>(this);
  } else if (id == __uuidof(IHttpNegotiate)) {
    *object = static_cast<IHttpNegotiate*>(this);
  } else if (id == __uuidof(IHttpSecurity) || id == __uuidof(IWindowForBindingUI)) {
    *object = static_cast<IHttpSecurity*>(this);
  } else if (id == __uuidof(IAuthenticate)) {
    *object = static_cast<IAuthenticate*>(this);
  } else if (id == __uuidof(IServiceProvider)) {
    *object = static_cast<IServiceProvider*>(this);
  } else {
    *object = nullptr;
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

void DownloadCallback::End() {
  if (std::exchange(ended_, true)) return;
  if (binding_) binding_->Abort();
}

STDMETHODIMP DownloadCallback::OnStartBinding(DWORD, IBinding* binding) {
  binding_ = Query<IBinding>(binding);
  return ended_ ? E_ABORT : S_OK;
}

STDMETHODIMP DownloadCallback::OnStopBinding(HRESULT result, LPCWSTR) {
  binding_.reset();
  if (ended_ || FAILED(result)) DeleteFileW(arrival_.c_str());
  return S_OK;
}

STDMETHODIMP DownloadCallback::OnProgress(ULONG progress, ULONG end, ULONG status, LPCWSTR text) {
  const bool sent_on = status == BINDSTATUS_REDIRECTING && text != nullptr;
  // Not every service heeds the answer alone.
  if ((sent_on && !MayFollow(link_, text)) || std::max(progress, end) > most_bytes_) End();
  if (sent_on) link_ = text;
  return ended_ ? E_ABORT : S_OK;
}

// The service frees the text.
STDMETHODIMP DownloadCallback::BeginningTransaction(LPCWSTR, LPCWSTR, DWORD, LPWSTR* headers) {
  *headers = static_cast<LPWSTR>(allocate_(sizeof(kAsItIs)));
  if (*headers != nullptr) std::copy(std::begin(kAsItIs), std::end(kAsItIs), *headers);
  return S_OK;
}

STDMETHODIMP DownloadCallback::OnResponse(DWORD status, LPCWSTR headers, LPCWSTR, LPWSTR* more) {
  if (more != nullptr) *more = nullptr;
  const wchar_t* const length =
      headers == nullptr ? nullptr : HeaderValue(headers, L"Content-Length");
  const unsigned long long bytes = length == nullptr ? 0 : std::wcstoull(length, nullptr, 10);
  good_ = status >= 200 && status < 300 && HasHeaders(headers) && !ended_;
  if (!good_ || length == nullptr || bytes > most_bytes_) {
    unsized_ = good_ && length == nullptr;
    End();
  } else if (HeaderValue(headers, L"Content-Encoding") == nullptr) {
    length_ = bytes;
  }
  return ended_ ? E_ABORT : S_OK;
}

STDMETHODIMP DownloadCallback::GetBindInfo(DWORD* flags, BINDINFO* info) {
  *flags = BINDF_GETNEWESTVERSION | BINDF_NO_UI | BINDF_SILENTOPERATION;
  const ULONG size = info->cbSize;
  *info = BINDINFO{};
  info->cbSize = size;
  return S_OK;
}

// No window for anything to show.
STDMETHODIMP DownloadCallback::GetWindow(REFGUID, HWND* window) {
  *window = nullptr;
  return S_FALSE;
}

}  // namespace platform::windows
