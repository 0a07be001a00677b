#include "helpers/log_file.h"

#include "helpers/environment.h"
#include "helpers/upload.h"
#include "platform/windows/api/handles.h"

namespace helpers {
namespace {

using FileInfo = BY_HANDLE_FILE_INFORMATION;

constexpr int kAttempts = 40;
constexpr DWORD kPauseMs = 50;

// A second name of a file counts as a link, too.
bool IsPlainFile(HANDLE file, const FileInfo& info) {
  return GetFileType(file) == FILE_TYPE_DISK && info.nNumberOfLinks <= 1 &&
         (info.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) == 0;
}

bool SameState(const FileInfo& before, const FileInfo& after) {
  return before.nFileSizeHigh == after.nFileSizeHigh && before.nFileSizeLow == after.nFileSizeLow &&
         CompareFileTime(&before.ftLastWriteTime, &after.ftLastWriteTime) == 0;
}

// Reads at most `most` bytes; returns how many, or 0 if the file is none to send or changed
// meanwhile.
DWORD ReadOnce(const WideText& path, char* memory, DWORD most) {
  // The flag opens a link itself instead of the file that it leads to.
  const auto file = OpenToRead(path, FILE_FLAG_OPEN_REPARSE_POINT);
  FileInfo before{};
  FileInfo after{};
  DWORD size = 0;
  if (!file || !GetFileInformationByHandle(file.get(), &before) ||
      !IsPlainFile(file.get(), before) || !ReadFile(file.get(), memory, most, &size, nullptr) ||
      !GetFileInformationByHandle(file.get(), &after) || !SameState(before, after)) {
    return 0;
  }
  return size;
}

}  // namespace

LogFile::LogFile(const WideText& path)
    // One byte more than a log may have, so that a larger one is seen to be larger.
    : memory_(static_cast<char*>(HeapAlloc(GetProcessHeap(), 0, kLargestLog + 1))) {
  if (!memory_) return;
  DWORD size = 0;
  for (int i = 0; i < kAttempts && size == 0; ++i) {
    if (i > 0) Sleep(kPauseMs);
    size = ReadOnce(path, memory_.get(), kLargestLog + 1);
  }
  if (size <= kLargestLog) size_ = size;
}

}  // namespace helpers
