#include "platform/windows/web/browser_site.h"

#include <exdisp.h>
#include <exdispid.h>
#include <mshtmdid.h>

#include "platform/page_policy.h"

namespace platform::windows {
namespace {

// As documented for the ambient property DISPID_AMBIENT_DLCONTROL.
constexpr LONG kShowImages = 0x10;          // DLCTL_DLIMAGES
constexpr LONG kNoScripts = 0x80;           // DLCTL_NO_SCRIPTS
constexpr LONG kNoJava = 0x100;             // DLCTL_NO_JAVA
constexpr LONG kRunNoControls = 0x200;      // DLCTL_NO_RUNACTIVEXCTLS
constexpr LONG kLoadNoControls = 0x400;     // DLCTL_NO_DLACTIVEXCTLS
constexpr LONG kNoFrames = 0x1000;          // DLCTL_NO_FRAMEDOWNLOAD
constexpr LONG kNoBehaviors = 0x8000;       // DLCTL_NO_BEHAVIORS
constexpr LONG kNoClientPull = 0x20000000;  // DLCTL_NO_CLIENTPULL: no moving on by itself
constexpr LONG kSilent = 0x40000000;        // DLCTL_SILENT
constexpr LONG kAllowed = kShowImages | kNoScripts | kNoJava | kRunNoControls | kLoadNoControls |
                          kNoFrames | kNoBehaviors | kNoClientPull | kSilent;

// The text of a parameter that may be given by reference, or null.
const wchar_t* TextOf(const VARIANT& parameter) {
  const VARIANT* const value =
      parameter.vt == (VT_BYREF | VT_VARIANT) ? parameter.pvarVal : &parameter;
  return value != nullptr && value->vt == VT_BSTR ? value->bstrVal : nullptr;
}

// A parameter that is a truth value, given by reference or not.
bool IsTrue(const VARIANT& parameter) {
  if (parameter.vt == (VT_BYREF | VT_BOOL)) return *parameter.pboolVal != VARIANT_FALSE;
  return parameter.vt == VT_BOOL && parameter.boolVal != VARIANT_FALSE;
}

// Parameters stand in reverse order.
void Cancel(const DISPPARAMS& parameters, UINT from_last) {
  if (parameters.cArgs <= from_last) return;
  const VARIANT& cancel = parameters.rgvarg[from_last];
  if (cancel.vt == (VT_BYREF | VT_BOOL)) *cancel.pboolVal = VARIANT_TRUE;
}

}  // namespace

void BrowserSite::Leave() {
  window_ = nullptr;
  may_show_ = nullptr;
  new_window_ = nullptr;
  active_.reset();
}

RECT BrowserSite::Area() const {
  RECT area{};
  if (window_ != nullptr) GetClientRect(window_, &area);
  return area;
}

STDMETHODIMP BrowserSite::QueryInterface(REFIID id, void** object) {
  if (id == __uuidof(IUnknown) || id == __uuidof(IOleClientSite)) {
    *object = static_cast<IOleClientSite*>(this);
  } else if (id == __uuidof(IOleWindow) || id == __uuidof(IOleInPlaceSite)) {
    *object = static_cast<IOleInPlaceSite*>(this);
  } else if (id == __uuidof(IOleInPlaceUIWindow) || id == __uuidof(IOleInPlaceFrame)) {
    *object = static_cast<IOleInPlaceFrame*>(this);
  } else if (id == __uuidof(IDispatch) || id == __uuidof(DWebBrowserEvents2)) {
    *object = static_cast<IDispatch*>(this);
  } else if (id == __uuidof(IServiceProvider)) {
    *object = static_cast<IServiceProvider*>(this);
  } else {
    *object = nullptr;
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

STDMETHODIMP BrowserSite::GetContainer(IOleContainer** container) {
  *container = nullptr;
  return E_NOINTERFACE;
}

STDMETHODIMP BrowserSite::GetWindow(HWND* window) {
  *window = window_;
  return window_ == nullptr ? E_FAIL : S_OK;
}

STDMETHODIMP BrowserSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                           RECT* position, RECT* clip, OLEINPLACEFRAMEINFO* info) {
  *frame = this;
  AddRef();
  *document = nullptr;
  *position = Area();
  *clip = *position;
  const UINT size = info->cb;
  *info = OLEINPLACEFRAMEINFO{};
  info->cb = size;
  info->hwndFrame = GetAncestor(window_, GA_ROOT);
  return S_OK;
}

STDMETHODIMP BrowserSite::SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) {
  active_ = Query<IOleInPlaceActiveObject>(object);
  return S_OK;
}

// The services that matter here are called by the interface that they are asked for.
STDMETHODIMP BrowserSite::QueryService(REFGUID service, REFIID id, void** object) {
  if (service == id) return security_->QueryInterface(id, object);
  *object = nullptr;
  return E_NOINTERFACE;
}

STDMETHODIMP BrowserSite::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

STDMETHODIMP BrowserSite::Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* parameters,
                                 VARIANT* result, EXCEPINFO*, UINT*) {
  switch (member) {
    case DISPID_AMBIENT_DLCONTROL:
      if (result == nullptr) return E_INVALIDARG;
      result->vt = VT_I4;
      result->lVal = kAllowed;
      return S_OK;
    case DISPID_BEFORENAVIGATE2: {
      if (parameters->cArgs < 7) return S_OK;
      const wchar_t* const address = TextOf(parameters->rgvarg[5]);
      if (address != nullptr && may_show_ && may_show_(address)) return S_OK;
      Cancel(*parameters, 0);
      if (address != nullptr && new_window_) new_window_(address);
      return S_OK;
    }
    case DISPID_NEWWINDOW3: {
      Cancel(*parameters, 3);
      if (parameters->cArgs < 5) return S_OK;
      const wchar_t* const address = TextOf(parameters->rgvarg[0]);
      const bool asked = AskedByUser(parameters->rgvarg[2].ulVal);
      if (address != nullptr && asked && new_window_) new_window_(address);
      return S_OK;
    }
    case DISPID_FILEDOWNLOAD:
      // The page itself comes with the mark of a document that is shown in its place.
      if (parameters->cArgs < 2 || !IsTrue(parameters->rgvarg[1])) Cancel(*parameters, 0);
      return S_OK;
    case DISPID_NEWWINDOW2:
      Cancel(*parameters, 0);
      return S_OK;
    default:
      return DISP_E_MEMBERNOTFOUND;
  }
}

}  // namespace platform::windows
