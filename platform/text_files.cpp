#include "platform/text_files.h"

#include <array>

#include "base/errors.h"

namespace platform {

std::optional<std::string> TextFiles::Read(const std::string& path) {
  auto bytes = ReadBytes(path);
  if (bytes) bytes = code_page_.Decode(*bytes);
  return bytes;
}

std::optional<std::string> TextFiles::ReadBytes(const std::string& path) {
  const auto file = files_.OpenForReading(path);
  if (!file) return std::nullopt;
  std::string bytes;
  std::array<char, 4096> block{};
  while (const std::size_t count = file->Read(block)) bytes.append(block.data(), count);
  return bytes;
}

void TextFiles::Write(const std::string& path, std::string_view text) {
  const auto file = files_.OpenForWriting(path);
  file->Write(code_page_.Encode(text));
  file->Close();
}

void TextFiles::Replace(const std::string& path, std::string_view text, Durability durability) {
  const std::string temporary = files_.TemporaryName(path);
  auto file = files_.OpenForWriting(temporary);
  try {
    file->Write(code_page_.Encode(text));
    if (durability == Durability::kOnDisk) file->Flush();
    file->Close();
    files_.Rename(temporary, path);
  } catch (const base::RuntimeError&) {
    file.reset();
    try {
      files_.Delete(temporary);
    } catch (const base::RuntimeError&) {
      // The first failure is the one to report.
    }
    throw;
  }
}

}  // namespace platform
