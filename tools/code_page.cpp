#include "tools/code_page.h"

#include <array>

#include "base/text.h"

namespace tools {
namespace {

constexpr unsigned kFirstSpecial = 0x80;
constexpr std::array<char16_t, 32> kSpecial{
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

// The code page has no character that takes more than three bytes.
std::string Utf8(unsigned code_point) {
  const auto tail = [&](int shift) {
    return static_cast<char>(0x80 | ((code_point >> shift) & 0x3F));
  };
  if (code_point < 0x80) return {static_cast<char>(code_point)};
  if (code_point < 0x800) return {static_cast<char>(0xC0 | code_point >> 6), tail(0)};
  return {static_cast<char>(0xE0 | code_point >> 12), tail(6), tail(0)};
}

std::string CharacterOf(unsigned byte) {
  const unsigned special = byte - kFirstSpecial;
  return Utf8(special < kSpecial.size() ? kSpecial.at(special) : byte);
}

}  // namespace

std::string FromCodePage(std::string_view bytes) {
  std::string utf8;
  for (const char c : bytes) utf8 += CharacterOf(static_cast<unsigned char>(c));
  return utf8;
}

std::string ToCodePage(std::string_view utf8) {
  std::string bytes;
  for (const std::string& character : base::Characters(utf8)) {
    unsigned byte = 0;
    while (byte < 256 && CharacterOf(byte) != character) ++byte;
    bytes += byte < 256 ? static_cast<char>(byte) : '?';
  }
  return bytes;
}

}  // namespace tools
