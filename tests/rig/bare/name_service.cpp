// Stands in the rig for the system's service that takes names of controls for screen readers
// (IAccPropServices), which Wine has but does not fill: keeps what a program says as properties of
// the window, where the driver reads it. Names longer than 255 characters are refused.
//
// It is also the rig's hand inside the program: under Wine a process does not see fonts and colours
// of the system that another one has changed, so the driver has them changed from here.
#include <windows.h>

#include <objbase.h>
#include <oleacc.h>

#include <cstdint>
#include <initializer_list>

namespace {

constexpr GUID kInterface = {
    0x6E26E776, 0x04F0, 0x495D, {0x80, 0xE4, 0x33, 0x30, 0x35, 0x2E, 0x31, 0x69}};
constexpr GUID kName = {
    0x608D3DF8, 0x8128, 0x4AA7, {0xA4, 0x28, 0xF5, 0x5E, 0x49, 0x26, 0x72, 0x91}};
constexpr GUID kValue = {
    0x123FE443, 0x211A, 0x4615, {0x95, 0x27, 0xC4, 0x5A, 0x7E, 0x93, 0x71, 0x7A}};

const wchar_t* PropertyOf(const GUID& text) {
  if (IsEqualGUID(text, kName)) return L"TonmiraRigName";
  return IsEqualGUID(text, kValue) ? L"TonmiraRigValue" : nullptr;
}

void Forget(HWND window, const wchar_t* property) {
  const auto atom =
      static_cast<ATOM>(reinterpret_cast<std::uintptr_t>(RemovePropW(window, property)));
  if (atom != 0) GlobalDeleteAtom(atom);
}

// Both live as long as the library.
class NameService final : public IAccPropServices {
 public:
  HRESULT WINAPI QueryInterface(REFIID wanted, void** found) override {
    const bool known = IsEqualIID(wanted, __uuidof(IUnknown)) || IsEqualIID(wanted, kInterface);
    *found = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG WINAPI AddRef() override { return 2; }
  ULONG WINAPI Release() override { return 1; }

  HRESULT WINAPI SetHwndPropStr(HWND window, DWORD object, DWORD child, MSAAPROPID property,
                                LPCWSTR text) override {
    const wchar_t* const kept = PropertyOf(property);
    if (kept == nullptr || object != static_cast<DWORD>(OBJID_CLIENT) || child != CHILDID_SELF) {
      return E_INVALIDARG;
    }
    Forget(window, kept);
    const ATOM atom = GlobalAddAtomW(text);
    if (atom == 0) return E_FAIL;
    SetPropW(window, kept, reinterpret_cast<HANDLE>(static_cast<std::uintptr_t>(atom)));
    return S_OK;
  }

  HRESULT WINAPI ClearHwndProps(HWND window, DWORD, DWORD, const MSAAPROPID* properties,
                                int count) override {
    for (int i = 0; i < count; ++i) {
      if (const wchar_t* const kept = PropertyOf(properties[i])) Forget(window, kept);
    }
    return S_OK;
  }

  // Nobody here uses these.
  HRESULT WINAPI SetPropValue(const BYTE*, DWORD, MSAAPROPID, VARIANT) override {
    return E_NOTIMPL;
  }
  HRESULT WINAPI SetPropServer(const BYTE*, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                               AnnoScope) override {
    return E_NOTIMPL;
  }
  HRESULT WINAPI ClearProps(const BYTE*, DWORD, const MSAAPROPID*, int) override {
    return E_NOTIMPL;
  }
  HRESULT WINAPI SetHwndProp(HWND, DWORD, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
  HRESULT WINAPI SetHwndPropServer(HWND, DWORD, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                   AnnoScope) override {
    return E_NOTIMPL;
  }
  HRESULT WINAPI ComposeHwndIdentityString(HWND, DWORD, DWORD, BYTE**, DWORD*) override {
    return E_NOTIMPL;
  }
  HRESULT WINAPI DecomposeHwndIdentityString(const BYTE*, DWORD, HWND*, DWORD*, DWORD*) override {
    return E_NOTIMPL;
  }
  HRESULT WINAPI SetHmenuProp(HMENU, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
  HRESULT WINAPI SetHmenuPropStr(HMENU, DWORD, MSAAPROPID, LPCWSTR) override { return E_NOTIMPL; }
  HRESULT WINAPI SetHmenuPropServer(HMENU, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                    AnnoScope) override {
    return E_NOTIMPL;
  }
  HRESULT WINAPI ClearHmenuProps(HMENU, DWORD, const MSAAPROPID*, int) override {
    return E_NOTIMPL;
  }
  HRESULT WINAPI ComposeHmenuIdentityString(HMENU, DWORD, BYTE**, DWORD*) override {
    return E_NOTIMPL;
  }
  HRESULT WINAPI DecomposeHmenuIdentityString(const BYTE*, DWORD, HMENU*, DWORD*) override {
    return E_NOTIMPL;
  }
};

class Factory final : public IClassFactory {
 public:
  HRESULT WINAPI QueryInterface(REFIID wanted, void** found) override {
    const bool known =
        IsEqualIID(wanted, __uuidof(IUnknown)) || IsEqualIID(wanted, __uuidof(IClassFactory));
    *found = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG WINAPI AddRef() override { return 2; }
  ULONG WINAPI Release() override { return 1; }
  HRESULT WINAPI CreateInstance(IUnknown*, REFIID wanted, void** made) override {
    return service_.QueryInterface(wanted, made);
  }
  HRESULT WINAPI LockServer(BOOL) override { return S_OK; }

 private:
  NameService service_;
};

}  // namespace

extern "C" HRESULT WINAPI DllGetClassObject(REFCLSID, REFIID wanted, void** found) {
  static Factory factory;
  return factory.QueryInterface(wanted, found);
}

extern "C" HRESULT WINAPI DllCanUnloadNow() {
  return S_FALSE;
}

// Begun by the driver as threads of the program. All windows are told.

// A colour: its index in the upper byte, 0xBBGGRR below.
extern "C" DWORD WINAPI ChangeColour(void* index_and_colour) {
  const auto value = reinterpret_cast<std::uintptr_t>(index_and_colour);
  const int index = static_cast<int>(value >> 24);
  const auto colour = static_cast<COLORREF>(value & 0xFFFFFF);
  if (!SetSysColors(1, &index, &colour)) return 0;
  return PostMessageW(HWND_BROADCAST, WM_SYSCOLORCHANGE, 0, 0) ? 1 : 0;
}

// The height of the system's fonts, in pixels; 0 is the one that they had first.
extern "C" DWORD WINAPI ChangeFont(void* pixels) {
  static LONG first = 0;
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof(metrics);
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  if (first == 0) first = metrics.lfMessageFont.lfHeight;
  const auto wanted = static_cast<LONG>(reinterpret_cast<std::uintptr_t>(pixels));
  for (LOGFONTW* font : {&metrics.lfMessageFont, &metrics.lfMenuFont, &metrics.lfStatusFont}) {
    font->lfHeight = wanted == 0 ? first : -wanted;
  }
  if (!SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof(metrics), &metrics,
                             SPIF_UPDATEINIFILE)) {
    return 0;
  }
  SendMessageTimeoutW(HWND_BROADCAST, WM_SETTINGCHANGE, SPI_SETNONCLIENTMETRICS, 0,
                      SMTO_ABORTIFHUNG, 2000, nullptr);
  return 1;
}
