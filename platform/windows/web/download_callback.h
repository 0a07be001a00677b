// What the URL-to-file service asks and tells while it downloads one file.
#pragma once

#include "platform/windows/api/windows_api.h"

#include <objbase.h>
#include <servprov.h>
#include <urlmon.h>

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "platform/windows/api/com_owner.h"

namespace platform::windows {

// Wants the newest version and no dialog: a certificate that is not trusted and a request for a
// password end the download, and so does any answer but success. It ends as well when the host does
// not say how much it sends (the service would follow an endless answer until the disk is full),
// says more than `most_bytes` or sends more, and when it sends on to anything but a web address, or
// from an encrypted one to one that is not (platform/redirections.h).
// What the service saves of a download that ended, the file `arrival`, is deleted.
class DownloadCallback final : public IBindStatusCallback,
                               public IHttpNegotiate,
                               public IHttpSecurity,
                               public IAuthenticate,
                               public IServiceProvider {
 public:
  // Memory that the service can free (CoTaskMemAlloc).
  using Allocator = void*(WINAPI*)(SIZE_T);

  DownloadCallback(std::wstring link, std::wstring arrival, std::size_t most_bytes,
                   Allocator allocate)
      : link_(std::move(link)),
        arrival_(std::move(arrival)),
        most_bytes_(most_bytes),
        allocate_(allocate) {}

  // Ends the download; to be called on the thread that downloads.
  void End();
  bool ended() const { return ended_; }

  // Whether a file of `size` bytes is all that the host said it sends.
  bool IsWhole(unsigned long long size) const {
    return good_ && (length_ ? *length_ == size : size > 0);
  }

  // Whether it ended because a good answer had no length, and the address that gave this answer.
  bool unsized() const { return unsized_; }
  const std::wstring& link() const { return link_; }

  STDMETHODIMP QueryInterface(REFIID id, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return references_.Add(); }
  STDMETHODIMP_(ULONG) Release() override { return references_.Release(this); }

  // IBindStatusCallback
  STDMETHODIMP OnStartBinding(DWORD, IBinding* binding) override;
  STDMETHODIMP GetPriority(LONG*) override { return E_NOTIMPL; }
  STDMETHODIMP OnLowResource(DWORD) override { return S_OK; }
  STDMETHODIMP OnProgress(ULONG progress, ULONG end, ULONG status, LPCWSTR text) override;
  STDMETHODIMP OnStopBinding(HRESULT result, LPCWSTR) override;
  STDMETHODIMP GetBindInfo(DWORD* flags, BINDINFO* info) override;
  STDMETHODIMP OnDataAvailable(DWORD, DWORD, FORMATETC*, STGMEDIUM*) override { return S_OK; }
  STDMETHODIMP OnObjectAvailable(REFIID, IUnknown*) override { return S_OK; }

  // IHttpNegotiate
  STDMETHODIMP BeginningTransaction(LPCWSTR, LPCWSTR, DWORD, LPWSTR* headers) override;
  STDMETHODIMP OnResponse(DWORD, LPCWSTR headers, LPCWSTR, LPWSTR* more) override;

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
  std::wstring link_;
  std::wstring arrival_;
  std::size_t most_bytes_;
  Allocator allocate_;
  ComOwner<IBinding> binding_;
  bool ended_ = false;
  bool good_ = false;  // the host has answered with success
  bool unsized_ = false;
  std::optional<unsigned long long> length_;  // as the host said, of a file that is sent as it is
};

}  // namespace platform::windows
