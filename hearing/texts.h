// What the hearing test says, in its languages.
#pragma once

#include <string>
#include <string_view>

#include "hearing/age_guide.h"
#include "hearing/hand_over.h"
#include "hearing/procedure.h"

namespace hearing {

struct Texts {
  std::string_view title;
  std::string_view start;
  std::string_view yes;
  std::string_view no;
  std::string_view close;
  std::string_view first_page;
  std::string_view listen;
  std::string_view question;
  std::string_view answering;  // while the test goes on
  std::string_view louder;     // after "No" to the check tone
  std::string_view limit;      // before and after the highest pitch that the device allows
  std::string_view after_limit;
  std::string_view no_device;
  std::string_view device_lost;
  std::string_view device_too_low;  // nothing from 8000 Hz on
  std::string_view no_check_tone;
  std::string_view nothing_heard;
  std::string_view nothing_heard_reason;
  std::string_view highest_heard;  // before the pitch
  std::string_view not_reliable;
  std::string_view silence_heard;
  std::string_view contradictory;
  std::string_view
      ages_between;  // the three kinds of age ranges, with what stands between and after
  std::string_view ages_and;
  std::string_view ages_up_to;
  std::string_view ages_from;
  std::string_view ages_end;
  std::string_view again;  // after a result
  std::string_view age;    // before each bar's age
  std::string_view scale;  // what a screen reader calls the picture
  std::string_view caution;
  std::string_view help;
};

const Texts& TextsOf(Language language);

// "15300 Hz".
std::string PitchText(int pitch_hz);

// The sentence about an age range.
std::string AgesText(const Texts& texts, const AgeRange& range);

// The sentence about the highest pitch that a device allows; empty where it allows all.
std::string LimitText(const Texts& texts, int highest_hz);

}  // namespace hearing
