#include "online/usage_data.h"

#include "base/numbers.h"
#include "settings/error_report.h"

namespace online {

void UsageData::SendData() {
  base::TrapErrors(errors_, base::ErrorValue::kSendData, [this] {
    const std::string log = platform_.environment.Get("TEMP") + "\\userdata.txt";
    // Drawn whether or not the log is sent: a number that does not fit is an error in either case.
    const std::int16_t number =
        settings::UploadNumber(platform_.random.Next(), platform_.clock.Now());
    if (!platform_.files.Exists(log) || state_.SendData != 1) return;
    upload_.FTPSend(log, base::BareNumber(number) + ".txt");
  });
}

}  // namespace online
