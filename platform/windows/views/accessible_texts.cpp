#include "platform/windows/views/accessible_texts.h"

#include "platform/windows/api/system_library.h"

#include <objbase.h>
#include <oleacc.h>

namespace platform::windows {
namespace {

// CLSID_AccPropServices, IID_IAccPropServices, PROPID_ACC_NAME and PROPID_ACC_VALUE of oleacc.h;
// not every compiler's libraries have them.
constexpr GUID kServices = {
    0xB5F8350B, 0x0548, 0x48B1, {0xA6, 0xEE, 0x88, 0xBD, 0x00, 0xB4, 0xA5, 0xE7}};
constexpr GUID kInterface = {
    0x6E26E776, 0x04F0, 0x495D, {0x80, 0xE4, 0x33, 0x30, 0x35, 0x2E, 0x31, 0x69}};
constexpr GUID kName = {
    0x608D3DF8, 0x8128, 0x4AA7, {0xA4, 0x28, 0xF5, 0x5E, 0x49, 0x26, 0x72, 0x91}};
constexpr GUID kValue = {
    0x123FE443, 0x211A, 0x4615, {0x95, 0x27, 0xC4, 0x5A, 0x7E, 0x93, 0x71, 0x7A}};

constexpr DWORD kClient = static_cast<DWORD>(OBJID_CLIENT);

}  // namespace

AccessibleTexts::~AccessibleTexts() {
  if (service_ != nullptr) service_->Release();
}

void AccessibleTexts::SetName(HWND control, const std::wstring& name) {
  if (auto* const service = Service()) {
    service->SetHwndPropStr(control, kClient, CHILDID_SELF, kName, name.c_str());
  }
}

void AccessibleTexts::SetValue(HWND control, const std::wstring& value) {
  if (auto* const service = Service()) {
    service->SetHwndPropStr(control, kClient, CHILDID_SELF, kValue, value.c_str());
  }
}

void AccessibleTexts::Forget(HWND control) {
  if (service_ == nullptr) return;
  GUID texts[] = {kName, kValue};
  service_->ClearHwndProps(control, kClient, CHILDID_SELF, texts, 2);
}

IAccPropServices* AccessibleTexts::Service() {
  if (tried_) return service_;
  tried_ = true;
  using Initialize = HRESULT(WINAPI*)(void*, DWORD);
  using Create = HRESULT(WINAPI*)(REFCLSID, IUnknown*, DWORD, REFIID, void**);
  const HMODULE library = LoadSystemLibrary(L"ole32.dll");
  const auto initialize = FunctionOf<Initialize>(library, "CoInitializeEx");
  const auto create = FunctionOf<Create>(library, "CoCreateInstance");
  if (initialize == nullptr || create == nullptr) return nullptr;
  // Never undone: the service is used until the process ends.
  if (FAILED(initialize(nullptr, COINIT_APARTMENTTHREADED))) return nullptr;
  void* made = nullptr;
  if (SUCCEEDED(create(kServices, nullptr, CLSCTX_INPROC_SERVER, kInterface, &made))) {
    service_ = static_cast<IAccPropServices*>(made);
  }
  return service_;
}

}  // namespace platform::windows
