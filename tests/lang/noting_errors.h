// Errors that are only noted.
#pragma once

#include <string>
#include <vector>

#include "base/error_trap.h"

namespace lang {

class NotingErrors : public base::ErrorReporter {
 public:
  std::vector<std::string> notes;

  void ErrorNote(base::ErrorValue value, const base::RuntimeError& error) override {
    notes.push_back("error " + std::to_string(error.number()) + ", value " +
                    std::to_string(static_cast<int>(value)));
  }
};

}  // namespace lang
