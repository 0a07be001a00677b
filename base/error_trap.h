// The one place where handlers and procedures trap run-time errors.
#pragma once

#include <new>
#include <optional>

#include "base/error_value.h"
#include "base/errors.h"

namespace base {

// Where trapped errors are reported.
class ErrorReporter {
 public:
  virtual ~ErrorReporter() = default;

  // Writes the error down, shows it, and returns after the user has seen it.
  virtual void ErrorNote(ErrorValue value, const RuntimeError& error) = 0;
};

// Runs `body`; the error that it throws, if any.
template <class Body>
std::optional<RuntimeError> Caught(const Body& body) {
  try {
    body();
  } catch (const RuntimeError& error) {
    return error;
  } catch (const std::bad_alloc&) {
    return RuntimeError(ErrorCode::kOutOfMemory);
  }
  return std::nullopt;
}

// Throws on what was caught, if anything was.
inline void ThrowAgain(const std::optional<RuntimeError>& failure) {
  if (failure) throw RuntimeError(*failure);
}

// Runs `body` and reports what it throws under the error value `value`. `errors` has an ErrorNote.
template <class Reporter, class Body>
void TrapErrors(Reporter& errors, ErrorValue value, const Body& body) {
  if (const auto error = Caught(body)) errors.ErrorNote(value, *error);
}

// Runs `body` without a report: no message, no log. False when it threw a run-time error.
template <class Body>
bool Quietly(const Body& body) {
  return !Caught(body);
}

}  // namespace base
