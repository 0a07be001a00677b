// What upsend.exe is asked to send: the two lines of its hand-over file.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace helpers {

enum class Log { kActivity, kError };

inline constexpr std::size_t kLongestHandOver = 1024;        // bytes
inline constexpr std::size_t kLargestLog = 1024UL * 1024UL;  // bytes

struct Upload {
  Log log;
  std::string_view name;  // on the server
};

// The log's name in the temporary folder: "userdata.txt" or "error.log".
std::string_view FileName(Log log);

// Reads `text`: a line with the file to send and a line with its name on the server. The file is
// one of the two logs, named alone or after `folder` and a backslash; case and the direction of
// slashes do not matter. Its name on the server is a number of one to five digits and ".txt" for
// the activity log, "error.log" for the error log. Lines end with CR LF or LF, the last one may
// lack that. Nothing if anything is different.
//
// `folder`, the temporary one, and `text` are in the same encoding. The result's name lies in
// `text`.
std::optional<Upload> ParseUpload(std::string_view text, std::string_view folder);

}  // namespace helpers
