// Any bytes as the hand-over file of the hearing test.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

#include "hearing/hand_over.h"
#include "tests/fuzz/require.h"

namespace hearing {
namespace {

using fuzz::Require;

constexpr std::string_view kModes[] = {"16", "32", "64", "128", "256"};

// The file with `line_end` in place of each CR LF, CR and LF.
std::string WithLineEnds(std::string_view file, std::string_view line_end) {
  std::string text;
  for (std::size_t at = 0; at < file.size(); ++at) {
    if (file[at] == '\n' && at > 0 && file[at - 1] == '\r') continue;
    if (file[at] == '\r' || file[at] == '\n') {
      text += line_end;
    } else {
      text += file[at];
    }
  }
  return text;
}

// The first lines without the blanks around them.
std::array<std::string, 3> PlainLines(std::string_view file) {
  std::array<std::string, 3> lines;
  auto line = lines.begin();
  for (const char c : WithLineEnds(file, "\n")) {
    if (c != '\n') {
      *line += c;
    } else if (++line == lines.end()) {
      break;
    }
  }
  for (std::string& each : lines) {
    each.erase(each.find_last_not_of(" \t") + 1);
    each.erase(0, each.find_first_not_of(" \t"));
  }
  return lines;
}

void CheckDutch(std::string_view file, const std::string& mode) {
  const auto is_dutch = [](const std::string& text) {
    return LanguageOf(text) == Language::kDutch;
  };
  Require(is_dutch(mode + "\r\nnl\r\n"), "as the program writes it, it is Dutch");
  for (const char* line_end : {"\r\n", "\r", "\n"}) {
    Require(is_dutch(WithLineEnds(file, line_end)), "whatever its line ends");
  }
  Require(is_dutch("\t " + std::string(file)), "whatever blanks are around");
  Require(!is_dutch("\n" + std::string(file)), "the mode is in line 1");
  Require(!is_dutch("0" + std::string(file)), "the mode is a code, not a number");
}

void CheckFile(std::string_view file) {
  const auto lines = PlainLines(file);
  const bool knows_mode =
      std::find(std::begin(kModes), std::end(kModes), lines[0]) != std::end(kModes);
  const bool dutch = knows_mode && lines[1] == "nl" && lines[2].empty();
  Require(LanguageOf(file) == (dutch ? Language::kDutch : Language::kEnglish), "the plain rule");
  if (dutch) CheckDutch(file, lines[0]);
}

}  // namespace
}  // namespace hearing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // No byte stands behind the file's last one, so that reading it would be noticed.
  hearing::CheckFile({reinterpret_cast<const char*>(data), size});
  return 0;
}
