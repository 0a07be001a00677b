// What the system's browser object is told when it asks what a page may do, and who the user is.
#pragma once

#include "platform/windows/api/windows_api.h"

#include <objbase.h>
#include <urlmon.h>

#include "platform/windows/api/com_owner.h"

namespace platform::windows {

// Answers by platform/page_policy.h; no name, no password and no window for a dialog.
class PageSecurity final : public IInternetSecurityManager,
                           public IHttpSecurity,
                           public IAuthenticate {
 public:
  STDMETHODIMP QueryInterface(REFIID id, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return references_.Add(); }
  STDMETHODIMP_(ULONG) Release() override { return references_.Release(this); }

  // IInternetSecurityManager
  STDMETHODIMP SetSecuritySite(IInternetSecurityMgrSite*) override { return INET_E_DEFAULT_ACTION; }
  STDMETHODIMP GetSecuritySite(IInternetSecurityMgrSite**) override {
    return INET_E_DEFAULT_ACTION;
  }
  STDMETHODIMP MapUrlToZone(LPCWSTR address, DWORD* zone, DWORD) override;
  STDMETHODIMP GetSecurityId(LPCWSTR, BYTE*, DWORD*, DWORD_PTR) override {
    return INET_E_DEFAULT_ACTION;
  }
  STDMETHODIMP ProcessUrlAction(LPCWSTR address, DWORD action, BYTE* policy, DWORD size, BYTE*,
                                DWORD, DWORD, DWORD) override;
  STDMETHODIMP QueryCustomPolicy(LPCWSTR, REFGUID, BYTE**, DWORD*, BYTE*, DWORD, DWORD) override {
    return INET_E_DEFAULT_ACTION;
  }
  STDMETHODIMP SetZoneMapping(DWORD, LPCWSTR, DWORD) override { return E_ACCESSDENIED; }
  STDMETHODIMP GetZoneMappings(DWORD, IEnumString**, DWORD) override {
    return INET_E_DEFAULT_ACTION;
  }

  // IHttpSecurity
  STDMETHODIMP GetWindow(REFGUID, HWND* window) override;
  STDMETHODIMP OnSecurityProblem(DWORD) override { return E_ABORT; }

  // IAuthenticate
  STDMETHODIMP Authenticate(HWND*, LPWSTR*, LPWSTR*) override { return E_ACCESSDENIED; }

 private:
  ~PageSecurity() = default;
  friend class platform::windows::ReferenceCount;

  ReferenceCount references_;
};

// Has the browser object do in this process what it does in the system's own browser since Windows
// XP SP2: refuse what is of a zone with more rights, foreign protocols and guessed kinds of files.
// Older systems know none of this.
void TurnOnBrowserGuards();

}  // namespace platform::windows
