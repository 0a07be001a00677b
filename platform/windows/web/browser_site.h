// The place that a browser object stands in: what it asks of the window around it, and its events.
#pragma once

#include "platform/windows/api/windows_api.h"

#include <ole2.h>

#include <functional>
#include <string>

#include "platform/windows/api/com_owner.h"

namespace platform::windows {

// Fills the client area of `window`. Pages come from the web only, get no windows of their own
// (`new_window` is told what the user asked for), run no scripts, ActiveX controls or Java, and
// download no files.
class BrowserSite final : public IOleClientSite,
                          public IOleInPlaceSite,
                          public IOleInPlaceFrame,
                          public IDispatch {
 public:
  using NewWindow = std::function<void(const std::wstring& address)>;

  BrowserSite(HWND window, NewWindow new_window)
      : window_(window), new_window_(std::move(new_window)) {}

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
  NewWindow new_window_;
  ComOwner<IOleInPlaceActiveObject> active_;
};

}  // namespace platform::windows
