#include "settings/activity_log.h"

#include <optional>

#include "base/field_reader.h"
#include "base/text.h"

namespace settings {

void ActivityLog::PrintFile(std::string_view newdata) {
  LoadFile();
  std::string log = base::Line(slots_[1]) + base::Line(slots_[2]);
  for (std::size_t n = 3;; ++n) {
    log += base::Line(slots_[n]);
    if (slots_[n + 1].empty() || n + 1 == kMaxLines) break;
  }
  log += base::Line(newdata);
  Insist([&] { platform_.Texts().Write(Path(), log); });
}

void ActivityLog::LoadFile() {
  base::TrapErrors(errors_, base::ErrorValue::kLoadFile, [this] {
    std::optional<std::string> content;
    Insist([&] { content = platform_.Texts().Read(Path()); });
    if (!content) return;
    base::FieldReader reader(*content);
    for (std::size_t n = 1; n <= kMaxLines && !reader.AtEnd(); ++n) slots_[n] = *reader.Next();
  });
}

void ActivityLog::Insist(const std::function<void()>& body) {
  for (int tries = 1;; ++tries) {
    try {
      body();
      return;
    } catch (const base::RuntimeError& error) {
      if (error.code() != base::ErrorCode::kPermissionDenied || tries == kTries) throw;
    }
    platform_.pump.Sleep(kPauseMs);
  }
}

std::string ActivityLog::Path() const {
  return platform_.environment.Get("TEMP") + "\\userdata.txt";
}

}  // namespace settings
