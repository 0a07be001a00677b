// Where a download may be sent on to.
#pragma once

#include <string_view>

namespace platform {

// Whether an answer of `from` may send on to `to`: to http and https addresses only, and what began
// encrypted is never fetched in the open.
bool MayFollow(std::wstring_view from, std::wstring_view to);

}  // namespace platform
