// Error values: the number under which an event handler or a procedure reports the errors that it
// traps. Users find it in the first line of the error log.
//
// The numbers are given out by owner and never change. Values of services may stand for procedures
// of several of them; a procedure that ends quietly has none here.
#pragma once

#include <cstdint>

namespace base {

enum class ErrorValue : std::int16_t {
  // Form1, the main window.
  kAbout = 1,
  kAutoUpdate = 2,
  kHelp = 3,     // Command1
  kPlay = 4,     // Command2
  kStop = 5,     // Command3
  kLouder = 6,   // Command4
  kQuieter = 7,  // Command5
  kContact = 9,
  kDonate = 10,
  kDutch = 11,
  kEnglish = 12,
  kExit = 13,
  kMainWindowLoad = 14,
  kMainWindowUnload = 15,
  kOpenFile = 16,
  kOption1 = 17,
  kOption2 = 18,
  kOption3 = 19,
  kOption4 = 20,
  kOption5 = 21,
  kOption6 = 22,
  kOption7 = 23,
  kOption8 = 24,
  kOption9 = 25,
  kSlider = 26,  // HScroll1
  kAutomatic = 27,
  kClassic = 28,
  kDirectSound = 29,
  kSound32 = 30,
  kWinmm = 31,
  kWebPage = 32,
  kStartCapture = 33,
  kStopCapture = 34,
  kGotWaveData = 35,
  kDraw16 = 36,
  kDrawWave = 37,
  kDraw8 = 38,
  kMicrophoneOnOff = 39,
  kFurtherLanguage = 40,  // the menu items of languages beside English and Dutch

  // Program.
  kWriteLine = 102,
  kCheckSettings = 103,
  kNewFile = 104,
  kTerminate = 105,
  kSendData = 106,
  kLoadFile = 108,
  kSelectRadio = 1010,
  kWriteTest = 1012,
  kUpdateCheck = 1013,
  kDrawSine = 1014,
  kLanguageAPI = 1015,

  // ExFunctions.
  kDownload = 1024,
  kFTPSend = 1025,
  kDPIGet = 1026,
  kCheckVersion = 1027,

  // The other windows.
  kNewsLoad = 301,          // Form3
  kFirstRunLanguage = 501,  // Form5
  kFirstRunAccept = 502,
  kFirstRunDecline = 503,
  kFirstRunLoad = 504,
  kUpdateAccept = 701,  // Form7
  kUpdateDecline = 702,
  kCaptureCallback = 9901,  // frmDX_Record
};

}  // namespace base
