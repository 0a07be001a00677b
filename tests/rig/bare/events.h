// The file in which a stand-in notes what came of what it told the program's own objects.
#pragma once

#include <windows.h>

#include <fstream>
#include <string>

// "events.txt" in the temporary folder.
inline std::ofstream& Events() {
  static std::ofstream file = [] {
    char folder[MAX_PATH] = "";
    GetEnvironmentVariableA("TEMP", folder, MAX_PATH);
    return std::ofstream(std::string(folder) + "\\events.txt", std::ios::binary);
  }();
  return file;
}

inline std::string Plain(const std::wstring& text) {
  std::string plain;
  for (const wchar_t c : text) plain += static_cast<char>(c);
  return plain;
}
