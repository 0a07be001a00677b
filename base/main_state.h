// The main window's plain state, read and written by several subsystems.
//
// Flags are 16-bit integers, 1 = yes. What is not said here is cleared when the program starts.
#pragma once

#include <cstdint>
#include <string>

namespace base {

struct MainState {
  std::int16_t stop_flag = 0;  // 1 asks every running play loop to end
  std::string SoundBit;        // "16", "32", "64", "128" or "256"
  std::string language;        // "en" or "nl"
  std::int16_t AutoUpdate = 0;
  std::int16_t SendData = 0;
  std::int16_t MicrophoneON = 0;
  std::int16_t Microphone = 1;      // sensitivity, 1 to 20
  std::string temp_folder;          // value of TEMP
  std::int16_t sine_stop_flag = 0;  // 1 asks the moving sine preview to end
};

}  // namespace base
