// ErrorNote: the one place where a run-time error is written down and shown.
//
// Every event handler and procedure that traps errors has a fixed number, its error value. The
// numbers, by owner:
//   Form1        1 about, 2 autoupdate, 3 Command1, 4 Command2, 5 Command3, 6 Command4,
//                7 Command5, 9 contact, 10 donate, 11 dutch, 12 english, 13 exit, 14 Form_Load,
//                15 Form_Unload, 16 openfile, 17 to 25 Option1 to Option9, 26 HScroll1,
//                27 sndautomatic, 28 sndclassic, 29 snddirectsound, 30 sndsound32, 31 sndwinmm,
//                32 webpage, 33 StartCapture, 34 StopCapture,
//                35 DirectSoundRecord_GotWaveData, 36 Draw16, 37 DrawWave, 38 Draw8,
//                39 microinputonoff
//   Form2        201 Form_Load, 202 Form_Unload
//   Form3        301 Form_Load
//   Form5        501 Combo1, 502 Command1, 503 Command2, 504 Form_Load
//   Form7        701 Command1, 702 Command2
//   frmDX_Record 9901 DirectXEvent8_DXCallback
//   Program      102 WriteLine, 103 CheckSettings, 104 NewFile, 105 Terminate, 106 SendData,
//                108 LoadFile, 1010 SelectRadio, 1012 WriteTest, 1013 UpdateCheck,
//                1014 DrawSine, 1015 LanguageAPI
//   ExFunctions  1024 Download, 1025 FTPSend, 1026 DPIGet, 1027 CheckVersion
#pragma once

#include <cstdint>
#include <new>
#include <optional>

#include "base/errors.h"
#include "base/main_state.h"
#include "platform/platform.h"
#include "settings/log_upload.h"

namespace settings {

class Form6;

// Of FTPSend. An upload that failed is not itself uploaded.
inline constexpr std::int16_t kUploadErrorValue = 1025;

// What reporting an error does to the program's windows.
class ErrorScene {
 public:
  virtual ~ErrorScene() = default;

  virtual Form6& ErrorDialog() = 0;

  // Hides the main window and every other window but the error dialog.
  virtual void HideOtherWindows() = 0;
};

class ErrorNotes {
 public:
  ErrorNotes(platform::Platform& platform, const base::MainState& state, ErrorScene& scene,
             LogUpload& upload)
      : platform_(platform), state_(state), scene_(scene), upload_(upload) {}

  // Writes the error log ("error.log" in the temporary folder), uploads it where the user has
  // agreed to that, shows the error dialog in place of all other windows and returns after the
  // user has left it. Throws base::RuntimeError when the log cannot be written or the number of
  // its upload does not fit.
  void ErrorNote(std::int16_t value, const base::RuntimeError& error);

 private:
  platform::Platform& platform_;
  const base::MainState& state_;
  ErrorScene& scene_;
  LogUpload& upload_;
};

// Runs `body`; the error that it throws, if any.
template <class Body>
std::optional<base::RuntimeError> Caught(const Body& body) {
  try {
    body();
  } catch (const base::RuntimeError& error) {
    return error;
  } catch (const std::bad_alloc&) {
    return base::RuntimeError(base::ErrorCode::kOutOfMemory);
  }
  return std::nullopt;
}

// Runs `body` and reports what it throws under the error value `value`.
template <class Body>
void TrapErrors(ErrorNotes& errors, std::int16_t value, const Body& body) {
  if (const auto error = Caught(body)) errors.ErrorNote(value, *error);
}

}  // namespace settings
