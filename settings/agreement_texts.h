// What the first-run dialog says, in both languages. The wording is fixed.
#pragma once

#include <string>
#include <string_view>

namespace settings {

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

inline constexpr AgreementTexts kEnglishAgreement{
    "By pressing on ",
    "Accept",
    "Don't accept",
    " you give Zevrin Software permission to send anonymous data about using Tonmira to a server. "
    "This data will be used to make Tonmira better. If you select the checkbox below no data will "
    "be sent to our servers.",
    " you know that Zevrin Software is not responsible for damage to hearing and the consequences "
    "of this.",
    " you are aware that Tonmira is protected by copyright.",
    "Language:",
    "I don't want to send anonymous data"};

inline constexpr AgreementTexts kDutchAgreement{
    "Na het klikken op ",
    "Accepteren",
    "Niet accepteren",
    " geeft u Zevrin Software toestemming om anonieme data te verzenden naar een server. Deze data "
    "wordt gebruikt om Tonmira beter te maken. Als u de checkbox onderaan dit venster selecteert "
    "zal dit niet gebeuren.",
    " weet u dat Zevrin Software niet aansprakelijk is voor schade aan uw gehoor en de gevolgen "
    "daarvan.",
    " weet u dat Tonmira is beschermt met copyright.",
    "Taal:",
    "Ik wil geen anonieme data verzenden"};

}  // namespace settings
