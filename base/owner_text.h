// How a program that is started for a while knows whose it is: the environment variable kOwner
// holds who started it, as two decimal numbers with a blank between them.
#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace base {

inline constexpr char kOwner[] = "TONMIRA_OWNER";

struct Owner {
  std::uint32_t process = 0;  // its number, which the system gives to another one when it has ended
  std::uint64_t began = 0;    // when it was created, in the system's units: tells those two apart

  friend bool operator==(const Owner&, const Owner&) = default;
};

inline std::string OwnerText(const Owner& owner) {
  return std::to_string(owner.process) + " " + std::to_string(owner.began);
}

// Nothing if `text` is no text of OwnerText. Neither allocates nor throws.
inline std::optional<Owner> ParseOwner(std::string_view text) {
  Owner owner;
  const char* const end = text.data() + text.size();
  const auto [blank, error] = std::from_chars(text.data(), end, owner.process);
  if (error != std::errc() || blank == end || *blank != ' ') return std::nullopt;
  const auto [stop, second_error] = std::from_chars(blank + 1, end, owner.began);
  if (second_error != std::errc() || stop != end) return std::nullopt;
  return owner;
}

}  // namespace base
