#include "platform/page_policy.h"

#include "platform/redirections.h"

namespace platform {
namespace {

constexpr std::uint32_t kCredentials = 0x1A00;  // URLACTION_CREDENTIALS_USE
constexpr std::uint32_t kByUser = 0x2;          // NWMF_USERINITED

}  // namespace

std::uint32_t PolicyOf(std::uint32_t action) {
  return action == kCredentials ? kNobodysName : kDisallow;
}

bool IsOfWeb(std::wstring_view address) {
  return MayFollow(L"http://", address);
}

bool AskedByUser(std::uint32_t flags) {
  return (flags & kByUser) != 0;
}

}  // namespace platform
