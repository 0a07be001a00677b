// Stands in for the system's browser object, which the rig does not have: tells the program's site
// what that would tell it, with the parameters in the order in which they are documented, and adds
// to the file "events.txt" in the temporary folder what came of it.
#include "platform/windows/web/browser_site.h"
#include "tests/rig/bare/events.h"

#include <exdispid.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace {

using platform::windows::BrowserSite;
using platform::windows::ComOwner;

VARIANT Text(const wchar_t* text) {
  VARIANT value{};
  value.vt = VT_BSTR;
  value.bstrVal = SysAllocString(text);
  return value;
}

VARIANT Number(LONG number) {
  VARIANT value{};
  value.vt = VT_I4;
  value.lVal = number;
  return value;
}

VARIANT Truth(bool truth) {
  VARIANT value{};
  value.vt = VT_BOOL;
  value.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
  return value;
}

VARIANT To(VARIANT* variant) {
  VARIANT value{};
  value.vt = VT_BYREF | VT_VARIANT;
  value.pvarVal = variant;
  return value;
}

// `arguments` in their documented order, with the cancel flag as number `cancel_at` of them.
void Tell(BrowserSite& site, const char* name, DISPID event, std::vector<VARIANT> arguments,
          std::size_t cancel_at) {
  VARIANT_BOOL cancel = VARIANT_FALSE;
  arguments[cancel_at] = {};
  arguments[cancel_at].vt = VT_BYREF | VT_BOOL;
  arguments[cancel_at].pboolVal = &cancel;
  std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend());
  DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
  site.Invoke(event, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
  Events() << name << (cancel != VARIANT_FALSE ? " stopped" : " goes on") << '\n';
}

void Navigate(BrowserSite& site, const wchar_t* address) {
  VARIANT url = Text(address);
  Tell(site, Plain(L"navigate " + std::wstring(address)).c_str(), DISPID_BEFORENAVIGATE2,
       {VARIANT{}, To(&url), VARIANT{}, VARIANT{}, VARIANT{}, VARIANT{}, VARIANT{}}, 6);
}

void NewWindow(BrowserSite& site, LONG flags) {
  Tell(site, ("window " + std::to_string(flags)).c_str(), DISPID_NEWWINDOW3,
       {VARIANT{}, VARIANT{}, Number(flags), Text(L"http://from.example/"),
        Text(L"http://to.example/")},
       1);
}

void AskForSecurity(BrowserSite& site) {
  void* found = nullptr;
  site.QueryService(__uuidof(IInternetSecurityManager), __uuidof(IInternetSecurityManager), &found);
  const ComOwner<IInternetSecurityManager> security(static_cast<IInternetSecurityManager*>(found));
  for (const wchar_t* address : {L"http://a.example/", L"file://host/share/x.png"}) {
    DWORD zone = 99;
    const HRESULT result = security->MapUrlToZone(address, &zone, 0);
    Events() << "zone " << zone << (result == S_OK ? " ours" : " theirs") << '\n';
  }
  for (const DWORD action : {URLACTION_CREDENTIALS_USE, URLACTION_SCRIPT_RUN}) {
    DWORD policy = 99;
    const HRESULT result =
        security->ProcessUrlAction(L"http://a.example/", action, reinterpret_cast<BYTE*>(&policy),
                                   sizeof(policy), nullptr, 0, 0, 0);
    Events() << "policy " << std::hex << policy << std::dec
             << (result == S_OK ? " as asked" : " not") << '\n';
  }
  site.QueryService(__uuidof(IAuthenticate), __uuidof(IAuthenticate), &found);
  const ComOwner<IAuthenticate> authenticate(static_cast<IAuthenticate*>(found));
  HWND window = nullptr;
  LPWSTR name = nullptr;
  LPWSTR word = nullptr;
  const bool denied = authenticate->Authenticate(&window, &name, &word) == E_ACCESSDENIED;
  Events() << "name " << (denied && name == nullptr && word == nullptr ? "denied" : "given")
           << '\n';
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  ComOwner<BrowserSite> site(new BrowserSite(
      nullptr, [](const std::wstring& address) { return address.starts_with(L"http:"); },
      [](const std::wstring& address) { Events() << "outside " << Plain(address) << '\n'; }));
  Navigate(*site, L"http://a.example/");
  Navigate(*site, L"mailto:a@b.example");
  for (const LONG flags : {0L, 2L, 4L, 6L}) NewWindow(*site, flags);
  Tell(*site, "page", DISPID_FILEDOWNLOAD, {Truth(true), VARIANT{}}, 1);
  Tell(*site, "file", DISPID_FILEDOWNLOAD, {Truth(false), VARIANT{}}, 1);
  AskForSecurity(*site);
  return 0;
}
