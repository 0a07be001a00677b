#include "lang/languages.h"

namespace lang {
namespace {

constexpr Language kLanguages[] = {
    {
        .code = "en",
        .english_name = "English",
        .menu_name = "english",
        .menu_caption = "English",
        .menu_id = 1012,
        .error_value = base::ErrorValue::kEnglish,
        .news_title = "",
        .agreement =
            {
                .pressing = "By pressing on ",
                .accept = "Accept",
                .decline = "Don't accept",
                .upload =
                    " you give Zevrin Software permission to send anonymous data about using "
                    "Tonmira to a server. This data will be used to make Tonmira better. If you "
                    "select the checkbox below no data will be sent to our servers.",
                .hearing =
                    " you know that Zevrin Software is not responsible for damage to hearing and "
                    "the consequences of this.",
                .copyright = " you are aware that Tonmira is protected by copyright.",
                .language = "Language:",
                .refusal = "I don't want to send anonymous data",
            },
    },
    {
        .code = "nl",
        .english_name = "Dutch",
        .menu_name = "dutch",
        .menu_caption = "Nederlands",
        .menu_id = 1013,
        .error_value = base::ErrorValue::kDutch,
        .news_title = "Tonmira online nieuws (engels)",
        .agreement =
            {
                .pressing = "Na het klikken op ",
                .accept = "Accepteren",
                .decline = "Niet accepteren",
                .upload =
                    " geeft u Zevrin Software toestemming om anonieme data te verzenden naar een "
                    "server. Deze data wordt gebruikt om Tonmira beter te maken. Als u de checkbox "
                    "onderaan dit venster selecteert zal dit niet gebeuren.",
                .hearing =
                    " weet u dat Zevrin Software niet aansprakelijk is voor schade aan uw gehoor "
                    "en de gevolgen daarvan.",
                .copyright = " weet u dat Tonmira is beschermt met copyright.",
                .language = "Taal:",
                .refusal = "Ik wil geen anonieme data verzenden",
            },
    },
};

}  // namespace

bool IsTranslated(std::string_view code) {
  return !code.empty() && code != kDesignLanguage;
}

Languages ShippedLanguages() {
  return kLanguages;
}

const Language* Find(Languages languages, std::string_view code) {
  for (const Language& language : languages) {
    if (language.code == code) return &language;
  }
  return nullptr;
}

}  // namespace lang
