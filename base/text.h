// Text rules. Texts are UTF-8; letters outside ASCII are left as they are.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace base {

// A to Z become a to z, or the other way round.
std::string ToLower(std::string_view text);
std::string ToUpper(std::string_view text);

// `text` without any occurrence of `marker`.
std::string RemoveAll(std::string_view text, char marker);

bool EndsWith(std::string_view text, std::string_view ending);

// The characters of `text`, each a text of its own. A byte that is no UTF-8 counts as one.
std::vector<std::string> Characters(std::string_view text);

// `text` followed by CR LF, the line end of every file this program writes.
std::string Line(std::string_view text);

}  // namespace base
