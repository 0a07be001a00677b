#include "settings/error_report.h"

#include "base/numbers.h"

namespace settings {

std::vector<std::string> ErrorLines(const base::RuntimeError& error, base::ErrorValue value,
                                    const ErrorCircumstances& circumstances) {
  return {
      "Error number: " + base::SignedNumber(error.number()) +
          ",   Error value: " + base::SignedNumber(static_cast<std::int16_t>(value)),
      "<" + error.description() + ">",
      "Resolution:" + base::SignedNumber(circumstances.screen.width) + " x" +
          base::SignedNumber(circumstances.screen.height) +
          ",   DPI:" + base::SignedNumber(circumstances.dpi),
      "Time: " + circumstances.time + ", Date: " + circumstances.date,
  };
}

std::int16_t UploadNumber(double random, const platform::LocalTime& now) {
  return base::ToInt16(base::WholePart(random * now.second * now.hour * now.day + 1));
}

}  // namespace settings
