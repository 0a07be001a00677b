// Access keys: the underlined letter that, with Alt, reaches a control or a menu.
#pragma once

#include <string>
#include <vector>

namespace ui {

// Gives every caption of a window a letter of its own where there is one, and marks it the way the
// system does: "&" before the letter, "&&" for an ampersand of the text. First letters are given
// out first, then those of other words, then any letter; earlier captions come before later ones.
// A caption that begins with "&" and a letter has chosen its first letter: that comes before all.
std::vector<std::string> WithAccessKeys(const std::vector<std::string>& captions);

}  // namespace ui
