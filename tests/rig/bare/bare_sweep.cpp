// The least that a sweep can be: writes a WAV image that is ready, plays it and sleeps 75 ms, over
// and over. The measure of the steps of "Low to high". Ends when it is ended.
#include <windows.h>

#include <mmsystem.h>

#include <cmath>
#include <cstdint>
#include <cwchar>
#include <string>

namespace {

constexpr std::uint32_t kRate = 44100;
constexpr std::uint32_t kFrameBytes = 4;
constexpr double kTwoPi = 6.283185307179586;

void Append(std::string& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(value >> 8 * i);
}

// One second of 1000 Hz: 44100 Hz, 16 bits, two channels.
std::string Image() {
  const std::uint32_t data_bytes = kRate * kFrameBytes;
  std::string bytes = "RIFF";
  Append(bytes, 36 + data_bytes, 4);
  bytes += "WAVEfmt ";
  Append(bytes, 16, 4);
  Append(bytes, 1, 2);
  Append(bytes, 2, 2);
  Append(bytes, kRate, 4);
  Append(bytes, kRate * kFrameBytes, 4);
  Append(bytes, kFrameBytes, 2);
  Append(bytes, 16, 2);
  bytes += "data";
  Append(bytes, data_bytes, 4);
  for (std::uint32_t i = 0; i < kRate; ++i) {
    const auto sample = static_cast<std::int16_t>(30000 * std::sin(kTwoPi * 1000 * i / kRate));
    for (int channel = 0; channel < 2; ++channel) {
      Append(bytes, static_cast<std::uint16_t>(sample), 2);
    }
  }
  return bytes;
}

void Write(const wchar_t* path, const std::string& bytes) {
  const HANDLE file =
      CreateFileW(path, GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS, 0, nullptr);
  DWORD written = 0;
  WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  CloseHandle(file);
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  wchar_t path[MAX_PATH + 16] = L"";
  GetEnvironmentVariableW(L"TEMP", path, MAX_PATH);
  std::wcscat(path, L"\\sweep.wav");
  const std::string image = Image();
  timeBeginPeriod(1);
  for (;;) {
    Write(path, image);
    PlaySoundW(path, nullptr, SND_ASYNC | SND_NODEFAULT | SND_FILENAME);
    Sleep(75);
  }
}
