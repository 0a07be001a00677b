// Fetches what a host sends without saying how much it is.
//
// The URL-to-file service keeps reading as long as the host keeps sending: only a reader of its own
// can stop at a limit.
#pragma once

#include <atomic>
#include <cstddef>
#include <optional>
#include <string>

namespace platform::windows {

// What `link`, an http or https address, answers with success, up to the end of the connection;
// nothing when it is more than `most_bytes`, when it breaks off, or when `given_up` comes true.
// Asks the user nothing, wants the newest version, sends no cookies and follows no redirection.
std::optional<std::string> FetchUnsized(const std::wstring& link, std::size_t most_bytes,
                                        const std::atomic<bool>& given_up);

}  // namespace platform::windows
