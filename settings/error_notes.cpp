#include "settings/error_notes.h"

#include "base/numbers.h"
#include "base/text.h"
#include "settings/error_report.h"
#include "settings/form6.h"

namespace settings {
namespace {

constexpr int kTickMs = 50;

}  // namespace

void ErrorNotes::ErrorNote(base::ErrorValue value, const base::RuntimeError& error) {
  const std::string path = platform_.environment.Get("TEMP") + "\\error.log";
  const ErrorCircumstances circumstances{platform_.screen.Pixels(),
                                         platform_.screen.LogicalPixelsPerInch().horizontal,
                                         platform_.clock.ShortTime(), platform_.clock.ShortDate()};

  // Drawn whether or not the log is sent: a number that does not fit is an error in either case.
  const std::int16_t number = UploadNumber(platform_.random.Next(), platform_.clock.Now());

  const auto lines = ErrorLines(error, value, circumstances);
  std::string log;
  for (const std::string& line : lines) log += base::Line(line);
  platform_.Texts().Replace(path, log, platform::Durability::kVisible);
  // An upload that failed is not itself uploaded.
  if (state_.SendData == 1 && value != base::ErrorValue::kFTPSend) {
    upload_.FTPSend("error.log", base::BareNumber(number) + "error.log");
  }

  Form6& dialog = scene_.ErrorDialog();
  dialog.Present(lines);
  scene_.HideOtherWindows();
  do {
    platform_.pump.ProcessPending([&dialog] { return dialog.done_flag == 1; });
    platform_.pump.Sleep(kTickMs);
  } while (dialog.done_flag != 1);
}

}  // namespace settings
