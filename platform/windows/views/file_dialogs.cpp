#include "platform/windows/views/file_dialogs.h"

#include <algorithm>

#include "platform/windows/api/system_library.h"
#include "platform/windows/api/wide_text.h"
#include "platform/windows/api/windows_api.h"

#include <commdlg.h>

namespace platform::windows {
namespace {

using GetOpenFileNameFunction = BOOL(WINAPI*)(LPOPENFILENAMEW);

// No path of the system is longer.
constexpr std::size_t kPathSpace = 32768;

// OFN_NOCHANGEDIR is not documented to serve for the dialog that opens files.
class CurrentFolderKeeper {
 public:
  CurrentFolderKeeper() : folder_(GetCurrentDirectoryW(0, nullptr), L'\0') {
    GetCurrentDirectoryW(static_cast<DWORD>(folder_.size()), folder_.data());
  }
  ~CurrentFolderKeeper() { SetCurrentDirectoryW(folder_.c_str()); }
  CurrentFolderKeeper(const CurrentFolderKeeper&) = delete;
  CurrentFolderKeeper& operator=(const CurrentFolderKeeper&) = delete;

 private:
  std::wstring folder_;
};

// The system wants each part ended by a NUL and the whole by another one.
std::wstring SystemFilter(const std::string& filter) {
  std::wstring parts = Widen(filter + "|");
  std::replace(parts.begin(), parts.end(), L'|', L'\0');
  return parts;
}

}  // namespace

std::string WindowsFileDialogs::Open(const OpenDialog& dialog) {
  const auto get_open_file_name =
      FunctionOf<GetOpenFileNameFunction>(LoadSystemLibrary(L"comdlg32.dll"), "GetOpenFileNameW");
  if (get_open_file_name == nullptr) return "";
  const std::wstring title = Widen(dialog.title);
  const std::wstring filter = SystemFilter(dialog.filter);
  const std::wstring extension = Widen(dialog.default_extension);
  std::wstring path(kPathSpace, L'\0');
  OPENFILENAMEW request{};
  request.lStructSize = sizeof(request);
  request.hwndOwner = open_.MessageOwner();
  request.lpstrTitle = title.c_str();
  request.lpstrFilter = filter.c_str();
  request.lpstrDefExt = extension.c_str();
  request.lpstrFile = path.data();
  request.nMaxFile = static_cast<DWORD>(path.size());
  request.Flags =
      OFN_EXPLORER | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST | OFN_NOCHANGEDIR;
  const CurrentFolderKeeper folder;
  open_.ShowChanges();
  if (!get_open_file_name(&request)) return "";
  return Narrow(path.c_str());
}

}  // namespace platform::windows
