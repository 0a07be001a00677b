// The hand-over file of the main program: two lines, the code of its sound mode and the code of its
// language. The test sounds by its own stream in every sound mode; the language is what it needs.
#pragma once

#include <string_view>

namespace hearing {

enum class Language { kEnglish, kDutch };

// English for whatever is no such file.
Language LanguageOf(std::string_view file);

}  // namespace hearing
