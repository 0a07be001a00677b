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
  if (!noted_) noted_ = Noted{value, error};
  // Drawn whether or not the log is sent: a number that does not fit is an error in either case.
  const std::int16_t number = UploadNumber(platform_.random.Next(), platform_.clock.Now());
  auto lines = Lines(value, error);
  if (!WriteLog(lines)) {
    const std::string folder = platform_.environment.Get("TEMP");
    lines[1] += " Not writable: " + (folder.empty() ? "(TEMP)" : folder);
  } else if (state_.SendData == 1 && value != base::ErrorValue::kFTPSend) {
    // An upload that failed is not itself uploaded.
    upload_.FTPSend("error.log", base::BareNumber(number) + "error.log");
  }
  ShowDialog(lines);
  noted_.reset();
}

void ErrorNotes::ShowUntrapped(const base::RuntimeError& error) {
  const Noted shown = noted_.value_or(Noted{base::ErrorValue{}, error});
  ShowDialog(Lines(shown.value, shown.error));
}

std::vector<std::string> ErrorNotes::Lines(base::ErrorValue value,
                                           const base::RuntimeError& error) const {
  ErrorCircumstances circumstances{platform_.screen.Pixels(), 0, platform_.clock.ShortTime(),
                                   platform_.clock.ShortDate()};
  base::Quietly([&] { circumstances.dpi = platform_.screen.LogicalPixelsPerInch().horizontal; });
  return ErrorLines(error, value, circumstances);
}

bool ErrorNotes::WriteLog(const std::vector<std::string>& lines) {
  std::string log;
  for (const std::string& line : lines) log += base::Line(line);
  return base::Quietly([&] {
    platform_.Texts().Replace(platform_.environment.Get("TEMP") + "\\error.log", log,
                              platform::Durability::kVisible);
  });
}

void ErrorNotes::ShowDialog(const std::vector<std::string>& lines) {
  Form6& dialog = scene_.ErrorDialog();
  dialog.Present(lines);
  scene_.HideOtherWindows();
  do {
    platform_.pump.ProcessPending([&dialog] { return dialog.done_flag == 1; });
    platform_.pump.Sleep(kTickMs);
  } while (dialog.done_flag != 1);
}

}  // namespace settings
