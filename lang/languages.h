// The languages that the program can be shown in: one row each.
//
// The texts of a language are in its language file, named after its code; here stands what the
// program needs before it has read one, and how the language is chosen.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "base/error_value.h"

namespace lang {

// The language that the windows are designed in: they need no language file for it.
inline constexpr std::string_view kDesignLanguage = "en";

// Whether windows designed in English want the captions of the language `code`. A start that has
// not read its settings yet has no code.
bool IsTranslated(std::string_view code);

// What the first-run dialog says. The wording is fixed.
struct AgreementTexts {
  std::string_view pressing;  // what stands before the accept button's caption
  std::string_view accept;
  std::string_view decline;
  std::string_view upload;     // how the sentence about the usage data goes on after the caption
  std::string_view hearing;    // the one about damage to hearing
  std::string_view copyright;  // the one about copyright
  std::string_view language;
  std::string_view refusal;

  // A whole sentence, of which `rest` is the part after the accept button's caption.
  std::string Sentence(std::string_view rest) const {
    return std::string(pressing) + '"' + std::string(accept) + '"' + std::string(rest);
  }
};

struct Language {
  std::string_view code;          // two small letters; the settings file has it in capitals
  std::string_view english_name;  // in the first-run dialog
  std::string_view menu_name;     // the menu item that chooses it, and its own caption
  std::string_view menu_caption;
  int menu_id = 0;
  base::ErrorValue error_value{};  // of that menu item
  std::string_view news_title;     // of the news window; empty: as it is designed
  AgreementTexts agreement;
};

// Never empty; the first row is the design language.
using Languages = std::span<const Language>;
Languages ShippedLanguages();

// The row of `code`, or null.
const Language* Find(Languages languages, std::string_view code);

}  // namespace lang
