#include "platform/windows/web/page_security.h"

#include "platform/page_policy.h"
#include "platform/windows/api/system_library.h"

namespace platform::windows {
namespace {

using SetFeatureFunction = HRESULT(WINAPI*)(int, DWORD, BOOL);

// As documented for CoInternetSetFeatureEnabled.
constexpr DWORD kOnProcess = 0x2;  // SET_FEATURE_ON_PROCESS
constexpr int kGuards[] = {
    1,   // FEATURE_ZONE_ELEVATION
    2,   // FEATURE_MIME_HANDLING
    3,   // FEATURE_MIME_SNIFFING
    4,   // FEATURE_WINDOW_RESTRICTIONS
    6,   // FEATURE_BEHAVIORS
    7,   // FEATURE_DISABLE_MK_PROTOCOL
    8,   // FEATURE_LOCALMACHINE_LOCKDOWN
    10,  // FEATURE_RESTRICT_ACTIVEXINSTALL
    11,  // FEATURE_VALIDATE_NAVIGATE_URL
    12,  // FEATURE_RESTRICT_FILEDOWNLOAD
    14,  // FEATURE_PROTOCOL_LOCKDOWN
    15,  // FEATURE_HTTP_USERNAME_PASSWORD_DISABLE
    16,  // FEATURE_SAFE_BINDTOOBJECT
    17,  // FEATURE_UNC_SAVEDFILECHECK
};

}  // namespace

STDMETHODIMP PageSecurity::QueryInterface(REFIID id, void** object) {
  if (id == __uuidof(IUnknown) || id == __uuidof(IInternetSecurityManager)) {
    *object = static_cast<IInternetSecurityManager*>(this);
  } else if (id == __uuidof(IHttpSecurity) || id == __uuidof(IWindowForBindingUI)) {
    *object = static_cast<IHttpSecurity*>(this);
  } else if (id == __uuidof(IAuthenticate)) {
    *object = static_cast<IAuthenticate*>(this);
  } else {
    *object = nullptr;
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

STDMETHODIMP PageSecurity::MapUrlToZone(LPCWSTR address, DWORD* zone, DWORD) {
  if (address == nullptr || zone == nullptr) return E_INVALIDARG;
  if (!IsOfWeb(address)) return INET_E_DEFAULT_ACTION;
  *zone = kRestrictedZone;
  return S_OK;
}

// Anything but S_OK says that the action is not allowed as it was asked for.
STDMETHODIMP PageSecurity::ProcessUrlAction(LPCWSTR, DWORD action, BYTE* policy, DWORD size, BYTE*,
                                            DWORD, DWORD, DWORD) {
  const DWORD answer = PolicyOf(action);
  if (policy != nullptr && size >= sizeof(answer)) *reinterpret_cast<DWORD*>(policy) = answer;
  return answer == kDisallow ? S_FALSE : S_OK;
}

// No window for anything to show.
STDMETHODIMP PageSecurity::GetWindow(REFGUID, HWND* window) {
  *window = nullptr;
  return S_FALSE;
}

void TurnOnBrowserGuards() {
  const auto set = FunctionOf<SetFeatureFunction>(LoadSystemLibrary(L"urlmon.dll"),
                                                  "CoInternetSetFeatureEnabled");
  if (set == nullptr) return;
  for (const int guard : kGuards) set(guard, kOnProcess, TRUE);
}

}  // namespace platform::windows
