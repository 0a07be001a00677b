// One count over the calls of all services, and the one call that goes wrong.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/errors.h"

namespace platform::simulated {

// What becomes of a call: it fails as such calls do, it is refused for want of rights, or the
// program is killed before it has done anything.
enum class Fault { kFails, kDenied, kKilled };

// The program calls and calls. Deliberately no std::exception: no trap catches it.
struct Endless {};

class Calls {
 public:
  // Counts from now on; the n-th call (1 = the next) goes wrong, none for 0.
  void FaultAt(int n, Fault fault);

  int count() const { return count_; }

  // The call that went wrong, by service, name and what it was about; empty as long as none did.
  const std::string& hit() const { return hit_; }

  // Is told of every call before it is made.
  std::function<void(const char* call, std::string_view about)> on_call;

  std::function<void()> on_end;  // the program ends here: no call comes from it any more

  // For the services: takes note of a call and says how it goes wrong, if it does. Ends the program
  // where it is to be killed.
  std::optional<Fault> Next(const char* call, std::string_view about = {});

  // The same, for calls that throw when they fail; they do so with `code`.
  void Enter(const char* call, std::string_view about = {},
             base::ErrorCode code = base::ErrorCode::kOutOfMemory);

  // The error of a call that goes wrong.
  static base::RuntimeError ErrorOf(Fault fault, base::ErrorCode code);

 private:
  static constexpr int kMostCalls = 60000;

  int count_ = 0;
  int fault_at_ = 0;
  Fault fault_ = Fault::kFails;
  std::string hit_;
};

}  // namespace platform::simulated
