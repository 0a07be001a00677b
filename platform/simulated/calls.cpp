#include "platform/simulated/calls.h"

#include "platform/simulated/journal.h"

namespace platform::simulated {

void Calls::FaultAt(int n, Fault fault) {
  count_ = 0;
  fault_at_ = n;
  fault_ = fault;
}

std::optional<Fault> Calls::Next(const char* call, std::string_view about) {
  if (on_call) on_call(call, about);
  if (++count_ > kMostCalls) throw Endless{};
  if (count_ != fault_at_) return std::nullopt;
  hit_ = std::string(call) + " " + std::string(about);
  if (fault_ != Fault::kKilled) return fault_;
  if (on_end) on_end();
  throw ProcessEnded{};
}

void Calls::Enter(const char* call, std::string_view about, base::ErrorCode code) {
  if (const auto fault = Next(call, about)) throw ErrorOf(*fault, code);
}

base::RuntimeError Calls::ErrorOf(Fault fault, base::ErrorCode code) {
  return base::RuntimeError(fault == Fault::kDenied ? base::ErrorCode::kPermissionDenied : code);
}

}  // namespace platform::simulated
