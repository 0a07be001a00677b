// What the help tells beside the options.
#pragma once

namespace tools {

// Below the help of tnf itself: enough to write a first tone program and to hear it.
inline constexpr char kGuide[] = R"(A tone program is a text file whose lines end with CR LF:

  %valid%
  [info]
  {236}
  {My tune}
  {visible}
  [sound]
  {10}
  <523>
  \390
  <22050>
  \190
  <784>
  \790

Lines 1 to 7 are the head: leave them as they are, but for your name in line 4 and the ms
that are added to every tone in line 7. Then follow pairs of lines: a pitch in Hz, 2 to
32000, and its duration in ms, 1 to 32000. 22050 Hz is a rest. A is 440 Hz.

  tnf check my.tnf               says what is wrong, and in which line
  tnf render my.tnf -o my.wav    writes the sound; any program plays it (aplay my.wav)

An editor that ends lines with LF alone: "sed -i 's/$/\r/' my.tnf" mends it, or unix2dos.

"tnf COMMAND --help" tells more. Exit codes: 0 good; 1 the text is not what it should be;
2 something cannot be read or written, or the arguments are wrong.)";

inline constexpr char kCheckGuide[] =
    R"(Prints FILE:LINE:COLUMN: error: ... for what the player refuses, one for each mistake, and
the messages that the player would show (with the file's full path). A warning is about
what is legal and does not sound as meant. Exit codes: 0 every file is legal; 1 one is not;
2 one cannot be read.)";

inline constexpr char kRenderGuide[] =
    R"(The samples are those of sound mode Winmm: 44100 Hz, 16 bits, stereo. A file is less than
4 GiB (6 hours 45 minutes); a pipe (-o -) takes any length.)";

inline constexpr char kRtttlGuide[] =
    R"(Example: "Scale:d=4,o=5,b=120:c,d,e,8f.,16p,2g". Between the notes d=, o= and b= may be
set anew.)";

inline constexpr char kMorseGuide[] =
    R"(Table and timing are those of the Morse tool, unless --textbook asks for the standard's.)";

inline constexpr char kExportGuide[] =
    R"(Where a tone is no note, its line is named and the exit code is 1.)";

}  // namespace tools
