// The main window's plain state, read and written by several subsystems.
//
// Flags are 16-bit integers, 1 = yes. What is not said here is cleared when the program starts.
#pragma once

#include <cstdint>
#include <string>

#include "settings/settings.h"

namespace settings {

struct MainState : Settings {
  std::int16_t stop_flag = 0;       // 1 asks every running play loop to end
  std::string temp_folder;          // value of TEMP
  std::string own_wave;             // path of a second generated WAV file, once there was one
  std::string hearing_file;         // path of the hand-over file of the hearing test, once written
  std::int16_t sine_stop_flag = 0;  // 1 asks the moving sine preview to end
};

}  // namespace settings
