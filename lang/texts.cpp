#include "lang/texts.h"

namespace lang {

Texts::Texts() {
  messages[10] = "A low tone of 1000 Hz. Everybody hears it: use it to check your speakers.";
  messages[11] = "A clear tone of 4500 Hz, in the range where the ear is most sensitive.";
  messages[12] = "A high tone of 10000 Hz. It sounds sharp: set the volume low before you play it.";
  messages[13] =
      "A very high tone of 16600 Hz. Many adults do not hear it at all, but it is still there: "
      "keep the volume low and do not play it for long.";
  messages[14] =
      "A tone of 21000 Hz, above what most people hear. Animals may. You will not notice how loud "
      "it is: keep the volume low and do not play it for long.";
  messages[15] =
      "A tone that climbs in small steps from 200 Hz to 32000 Hz and then starts again. Its "
      "upper end may be loud without being heard: keep the volume low.";
  messages[16] =
      "A tone of the pitch that you choose with the slider below, from 4 Hz to 32000 Hz. Move the "
      "slider first, then play.";
  messages[17] = "Opens a window in which you type a text and hear it as Morse code.";
  messages[18] = "Starts a test that finds the highest pitch you can hear and the age it fits.";
  messages[kPlayCaptionA] = "Play Sound";
  messages[kPlayCaptionB] = "Start";
}

}  // namespace lang
