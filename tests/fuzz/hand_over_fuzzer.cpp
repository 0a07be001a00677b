// Any bytes as the hand-over files of the helper programs: the tone helpers' "sound.ini" and the
// uploader's "snd.ini". What stands before a NUL, if there is one, is the temporary folder.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "helpers/request.h"
#include "helpers/upload.h"
#include "tests/fuzz/require.h"

namespace helpers {
namespace {

using fuzz::Require;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// The rule, in another way: at most 64 characters, of which those between the blanks are digits.
std::optional<std::uint32_t> PlainRequest(std::string_view text) {
  std::size_t at = 0;
  const auto skip_blanks = [&] {
    while (at < text.size() && (text[at] == ' ' || text[at] == '\t')) ++at;
  };
  skip_blanks();
  std::uint32_t value = 0;
  const std::size_t begin = at;
  for (; at < text.size() && IsDigit(text[at]); ++at) {
    value = std::min<std::uint32_t>(10 * value + static_cast<std::uint32_t>(text[at] - '0'), 99999);
  }
  if (at == begin) return std::nullopt;
  skip_blanks();
  const bool ends = at == text.size() || text[at] == '\r' || text[at] == '\n';
  if (!ends || at > 64 || value < 1 || value > 32000) return std::nullopt;
  return value;
}

void CheckRequest(const std::string& text) {
  const auto pitch = ParseRequest(text);
  Require(pitch == PlainRequest(text), "a whole number from 1 to 32000 in line 1");
  if (!pitch) return;
  Require(ParseRequest(" " + std::to_string(*pitch) + " \r\n") == pitch,
          "as the program writes it");
  Require(ParseRequest(text + "\nx") == pitch, "only line 1 counts");
}

std::string Upper(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return upper;
}

std::string Written(std::string_view file, const Upload& upload) {
  return std::string(file) + "\r\n" + std::string(upload.name) + "\n";
}

bool Same(const std::optional<Upload>& one, const Upload& other) {
  return one && one->log == other.log && one->name == other.name;
}

void CheckUpload(std::string_view text, const std::string& folder) {
  const auto upload = ParseUpload(text, folder);
  if (!upload) return;
  Require(text.size() <= kLongestHandOver && !folder.empty(), "neither too long nor nowhere");
  Require(upload->name.data() > text.data() &&
              upload->name.data() + upload->name.size() <= text.data() + text.size(),
          "the name lies in the text");
  const std::string_view ending = upload->log == Log::kActivity ? ".txt" : "error.log";
  Require(upload->name.ends_with(ending), "the name ends as the log's");
  const std::string_view number = upload->name.substr(0, upload->name.size() - ending.size());
  Require(number.size() >= 1 && number.size() <= 5 &&
              std::all_of(number.begin(), number.end(), IsDigit),
          "before that it is a number");
  const std::string file(text.substr(0, text.find_first_of("\r\n")));
  Require(Upper(file).ends_with(Upper(FileName(upload->log))), "the file is the log");
  Require(file.size() == FileName(upload->log).size() ||
              file.size() == folder.size() + 1 + FileName(upload->log).size(),
          "alone, or in the folder and in no other");
  const std::string whole = folder + "\\" + std::string(FileName(upload->log));
  if (Written(whole, *upload).size() <= kLongestHandOver && whole.find('\n') == std::string::npos) {
    const std::string written = Written(whole, *upload);
    Require(Same(ParseUpload(written, folder), *upload), "written again, it is the same");
    const std::string loud = Written(Upper(whole), *upload);
    Require(Same(ParseUpload(loud, folder), *upload), "case does not matter");
    const std::string longer = written + "x";
    Require(!ParseUpload(longer, folder), "there is no third line");
  }
}

void CheckBytes(const std::string& bytes) {
  CheckRequest(bytes);
  CheckUpload(bytes, "C:\\Temp");
  const std::size_t nul = bytes.find('\0');
  if (nul == std::string::npos) return;
  CheckUpload(std::string_view(bytes).substr(nul + 1), bytes.substr(0, nul));
}

}  // namespace
}  // namespace helpers

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  helpers::CheckBytes(std::string(data, data + size));
  return 0;
}
