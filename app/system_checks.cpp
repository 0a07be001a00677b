#include "app/system_checks.h"

#include "base/numbers.h"

namespace app {
namespace {

constexpr std::int32_t kNtFamily = 2;

}  // namespace

std::string VersionText(const platform::VersionRecord& record) {
  return base::SignedNumber(record.success) + " ." + base::SignedNumber(record.major) + " ." +
         base::SignedNumber(record.minor);
}

bool IsSupported(const platform::VersionRecord& record) {
  return record.success == 1 && record.platform == kNtFamily &&
         (record.major == 5 || record.major == 6);
}

bool IsWindows2000(const platform::VersionRecord& record) {
  return record.major == 5 && record.minor == 0;
}

std::int32_t SystemChecks::DPIGet() {
  std::int32_t dpi = 0;
  base::TrapErrors(errors_, base::ErrorValue::kDPIGet,
                   [&] { dpi = platform_.screen.LogicalPixelsPerInch().horizontal; });
  return dpi;
}

std::string SystemChecks::CheckVersion() {
  std::string text;
  const auto error = base::Caught([&] { text = CheckOnce(); });
  if (error) {
    errors_.ErrorNote(base::ErrorValue::kCheckVersion, *error);
    text = CheckOnce();
  }
  return text;
}

std::string SystemChecks::CheckOnce() {
  const std::string text = VersionText(platform_.version.Query());
  const platform::VersionRecord record = platform_.version.Query();
  if (!IsSupported(record)) {
    platform_.messages.Show("Upgrade your Windows to use Tonmira", "Windows version",
                            platform::MessageIcon::kCritical, platform::MessageButtons::kOk);
    platform_.processes.EndProcess();
  }
  if (IsWindows2000(record)) {
    platform_.messages.Show("Warning: Windows 2000 detected! Classic sound mode will NOT work!",
                            "Windows version", platform::MessageIcon::kExclamation,
                            platform::MessageButtons::kOk);
  }
  return text;
}

}  // namespace app
