#include "hearing/hand_over_file.h"

#include <array>
#include <string_view>

#include "base/errors.h"

namespace hearing {
namespace {

// More than any such file has.
constexpr std::size_t kLongest = 256;

std::string ReadBeginning(platform::FileSystem& files, const std::string& path) {
  std::string text;
  const auto file = files.OpenForReading(path);
  if (!file) return text;
  std::array<char, kLongest> block{};
  while (text.size() < kLongest) {
    const std::size_t count = file->Read(block);
    if (count == 0) break;
    text.append(block.data(), count);
  }
  return text;
}

}  // namespace

Language TakeHandOver(platform::FileSystem& files, const std::string& folder) {
  const std::string path = folder + "\\" + kHandOverFile;
  Language language = Language::kEnglish;
  try {
    language = LanguageOf(ReadBeginning(files, path));
    files.Delete(path);
  } catch (const base::RuntimeError&) {
    // It may be another program's by now.
  }
  return language;
}

}  // namespace hearing
