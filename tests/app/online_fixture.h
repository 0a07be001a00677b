// The whole program on a simulated machine whose settings ask for the online services.
#pragma once

#include <algorithm>
#include <string>

#include "tests/app/fixture.h"

namespace app {

inline const std::string kUpdateAddress = "https://www.tonmira.example/updatetonmira.txt";
inline const std::string kTestAddress = "https://www.tonmira.example/testcon.dat";
inline constexpr char kUpdateFile[] = "C:\\Temp\\updatetonmira.txt";
inline constexpr char kTestFile[] = "C:\\Temp\\testcon.dat";
inline constexpr char kUploadHandOver[] = "C:\\Temp\\snd.ini";

class OnlineTest : public ProgramTest {
 protected:
  void PutSettings(const std::string& auto_update, const std::string& send_data,
                   const std::string& language = "EN") {
    sim.files.Put(kSettings,
                  "AutoUpdate=" + auto_update + "\r\nSoundBit=128\r\nLanguage=" + language +
                      "\r\nSendData=" + send_data + "\r\nMicrophone=1\r\nMicrophoneON=n\r\n");
  }

  void Answer(const std::string& address, const std::string& content,
              std::chrono::milliseconds after = 0ms) {
    sim.downloader.answers[address] = {content, after};
  }

  void BeSilent(const std::string& address) {
    sim.downloader.answers[address] = {std::nullopt, 0ms, true};
  }

  bool Logged(const std::string& entry) const {
    const Lines entries = LogEntries();
    return std::find(entries.begin(), entries.end(), entry) != entries.end();
  }

  // Whether a window of this name was on the screen.
  bool WasShown(const std::string& window) const {
    const Lines texts = sim.journal.Texts({Kind::kWindow});
    return std::find(texts.begin(), texts.end(), window + " shown") != texts.end();
  }

  Lines Started() const { return sim.journal.Texts({Kind::kProcess}); }
};

}  // namespace app
