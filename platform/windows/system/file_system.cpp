#include "platform/windows/system/file_system.h"

#include <utility>

#include "platform/windows/api/handles.h"
#include "platform/windows/api/wide_text.h"
#include "platform/windows/system/file_errors.h"
#include "platform/windows/system/random_name.h"

namespace platform::windows {
namespace {

constexpr DWORD kShareWithWriters = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
// Two that write one file at a time would leave a mixture of both.
constexpr DWORD kShareWithReaders = FILE_SHARE_READ | FILE_SHARE_DELETE;
constexpr DWORD kLongestPause = 64;  // ms; the pauses double, so all of them last twice as long

// Names of this length or more reach the system only with this mark, which wants a full path.
constexpr std::size_t kLongName = MAX_PATH - 12;
constexpr wchar_t kLongMark[] = L"\\\\?\\";

std::wstring NameOf(const std::string& path) {
  const std::wstring name = Widen(path);
  if (name.size() < kLongName || name.starts_with(kLongMark)) return name;
  if (name.starts_with(L"\\\\")) return kLongMark + (L"UNC" + name.substr(1));
  return name[1] == L':' ? kLongMark + name : name;
}

// Calls `attempt` until it succeeds or trying again is no use; returns the system's last error.
template <typename Attempt>
DWORD Insist(const std::wstring& path, Attempt attempt) {
  for (DWORD pause = 1;; pause *= 2) {
    if (attempt()) return ERROR_SUCCESS;
    const DWORD error = GetLastError();
    if (pause > kLongestPause || !MayPass(error, path)) return error;
    ::Sleep(pause);
  }
}

bool IsFolder(const std::wstring& name) {
  const DWORD attributes = GetFileAttributesW(name.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// A link to another file, or one of several names of a file: what is written here would change more
// than the name says.
bool LeadsElsewhere(HANDLE file) {
  BY_HANDLE_FILE_INFORMATION info{};
  return GetFileInformationByHandle(file, &info) &&
         (info.nNumberOfLinks > 1 || (info.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0);
}

// A link itself is opened, not what it leads to.
KernelHandle CreateToWrite(const std::wstring& name, DWORD disposition) {
  return Own(CreateFileW(name.c_str(), GENERIC_WRITE, kShareWithReaders, nullptr, disposition,
                         FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
}

// The file of this name, or a new one, also where the name leads elsewhere. Null when the system
// refuses, which has left its error.
KernelHandle OpenOwn(const std::wstring& name) {
  KernelHandle file = CreateToWrite(name, OPEN_ALWAYS);
  if (!file || !LeadsElsewhere(file.get())) return file;
  file.reset();
  if (!DeleteFileW(name.c_str())) return nullptr;
  return CreateToWrite(name, CREATE_NEW);
}

class WindowsInputFile final : public InputFile {
 public:
  WindowsInputFile(KernelHandle file, std::wstring path)
      : file_(std::move(file)), path_(std::move(path)) {}

  std::size_t Read(std::span<char> buffer) override {
    DWORD count = 0;
    if (!ReadFile(file_.get(), buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr)) {
      ThrowFileError(GetLastError(), path_);
    }
    return count;
  }

 private:
  KernelHandle file_;
  std::wstring path_;
};

// Writes over what is there and cuts off the rest at the end: emptying a file first makes the disk
// give its place back and find another, which takes far longer than all the rest.
class WindowsOutputFile final : public OutputFile {
 public:
  WindowsOutputFile(KernelHandle file, std::wstring path)
      : file_(std::move(file)), path_(std::move(path)) {}

  ~WindowsOutputFile() override {
    if (file_) SetEndOfFile(file_.get());
  }

  void Write(std::string_view bytes) override {
    while (!bytes.empty()) {
      DWORD count = 0;
      const DWORD wanted = static_cast<DWORD>(bytes.size());
      if (!WriteFile(file_.get(), bytes.data(), wanted, &count, nullptr)) {
        ThrowFileError(GetLastError(), path_);
      }
      if (count == 0) ThrowFileError(ERROR_DISK_FULL, path_);
      bytes.remove_prefix(count);
    }
  }

  void Flush() override {
    if (!FlushFileBuffers(file_.get())) ThrowFileError(GetLastError(), path_);
  }

  void Close() override {
    if (!SetEndOfFile(file_.get())) ThrowFileError(GetLastError(), path_);
    if (!CloseHandle(file_.release())) ThrowFileError(GetLastError(), path_);
  }

 private:
  KernelHandle file_;
  std::wstring path_;
};

}  // namespace

bool WindowsFileSystem::Exists(const std::string& path) {
  const DWORD attributes = GetFileAttributesW(NameOf(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::unique_ptr<InputFile> WindowsFileSystem::OpenForReading(const std::string& path) {
  std::wstring name = NameOf(path);
  KernelHandle file;
  const DWORD error = Insist(name, [&] {
    file = Own(CreateFileW(name.c_str(), GENERIC_READ, kShareWithWriters, nullptr, OPEN_EXISTING,
                           FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    return file != nullptr;
  });
  if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND) return nullptr;
  if (error == ERROR_ACCESS_DENIED && IsFolder(name)) return nullptr;
  if (error != ERROR_SUCCESS) ThrowFileError(error, name);
  // A device's name (a serial port, say) opens too, but reading it could block for ever.
  if (GetFileType(file.get()) != FILE_TYPE_DISK) return nullptr;
  return std::make_unique<WindowsInputFile>(std::move(file), std::move(name));
}

std::unique_ptr<OutputFile> WindowsFileSystem::OpenForWriting(const std::string& path) {
  std::wstring name = NameOf(path);
  KernelHandle file;
  const DWORD error = Insist(name, [&] {
    file = OpenOwn(name);
    return file != nullptr;
  });
  if (error != ERROR_SUCCESS) ThrowFileError(error, name);
  return std::make_unique<WindowsOutputFile>(std::move(file), std::move(name));
}

void WindowsFileSystem::Rename(const std::string& from, const std::string& to) {
  const std::wstring source = NameOf(from);
  const std::wstring target = NameOf(to);
  const DWORD error = Insist(target, [&] {
    return MoveFileExW(source.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
  });
  if (error != ERROR_SUCCESS) ThrowFileError(error, target);
}

std::vector<std::string> WindowsFileSystem::Beginning(const std::string& path) {
  std::vector<std::string> paths;
  const std::string folder = path.substr(0, path.find_last_of('\\') + 1);
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW(NameOf(path + "*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return paths;
  do {
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
      paths.push_back(folder + Narrow(found.cFileName));
    }
  } while (FindNextFileW(search, &found));
  FindClose(search);
  return paths;
}

bool WindowsFileSystem::Delete(const std::string& path) {
  const std::wstring name = NameOf(path);
  const DWORD error = Insist(name, [&] { return DeleteFileW(name.c_str()) != 0; });
  if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND) return false;
  if (error != ERROR_SUCCESS) ThrowFileError(error, name);
  return true;
}

std::string WindowsFileSystem::TemporaryName(const std::string& path) {
  return Narrow(RandomNameBeside(Widen(path)));
}

std::string WindowsCodePage::Encode(std::string_view utf8) {
  // A system may use UTF-8 as its code page; then nothing is inexpressible.
  const bool is_utf8 = GetACP() == CP_UTF8;
  const std::wstring wide = Widen(utf8);
  const DWORD flags = is_utf8 ? 0 : WC_NO_BEST_FIT_CHARS;
  const char* const unknown = is_utf8 ? nullptr : "?";
  const int length = static_cast<int>(wide.size());
  const int needed =
      WideCharToMultiByte(CP_ACP, flags, wide.data(), length, nullptr, 0, unknown, nullptr);
  std::string bytes(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_ACP, flags, wide.data(), length, bytes.data(), needed, unknown, nullptr);
  return bytes;
}

std::string WindowsCodePage::Decode(std::string_view bytes) {
  const int length = static_cast<int>(bytes.size());
  const int needed = MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(needed), L'\0');
  MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, wide.data(), needed);
  return Narrow(wide);
}

}  // namespace platform::windows
