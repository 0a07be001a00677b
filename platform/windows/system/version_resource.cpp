#include "platform/windows/system/version_resource.h"

#include <vector>

#include "base/errors.h"
#include "platform/windows/api/system_library.h"
#include "platform/windows/api/wide_text.h"
#include "platform/windows/system/module_path.h"

namespace platform::windows {
namespace {

// The language and the code page of the resource's texts: US English, Unicode.
constexpr wchar_t kTitle[] = L"\\StringFileInfo\\040904B0\\ProductName";

using SizeFunction = decltype(&GetFileVersionInfoSizeW);
using InfoFunction = decltype(&GetFileVersionInfoW);
using QueryFunction = decltype(&VerQueryValueW);

struct Library {
  HMODULE module = LoadSystemLibrary(L"version.dll");
  SizeFunction size = FunctionOf<SizeFunction>(module, "GetFileVersionInfoSizeW");
  InfoFunction info = FunctionOf<InfoFunction>(module, "GetFileVersionInfoW");
  QueryFunction query = FunctionOf<QueryFunction>(module, "VerQueryValueW");

  bool Complete() const { return size != nullptr && info != nullptr && query != nullptr; }
};

[[noreturn]] void ThrowMissing() {
  throw base::RuntimeError(base::ErrorCode::kFileNotFound);
}

std::vector<BYTE> Resource(const Library& library) {
  const std::wstring path = ModulePath();
  DWORD ignored = 0;
  const DWORD size = library.size(path.c_str(), &ignored);
  std::vector<BYTE> resource(size);
  if (size == 0 || !library.info(path.c_str(), 0, size, resource.data())) ThrowMissing();
  return resource;
}

}  // namespace

ProgramVersion WindowsVersionResource::Read() {
  const Library library;
  if (!library.Complete()) ThrowMissing();
  const std::vector<BYTE> resource = Resource(library);
  void* found = nullptr;
  UINT length = 0;
  if (!library.query(resource.data(), L"\\", &found, &length) ||
      length < sizeof(VS_FIXEDFILEINFO)) {
    ThrowMissing();
  }
  const auto& numbers = *static_cast<const VS_FIXEDFILEINFO*>(found);
  ProgramVersion version{"", HIWORD(numbers.dwFileVersionMS), LOWORD(numbers.dwFileVersionMS),
                         HIWORD(numbers.dwFileVersionLS)};
  if (!library.query(resource.data(), kTitle, &found, &length)) ThrowMissing();
  version.title = Narrow(static_cast<const wchar_t*>(found));
  return version;
}

}  // namespace platform::windows
