#include "helpers/request.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "base/characters.h"

namespace helpers {
namespace {

std::string_view FirstLine(std::string_view text) {
  return {text.data(), std::min(text.find_first_of("\r\n"), text.size())};
}

std::string_view Trim(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(base::kBlanks), line.size()));
  line.remove_suffix(line.size() - (line.find_last_not_of(base::kBlanks) + 1));
  return line;
}

}  // namespace

std::optional<std::uint32_t> ParseRequest(std::string_view text) {
  const std::string_view line = FirstLine(text);
  if (line.size() > kLongestLine) return std::nullopt;
  const std::string_view number = Trim(line);
  const char* const end = number.data() + number.size();
  std::uint32_t pitch_hz = 0;
  const auto [stop, error] = std::from_chars(number.data(), end, pitch_hz);
  if (error != std::errc() || stop != end) return std::nullopt;
  if (pitch_hz == 0 || pitch_hz > kHighestPitch) return std::nullopt;
  return pitch_hz;
}

}  // namespace helpers
