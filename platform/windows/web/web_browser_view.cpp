#include "platform/windows/web/web_browser_view.h"

#include <ole2.h>
#include <exdisp.h>

#include <string>

#include "platform/windows/api/system_library.h"
#include "platform/windows/api/wide_text.h"
#include "platform/windows/web/browser_site.h"

namespace platform::windows {
namespace {

using TextFunction = BSTR(WINAPI*)(const OLECHAR*);
using FreeTextFunction = void(WINAPI*)(BSTR);

// A text of the kind that COM objects take; null when there is no memory or no library for it.
class ComText {
 public:
  explicit ComText(const std::wstring& text) {
    const HMODULE library = LoadSystemLibrary(L"oleaut32.dll");
    free_ = FunctionOf<FreeTextFunction>(library, "SysFreeString");
    const auto allocate = FunctionOf<TextFunction>(library, "SysAllocString");
    if (free_ != nullptr && allocate != nullptr) text_ = allocate(text.c_str());
  }
  ~ComText() {
    if (text_ != nullptr) free_(text_);
  }
  ComText(const ComText&) = delete;
  ComText& operator=(const ComText&) = delete;

  BSTR get() const { return text_; }

 private:
  FreeTextFunction free_ = nullptr;
  BSTR text_ = nullptr;
};

ComOwner<IOleObject> CreateBrowser() {
  using Initialize = HRESULT(WINAPI*)(LPVOID);
  using Create = HRESULT(WINAPI*)(REFCLSID, LPUNKNOWN, DWORD, REFIID, LPVOID*);
  const HMODULE library = LoadSystemLibrary(L"ole32.dll");
  const auto initialize = FunctionOf<Initialize>(library, "OleInitialize");
  const auto create = FunctionOf<Create>(library, "CoCreateInstance");
  if (initialize == nullptr || create == nullptr) return nullptr;
  TurnOnBrowserGuards();
  // Never undone: what a page left behind may live until the process ends.
  if (FAILED(initialize(nullptr))) return nullptr;
  void* made = nullptr;
  if (FAILED(create(__uuidof(WebBrowser), nullptr, CLSCTX_INPROC_SERVER, __uuidof(IOleObject),
                    &made))) {
    return nullptr;
  }
  return ComOwner<IOleObject>(static_cast<IOleObject*>(made));
}

LRESULT CALLBACK BrowserProcedure(HWND handle, UINT message, WPARAM wparam,
                                  LPARAM lparam) noexcept {
  auto* const view = reinterpret_cast<WebBrowserView*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (view != nullptr && message == WM_SIZE) view->Resize();
  if (view != nullptr && message == WM_SETFOCUS) view->TakeFocus();
  return DefWindowProcW(handle, message, wparam, lparam);
}

}  // namespace

// A browser object that is active in its place; destroying it closes the object.
class WebBrowserView::Object {
 public:
  Object(ComOwner<IOleObject> object, ComOwner<BrowserSite> site, HWND window)
      : object_(std::move(object)), site_(std::move(site)) {
    const RECT area = site_->Area();
    object_->SetClientSite(site_.get());
    object_->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site_.get(), 0, window, &area);
    browser_ = Query<IWebBrowser2>(object_.get());
    Listen();
  }

  ~Object() {
    if (events_) events_->Unadvise(cookie_);
    site_->Leave();
    object_->Close(OLECLOSE_NOSAVE);
    object_->SetClientSite(nullptr);
  }
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  void SetSilent(bool silent) {
    if (browser_) browser_->put_Silent(silent ? VARIANT_TRUE : VARIANT_FALSE);
  }

  void Navigate(const std::wstring& address) {
    const ComText text(address);
    if (!browser_ || text.get() == nullptr) return;
    VARIANT target{};
    target.vt = VT_BSTR;
    target.bstrVal = text.get();
    browser_->Navigate2(&target, nullptr, nullptr, nullptr, nullptr);
  }

  void Resize() {
    const RECT area = site_->Area();
    if (const auto placed = Query<IOleInPlaceObject>(object_.get())) {
      placed->SetObjectRects(&area, &area);
    }
  }

  void TakeFocus(HWND window) {
    const RECT area = site_->Area();
    object_->DoVerb(OLEIVERB_UIACTIVATE, nullptr, site_.get(), 0, window, &area);
  }

  bool TranslateKey(MSG& message) {
    const auto active = Query<IOleInPlaceActiveObject>(browser_.get());
    return active && active->TranslateAccelerator(&message) == S_OK;
  }

 private:
  void Listen() {
    const auto points = Query<IConnectionPointContainer>(object_.get());
    IConnectionPoint* found = nullptr;
    if (!points || FAILED(points->FindConnectionPoint(__uuidof(DWebBrowserEvents2), &found))) {
      return;
    }
    events_.reset(found);
    if (FAILED(events_->Advise(static_cast<IDispatch*>(site_.get()), &cookie_))) events_.reset();
  }

  ComOwner<IOleObject> object_;
  ComOwner<BrowserSite> site_;
  ComOwner<IWebBrowser2> browser_;
  ComOwner<IConnectionPoint> events_;
  DWORD cookie_ = 0;
};

void RegisterBrowserClass(HINSTANCE instance) {
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = BrowserProcedure;
  window_class.hInstance = instance;
  window_class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  window_class.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  window_class.lpszClassName = kBrowserClass;
  RegisterClassW(&window_class);
}

WebBrowserView::WebBrowserView(HWND handle, ui::WebBrowser& browser)
    : handle_(handle), browser_(browser) {
  SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

WebBrowserView::~WebBrowserView() {
  SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
}

void WebBrowserView::Changed(ui::Property property) {
  if (!tried_) {
    tried_ = true;
    if (auto object = CreateBrowser()) {
      ComOwner<BrowserSite> site(new BrowserSite(
          handle_,
          [this](const std::wstring& address) { return browser_.MayNavigate(Narrow(address)); },
          [this](const std::wstring& address) { browser_.AskForWindow(Narrow(address)); }));
      object_ = std::make_unique<Object>(std::move(object), std::move(site), handle_);
    }
  }
  if (!object_) return;
  if (property == ui::Property::kSilent) object_->SetSilent(browser_.Silent());
  if (property == ui::Property::kAddress) object_->Navigate(Widen(browser_.Address()));
}

void WebBrowserView::Resize() {
  if (object_) object_->Resize();
}

void WebBrowserView::TakeFocus() {
  if (object_) object_->TakeFocus(handle_);
}

bool WebBrowserView::TranslateKey(MSG& message) {
  return object_ && object_->TranslateKey(message);
}

}  // namespace platform::windows
