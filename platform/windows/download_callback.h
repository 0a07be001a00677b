// What the URL-to-file service asks and tells while it downloads one file.
#pragma once

#include "platform/windows/windows_api.h"

#include <objbase.h>
#include <servprov.h>
#include <urlmon.h>

#include <atomic>
#include <cstddef>

#include "platform/windows/com_owner.h"

namespace platform::windows {

// Wants the newest version and no dialog: a certificate that is not trusted and a request for a
// password end the download. It ends as well when more than `most_bytes` come, when it is sent to
// anything but a web address, and when `given_up` is true, which must outlive the call of the
// service.
class DownloadCallback final : public IBindStatusCallback,
                               public IHttpSecurity,
                               public IAuthenticate,
                               public IServiceProvider {
 public:
  DownloadCallback(std::size_t most_bytes, const std::atomic<bool>& given_up)
      : most_bytes_(most_bytes), given_up_(given_up) {}

  // Whether it ended the download.
  bool ended() const { return ended_; }

  STDMETHODIMP QueryInterface(REFIID id, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return references_.Add(); }
  STDMETHODIMP_(ULONG) Release() override { return references_.Release(this); }

  // IBindStatusCallback
  STDMETHODIMP OnStartBinding(DWORD, IBinding* binding) override;
  STDMETHODIMP GetPriority(LONG*) override { return E_NOTIMPL; }
  STDMETHODIMP OnLowResource(DWORD) override { return S_OK; }
  STDMETHODIMP OnProgress(ULONG progress, ULONG end, ULONG status, LPCWSTR text) override;
  STDMETHODIMP OnStopBinding(HRESULT, LPCWSTR) override;
  STDMETHODIMP GetBindInfo(DWORD* flags, BINDINFO* info) override;
  STDMETHODIMP OnDataAvailable(DWORD, DWORD, FORMATETC*, STGMEDIUM*) override { return S_OK; }
  STDMETHODIMP OnObjectAvailable(REFIID, IUnknown*) override { return S_OK; }

  // IHttpSecurity
  STDMETHODIMP GetWindow(REFGUID, HWND* window) override;
  STDMETHODIMP OnSecurityProblem(DWORD) override { return E_ABORT; }

  // IAuthenticate
  STDMETHODIMP Authenticate(HWND*, LPWSTR*, LPWSTR*) override { return E_ACCESSDENIED; }

  // IServiceProvider
  STDMETHODIMP QueryService(REFGUID, REFIID id, void** object) override {
    return QueryInterface(id, object);
  }

 private:
  ~DownloadCallback() = default;
  friend class ReferenceCount;

  ReferenceCount references_;
  std::size_t most_bytes_;
  const std::atomic<bool>& given_up_;
  ComOwner<IBinding> binding_;
  bool ended_ = false;
};

}  // namespace platform::windows
