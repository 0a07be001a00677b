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
//   Form5        501 Combo1, 502 Command1, 503 Command2, 504 Form_Load
//   frmDX_Record 9901 DirectXEvent8_DXCallback
//   Program      102 WriteLine, 103 CheckSettings, 104 NewFile, 105 Terminate, 108 LoadFile,
//                1010 SelectRadio, 1012 WriteTest,
//                1014 DrawSine, 1015 LanguageAPI
//   ExFunctions  1026 DPIGet, 1027 CheckVersion
#pragma once

#include <cstdint>
#include <new>
#include <optional>

#include "base/errors.h"
#include "platform/platform.h"

namespace settings {

class Form6;

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
  ErrorNotes(platform::Platform& platform, ErrorScene& scene)
      : platform_(platform), scene_(scene) {}

  // Writes the error log ("error.log" in the temporary folder), shows the error dialog in place of
  // all other windows and returns after the user has left it. Throws base::RuntimeError when the
  // log cannot be written.
  void ErrorNote(std::int16_t value, const base::RuntimeError& error);

 private:
  platform::Platform& platform_;
  ErrorScene& scene_;
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
