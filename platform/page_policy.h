// What a page of a stranger may do in the system's browser object, beside being looked at.
#pragma once

#include <cstdint>
#include <string_view>

namespace platform {

// The system's numbers for its answers (urlmon.h).
inline constexpr std::uint32_t kDisallow = 0x03;        // URLPOLICY_DISALLOW
inline constexpr std::uint32_t kNobodysName = 0x30000;  // URLPOLICY_CREDENTIALS_ANONYMOUS_ONLY
inline constexpr std::uint32_t kRestrictedZone = 4;     // URLZONE_UNTRUSTED

// The answer to `action`, one of the system's URLACTION numbers: who the user is is not told, and
// all else is forbidden.
std::uint32_t PolicyOf(std::uint32_t action);

// Whether `address` is of the web. What is belongs to the most restricted zone, so that everything
// else, be it of this computer, of its network or of a file share, is of another one.
bool IsOfWeb(std::wstring_view address);

// Whether the user's own click asked for a new window, by the flags that the browser object gives
// for it (NWMF of shobjidl.h).
bool AskedByUser(std::uint32_t flags);

}  // namespace platform
