// The text of the error log, and the number under which it would be uploaded.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/error_value.h"
#include "base/errors.h"
#include "platform/system.h"

namespace settings {

struct ErrorCircumstances {
  platform::Screen::Size screen;  // pixels
  std::int32_t dpi = 0;
  std::string time;
  std::string date;
};

// The four lines of the error log.
std::vector<std::string> ErrorLines(const base::RuntimeError& error, base::ErrorValue value,
                                    const ErrorCircumstances& circumstances);

// The whole-number part of random * second * hour * day + 1, `random` in [0, 1). Throws kOverflow
// when it does not fit in 16 bits.
std::int16_t UploadNumber(double random, const platform::LocalTime& now);

}  // namespace settings
