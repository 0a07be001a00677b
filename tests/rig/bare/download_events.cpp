// Stands in for the system's URL-to-file service where the rig has no hosts that it would trust:
// tells what watches over a download that the host sends on to other addresses.
#include "platform/windows/web/download_callback.h"
#include "tests/rig/bare/events.h"

#include <initializer_list>

namespace {

using platform::windows::ComOwner;
using platform::windows::DownloadCallback;

class Binding final : public IBinding {
 public:
  STDMETHODIMP QueryInterface(REFIID id, void** object) override {
    *object = id == __uuidof(IBinding) || id == __uuidof(IUnknown) ? this : nullptr;
    return *object != nullptr ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP Abort() override {
    ++aborts;
    return S_OK;
  }
  STDMETHODIMP Suspend() override { return E_NOTIMPL; }
  STDMETHODIMP Resume() override { return E_NOTIMPL; }
  STDMETHODIMP SetPriority(LONG) override { return E_NOTIMPL; }
  STDMETHODIMP GetPriority(LONG*) override { return E_NOTIMPL; }
  STDMETHODIMP GetBindResult(CLSID*, DWORD*, LPOLESTR*, DWORD*) override { return E_NOTIMPL; }

  int aborts = 0;
};

// A download that is sent from the first address to the next, and so on.
void SendOn(std::initializer_list<const wchar_t*> addresses) {
  const ComOwner<DownloadCallback> callback(
      new DownloadCallback(*addresses.begin(), L"", 1000, CoTaskMemAlloc));
  Binding binding;
  callback->OnStartBinding(0, &binding);
  Events() << Plain(*addresses.begin());
  for (const wchar_t* const* to = addresses.begin() + 1; to != addresses.end(); ++to) {
    const HRESULT result = callback->OnProgress(0, 0, BINDSTATUS_REDIRECTING, *to);
    Events() << ' ' << Plain(*to) << (result == S_OK ? " goes on" : " ended");
  }
  Events() << ", aborted " << binding.aborts << '\n';
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  SendOn({L"https://a.example/", L"https://b.example/"});
  SendOn({L"http://a.example/", L"https://b.example/"});
  SendOn({L"https://a.example/", L"http://a.example/"});
  SendOn({L"http://a.example/", L"https://b.example/", L"http://c.example/"});
  SendOn({L"http://a.example/", L"file://host/share"});
  return 0;
}
