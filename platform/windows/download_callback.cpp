#include "platform/windows/download_callback.h"

#include <algorithm>
#include <cwchar>
#include <iterator>

namespace platform::windows {
namespace {

bool IsWebAddress(const wchar_t* address) {
  const wchar_t* const schemes[] = {L"http://", L"https://"};
  return std::any_of(std::begin(schemes), std::end(schemes), [address](const wchar_t* scheme) {
    return _wcsnicmp(address, scheme, std::wcslen(scheme)) == 0;
  });
}

}  // namespace

STDMETHODIMP DownloadCallback::QueryInterface(REFIID id, void** object) {
  if (id == __uuidof(IUnknown) || id == __uuidof(IBindStatusCallback)) {
    *object = static_cast<IBindStatusCallback*>(this);
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

STDMETHODIMP DownloadCallback::OnStartBinding(DWORD, IBinding* binding) {
  binding_ = Query<IBinding>(binding);
  return S_OK;
}

STDMETHODIMP DownloadCallback::OnStopBinding(HRESULT, LPCWSTR) {
  binding_.reset();
  return S_OK;
}

STDMETHODIMP DownloadCallback::OnProgress(ULONG progress, ULONG end, ULONG status, LPCWSTR text) {
  const bool astray = status == BINDSTATUS_REDIRECTING && text != nullptr && !IsWebAddress(text);
  if (!given_up_ && !astray && std::max(progress, end) <= most_bytes_) return S_OK;
  // Not every service heeds the answer.
  if (!ended_ && binding_) binding_->Abort();
  ended_ = true;
  return E_ABORT;
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
