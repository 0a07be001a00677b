// Any bytes as an update file from the web, and its link as the command that opens it.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "online/update_file.h"
#include "online/web_link.h"
#include "tests/fuzz/require.h"

namespace online {
namespace {

using fuzz::Require;

constexpr std::size_t kLongestCommand = 8191;  // characters that the command interpreter takes
constexpr std::string_view kStart = "cmd /c start ";

std::vector<std::string> LinesOf(std::string_view content) {
  std::vector<std::string> lines;
  bool open = false;
  for (std::size_t at = 0; at < content.size(); ++at) {
    if (!open) lines.emplace_back();
    open = content[at] != '\r' && content[at] != '\n';
    if (open) lines.back() += content[at];
    if (content[at] == '\r' && content.substr(at, 2) == "\r\n") ++at;
  }
  return lines;
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

int HexValue(char c) {
  if (IsDigit(c)) return c - '0';
  const char lower = c >= 'A' && c <= 'F' ? static_cast<char>(c - 'A' + 'a') : c;
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

void CheckVersion(const std::string& version) {
  const bool newer = IsNewer(version);
  const auto number_end = std::find_if_not(version.begin(), version.end(), IsDigit);
  const auto digits = number_end - version.begin();
  const bool plain = digits > 0 && digits < 10 &&
                     (number_end == version.end() || *number_end == ' ' || *number_end == 'x');
  if (plain) Require(newer == (std::stol(version.substr(0, 9)) > 236), "later than 236 is newer");
  const std::string dotted = DottedVersion(version);
  Require(dotted.size() == 2 + std::min<std::size_t>(3, version.size()), "three characters");
  if (version.size() >= 3) {
    Require(dotted == std::string{version[0], '.', version[1], '.', version[2]}, "and two points");
  }
  if (!newer) return;
  Require(version.size() >= 3, "no shorter number is newer");
  for (const char c : dotted) Require(c == '\t' || (c >= ' ' && c <= '~'), "it can be shown");
}

// An address by its parts.
void CheckAddress(const std::string& link) {
  Require(link.size() <= kLongestLink, "no longer than may be");
  for (const char c : link) {
    const bool may = c > ' ' && c <= '~' && std::string_view("\"'`!").find(c) == std::string::npos;
    Require(may, "only what may stand there");
  }
  const std::string lower = base::ToLower(link);
  const std::size_t scheme = lower.starts_with("https://") ? 8 : 7;
  Require(scheme == 8 || lower.starts_with("http://"), "http or https");
  const std::string rest = lower.substr(scheme);
  const std::string host = rest.substr(0, rest.find_first_of("/?#\\"));
  Require(!host.empty() && host[0] != ':', "there is a host");
  Require(host.find('@') == std::string::npos, "nobody's name before it");
}

// What the command interpreter makes of carets. Every character that it acts on must have one.
std::string WithoutCarets(std::string_view command) {
  std::string plain;
  for (std::size_t at = 0; at < command.size(); ++at) {
    const bool marked = command[at] == '^';
    if (marked) ++at;
    Require(at < command.size(), "no caret at the end");
    const bool acted_on = std::string_view("&|<>^()%!").find(command[at]) != std::string::npos;
    Require(marked || !acted_on, "what is acted on is marked");
    plain += command[at];
  }
  return plain;
}

// Escape sequences decoded; a percent sign that begins none stands for itself, if that may be.
std::string Decoded(std::string_view link, bool strict) {
  std::string text;
  for (std::size_t at = 0; at < link.size(); ++at) {
    const bool escape = link[at] == '%' && at + 2 < link.size() && HexValue(link[at + 1]) >= 0 &&
                        HexValue(link[at + 2]) >= 0;
    Require(!strict || escape || link[at] != '%', "every percent sign begins an escape sequence");
    if (escape) {
      text += static_cast<char>(16 * HexValue(link[at + 1]) + HexValue(link[at + 2]));
      at += 2;
    } else {
      text += link[at];
    }
  }
  return text;
}

// Between two percent signs some interpreters see a variable: its name holds a caret.
void CheckNames(std::string_view command) {
  for (std::size_t at = command.find('%'); at != std::string_view::npos;) {
    const std::size_t next = command.find('%', at + 1);
    if (next != std::string_view::npos) {
      const std::string_view name = command.substr(at + 1, next - at - 1);
      Require(name.starts_with('^'), "no variable has such a name");
    }
    at = next;
  }
}

void CheckLink(const std::string& link) {
  if (!IsWebAddress(link)) return;
  CheckAddress(link);
  const std::string command = StartCommand(link);
  Require(command.size() <= kLongestCommand, "the command is not cut");
  Require(command.starts_with(kStart), "a start command");
  const std::string_view argument = std::string_view(command).substr(kStart.size());
  CheckNames(argument);
  Require(Decoded(WithoutCarets(argument), true) == Decoded(link, false), "the address itself");
}

void CheckContent(const std::string& content) {
  std::vector<std::string> lines = LinesOf(content);
  const auto file = ParseUpdateFile(content);
  Require(file.has_value() == (lines.size() <= 8), "a file of nine lines is none");
  if (file) {
    lines.resize(8);
    Require(file->version == lines[0], "line 1 is the version");
    Require(file->link == lines[1], "line 2 is the link");
    CheckVersion(file->version);
    CheckLink(file->link);
  }
  CheckLink(content);
}

}  // namespace
}  // namespace online

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  online::CheckContent(std::string(data, data + size));
  return 0;
}
