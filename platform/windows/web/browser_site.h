// The place that a browser object stands in: what it asks of the window around it, and its events.
#pragma once

#include "platform/windows/api/windows_api.h"

#include <ole2.h>
#include <servprov.h>

#include <functional>
#include <string>

#include "platform/windows/api/com_owner.h"
#include "platform/windows/web/page_security.h"

namespace platform::windows {

// Fills the client area of `window`. Only what `may_show` allows is shown; `new_window` is told
// what it refused and what the user asked for in a window of its own, which no page gets. Pages
// have no frames, do not move on by themselves, run no scripts, ActiveX controls or Java, and
// download no files; what more they may do says PageSecurity.
class BrowserSite final : public IOleClientSite,
                          public IOleInPlaceSite,
                          public IOleInPlaceFrame,
                          public IServiceProvider,
                          public IDispatch {
 public:
  using MayShow = std::function<bool(const std::wstring& address)>;
  using NewWindow = std::function<void(const std::wstring& address)>;

  BrowserSite(HWND window, MayShow may_show, NewWindow new_window)
      : window_(window), may_show_(std::move(may_show)), new_window_(std::move(new_window)) {}

  // The window is going; calls that still come get no answer.
  void Leave();

  // The page's object that keys go to first, or null.
  IOleInPlaceActiveObject* active() const { return active_.get(); }

  RECT Area() const;

  STDMETHODIMP QueryInterface(REFIID id, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return references_.Add(); }
  STDMETHODIMP_(ULONG) Release() override { return references_.Release(this); }

  // IOleClientSite
  STDMETHODIMP SaveObject() override { return E_NOTIMPL; }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  STDMETHODIMP GetContainer(IOleContainer** container) override;
  STDMETHODIMP ShowObject() override { return S_OK; }
  STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
  STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }

  // IOleWindow, of both the site and the frame
  STDMETHODIMP GetWindow(HWND* window) override;
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }

  // IOleInPlaceSite
  STDMETHODIMP CanInPlaceActivate() override { return S_OK; }
  STDMETHODIMP OnInPlaceActivate() override { return S_OK; }
  STDMETHODIMP OnUIActivate() override { return S_OK; }
  STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                RECT* position, RECT* clip, OLEINPLACEFRAMEINFO* info) override;
  STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
  STDMETHODIMP OnUIDeactivate(BOOL) override { return S_OK; }
  STDMETHODIMP OnInPlaceDeactivate() override { return S_OK; }
  STDMETHODIMP DiscardUndoState() override { return E_NOTIMPL; }
  STDMETHODIMP DeactivateAndUndo() override { return E_NOTIMPL; }
  STDMETHODIMP OnPosRectChange(LPCRECT) override { return S_OK; }

  // IOleInPlaceFrame
  STDMETHODIMP GetBorder(RECT*) override { return INPLACE_E_NOTOOLSPACE; }
  STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
  STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
  STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) override;
  STDMETHODIMP InsertMenus(HMENU, OLEMENUGROUPWIDTHS*) override { return E_NOTIMPL; }
  STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
  STDMETHODIMP RemoveMenus(HMENU) override { return E_NOTIMPL; }
  STDMETHODIMP SetStatusText(LPCOLESTR) override { return S_OK; }
  STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }
  STDMETHODIMP TranslateAccelerator(MSG*, WORD) override { return S_FALSE; }

  // IServiceProvider
  STDMETHODIMP QueryService(REFGUID service, REFIID id, void** object) override;

  // IDispatch: ambient properties and the browser's events
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return DISP_E_UNKNOWNNAME;
  }
  STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO*, UINT*) override;

 private:
  ~BrowserSite() = default;
  friend class ReferenceCount;

  ReferenceCount references_;
  HWND window_;
  MayShow may_show_;
  NewWindow new_window_;
  ComOwner<PageSecurity> security_{new PageSecurity};
  ComOwner<IOleInPlaceActiveObject> active_;
};

}  // namespace platform::windows
