// What the hearing test says, word for word.
#include "hearing/texts.h"

#include <gtest/gtest.h>

#include <string_view>

namespace hearing {
namespace {

struct TextInEachLanguage {
  std::string_view Texts::*text;
  std::string_view english;
  std::string_view dutch;
};

TEST(HearingTexts, AreTheseInEachLanguage) {
  static constexpr TextInEachLanguage kTexts[] = {
      {&Texts::title, "Hearing age", "Gehoorleeftijd"},
      {&Texts::start, "Start", "Start"},
      {&Texts::yes, "Yes", "Ja"},
      {&Texts::no, "No", "Nee"},
      {&Texts::close, "Close", "Sluiten"},
      {&Texts::first_page,
       "This finds the highest pitch that you can hear. Go to a quiet place and set a low "
       "volume: high tones can harm your ears even if you do not hear them. Start plays 1000 Hz "
       "first; then higher tones follow, and sometimes none.",
       "Deze test zoekt de hoogste toon die u kunt horen. Zoek een stille plek en zet het "
       "volume laag: hoge tonen kunnen uw gehoor ook beschadigen als u ze niet hoort. Na Start "
       "klinkt eerst 1000 Hz, dan hogere tonen en soms niets."},
      {&Texts::listen, "Listen...", "Luister..."},
      {&Texts::question, "Did you hear it?", "Hebt u een toon gehoord?"},
      {&Texts::answering,
       "After each trial, say whether you heard a tone. In some trials there is none.",
       "Geef telkens aan of u een toon hoorde. Soms blijft het stil."},
      {&Texts::louder, "Turn the volume up a little. The tone comes once more.",
       "Zet het volume iets hoger. De toon komt nog een keer."},
      {&Texts::limit, "This sound device allows tones up to ",
       "Dit geluidsapparaat speelt tonen tot "},
      {&Texts::after_limit, ".", "."},
      {&Texts::no_device,
       "No sound device was found, or it is in use by another program. Connect loudspeakers or "
       "headphones and press Start.",
       "Er is geen geluidsapparaat gevonden, of een ander programma gebruikt het. Sluit "
       "luidsprekers of een koptelefoon aan en druk op Start."},
      {&Texts::device_lost,
       "The test ended: the sound device does not play any more. Connect it again and press "
       "Start.",
       "De test is gestopt: het geluidsapparaat speelt niet meer. Sluit het weer aan en druk op "
       "Start."},
      {&Texts::device_too_low,
       "This sound device plays no tones from 8000 Hz on: the test cannot be done with it.",
       "Dit geluidsapparaat speelt geen tonen van 8000 Hz en hoger: de test kan er niet mee "
       "worden gedaan."},
      {&Texts::no_check_tone,
       "The test ended: you did not hear 1000 Hz three times. Look whether loudspeakers or "
       "headphones are connected and not muted, and press Start.",
       "De test is gestopt: u hebt de toon van 1000 Hz drie keer niet gehoord. Kijk of "
       "luidsprekers of een koptelefoon zijn aangesloten en niet zijn gedempt, en druk op Start."},
      {&Texts::nothing_heard, "None of the high tones was heard", "Geen van de hoge tonen gehoord"},
      {&Texts::nothing_heard_reason,
       "The lowest of them is 8000 Hz. Perhaps your loudspeakers do not play them.",
       "De laagste is 8000 Hz. Misschien kunnen uw luidsprekers ze niet weergeven."},
      {&Texts::highest_heard, "Highest pitch heard: ", "Hoogste toon gehoord: "},
      {&Texts::not_reliable, "Not reliable", "Niet betrouwbaar"},
      {&Texts::silence_heard,
       "You said Yes more than once when nothing was played. Take your time, and say No when "
       "you are not sure.",
       "U zei meer dan eens Ja terwijl het stil was. Neem de tijd, en zeg Nee als u het niet "
       "zeker weet."},
      {&Texts::contradictory,
       "Your answers contradict each other too often. Perhaps it is not quiet enough around you.",
       "Uw antwoorden spreken elkaar te vaak tegen. Misschien is het om u heen niet stil genoeg."},
      {&Texts::ages_between, "That is typical of ages between ", "Dat past bij leeftijden tussen "},
      {&Texts::ages_and, " and ", " en "},
      {&Texts::ages_up_to, "That is typical of ages up to ", "Dat past bij leeftijden tot "},
      {&Texts::ages_from, "That is typical of ages from ", "Dat past bij leeftijden vanaf "},
      {&Texts::ages_end, ".", " jaar."},
      {&Texts::again, "Start tests again. F1 tells where the ages come from.",
       "Met Start test u opnieuw. F1 vertelt waar de leeftijden vandaan komen."},
      {&Texts::age, "Age ", "Leeftijd "},
      {&Texts::scale, "Pitches that each age typically hears at most, and yours",
       "De hoogste tonen die elke leeftijd meestal hoort, en de uwe"},
      {&Texts::caution,
       "This is no medical test: many loudspeakers play high tones softly or not at all, and "
       "how loud they are at your ear is not known.",
       "Dit is geen medische test: veel luidsprekers spelen hoge tonen zacht of niet, en hoe "
       "hard ze bij uw oor klinken, is niet bekend."},
      {&Texts::help,
       "How the ages are found\n\n"
       "A study of 411 people of 16 to 70 years with healthy ears (Jilek, Suta and Syka, "
       "Journal of the Acoustical Society of America 136, 2014, page 1821) tells how much "
       "louder a high tone must be as people get older, up to 16000 Hz.\n\n"
       "How loud your tones are is not known. So the ages that a pitch is typical of are those "
       "at which it must be 20 to 60 dB louder than at 18. Above 16000 Hz there is no lowest "
       "age, below 9000 Hz no highest.\n\n"
       "Keys: Y and N answer, Esc closes.",
       "Hoe de leeftijden worden gevonden\n\n"
       "Een onderzoek onder 411 mensen van 16 tot 70 jaar met gezonde oren (Jilek, Suta en "
       "Syka, Journal of the Acoustical Society of America 136, 2014, pagina 1821) laat zien "
       "hoeveel harder een hoge toon moet zijn naarmate mensen ouder worden, tot 16000 Hz.\n\n"
       "Hoe hard uw tonen klinken, is niet bekend. Een toon past daarom bij de leeftijden "
       "waarop hij 20 tot 60 dB harder moet zijn dan op 18-jarige leeftijd. Boven 16000 Hz is "
       "er geen laagste leeftijd, onder 9000 Hz geen hoogste.\n\n"
       "Toetsen: met J en N antwoordt u, Esc sluit de test."},
  };
  static_assert(sizeof kTexts / sizeof kTexts[0] * sizeof(std::string_view) == sizeof(Texts),
                "every text is here");
  for (const TextInEachLanguage& each : kTexts) {
    EXPECT_EQ(TextsOf(Language::kEnglish).*each.text, each.english);
    EXPECT_EQ(TextsOf(Language::kDutch).*each.text, each.dutch);
  }
}

}  // namespace
}  // namespace hearing
