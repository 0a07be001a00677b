#include "platform/page_policy.h"

#include "platform/redirections.h"

namespace platform {
namespace {

constexpr std::uint32_t kCredentials = 0x1A00;  // URLACTION_CREDENTIALS_USE

}  // namespace

std::uint32_t PolicyOf(std::uint32_t action) {
  return action == kCredentials ? kNobodysName : kDisallow;
}

bool IsOfWeb(std::wstring_view address) {
  return MayFollow(L"http://", address);
}

}  // namespace platform
