// The texts that are not captions of one control: what the windows show as the user goes on.
//
// Message texts 10 to 18 describe the tone modes 1 to 9, 19 and 20 are the play button's captions.
// A fresh object holds the English texts the program is designed with; message texts without a
// design are empty.
#pragma once

#include <array>
#include <string>

namespace lang {

inline constexpr std::size_t kModeDescriptions = 9;  // message text 9 + N describes mode N
inline constexpr std::size_t kPlayCaptionA = 19;     // for modes that sound here
inline constexpr std::size_t kPlayCaptionB = 20;     // for modes that open a tool

struct Texts {
  std::array<std::string, 21> messages;  // message text N at index N, from 1
  std::string microphone_prefix = "Microphone input, sensitivity:";
  std::string status = "Actual pitch (Hertz):";

  Texts();
};

}  // namespace lang
