#include "tools/native.h"

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

#include <cerrno>

#include "tools/windows/wide.h"

namespace tools::native {
namespace {

constexpr DWORD kObeyEscapes = 0x0004;  // ENABLE_VIRTUAL_TERMINAL_PROCESSING, from Windows 10 on

HANDLE HandleOf(std::FILE* stream) {
  return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
}

}  // namespace

std::FILE* OpenFile(const std::string& name, Open how) {
  return _wfopen(Wide(name).c_str(), how == Open::kForReading ? L"rb" : L"wb");
}

Kind KindOf(const std::string& name) {
  const DWORD attributes = GetFileAttributesW(Wide(name).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return Kind::kNothing;
  return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Kind::kFolder : Kind::kFile;
}

Kind KindOf(std::FILE* file) {
  return GetFileType(HandleOf(file)) == FILE_TYPE_DISK ? Kind::kFile : Kind::kOther;
}

std::string Resolved(const std::string& name) {
  return name;
}

int Rename(const std::string& from, const std::string& to) {
  return MoveFileExW(Wide(from).c_str(), Wide(to).c_str(), MOVEFILE_REPLACE_EXISTING) != 0 ? 0
                                                                                           : EACCES;
}

void Remove(const std::string& name) {
  DeleteFileW(Wide(name).c_str());
}

bool IsTerminal(std::FILE* stream) {
  DWORD mode = 0;
  return GetConsoleMode(HandleOf(stream), &mode) != 0;
}

bool ObeysEscapes(std::FILE* stream) {
  DWORD mode = 0;
  const HANDLE console = HandleOf(stream);
  return GetConsoleMode(console, &mode) != 0 && SetConsoleMode(console, mode | kObeyEscapes) != 0;
}

void BeBinary(std::FILE* stream) {
  _setmode(_fileno(stream), _O_BINARY);
}

void PrintText(std::FILE* stream, std::string_view text) {
  if (!IsTerminal(stream)) {
    std::fwrite(text.data(), 1, text.size(), stream);
    return;
  }
  const std::wstring wide = Wide(text);
  DWORD written = 0;
  WriteConsoleW(HandleOf(stream), wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr);
}

}  // namespace tools::native
