#include "online/update_file.h"

#include <algorithm>
#include <array>

#include "base/characters.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "base/version.h"

namespace online {
namespace {

constexpr std::size_t kMostLines = 8;

// Takes the first line, with its end, off `text`.
std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = text.find_first_of("\r\n");
  const std::string_view line = text.substr(0, end);
  if (end == std::string_view::npos) {
    text = {};
  } else {
    text.remove_prefix(text.substr(end, 2) == "\r\n" ? end + 2 : end + 1);
  }
  return line;
}

}  // namespace

std::optional<UpdateFile> ParseUpdateFile(std::string_view content) {
  std::array<std::string_view, kMostLines> lines;
  for (std::size_t n = 0; !content.empty(); ++n) {
    if (n == kMostLines) return std::nullopt;
    lines[n] = TakeLine(content);
  }
  return UpdateFile{std::string(lines[0]), std::string(lines[1])};
}

bool IsNewer(std::string_view version) {
  try {
    return base::LeadingNumber(version) > base::kVersionNumber;
  } catch (const base::RuntimeError&) {
    // Beyond all numbers; which end of them says the sign.
    return version[version.find_first_not_of(base::kBlanks)] != '-';
  }
}

std::string DottedVersion(std::string_view version) {
  std::string dotted;
  for (std::size_t i = 0; i < 3; ++i) {
    if (i > 0) dotted += '.';
    dotted += version.substr(std::min(i, version.size()), 1);
  }
  return dotted;
}

}  // namespace online
