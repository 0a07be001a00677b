// A number that the user types digit by digit where there is no field for it. Every digit counts at
// once; after a pause the next one begins a new number.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace ui {

class TypedNumber {
 public:
  static constexpr std::uint32_t kPauseMs = 2000;

  // A typed character at a running time, which may pass its end and begin anew. Whether it was one
  // that counts: a digit, or Backspace, which takes one back.
  bool Press(char32_t key, std::uint32_t at_ms);

  // What is typed so far; nothing when no digit is.
  std::optional<std::int32_t> Number() const;

  void Forget() { digits_.clear(); }

 private:
  std::string digits_;
  std::uint32_t last_ms_ = 0;
};

}  // namespace ui
