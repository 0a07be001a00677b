#include "tools/rtttl.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "tools/note_lengths.h"
#include "tools/rtttl_cursor.h"

namespace tools {
namespace {

constexpr double kGapMs = 20;
constexpr double kShortestGapMs = 3;  // a shorter one may round to less than a tone can be
constexpr std::int32_t kSlowestBeat = 5;
constexpr std::int32_t kFastestBeat = 999;

// By letter from a to h.
constexpr std::array<std::int32_t, 8> kSemitones{9, 11, 0, 2, 4, 5, 7, 11};

enum class Style { kStaccato, kNatural, kContinuous };

struct Note {
  std::int16_t pitch_hz = 0;  // 0 is a rest
  double length_ms = 0;
  Style style = Style::kNatural;
};

class Reader {
 public:
  Reader(std::string_view text, std::int32_t octave_of_a440)
      : text_(text), cursor_(text), octave_of_a440_(octave_of_a440) {}

  RingTone Read() {
    ReadName();
    if (!failed_) ReadDefaults();
    if (!failed_) ReadNotes();
    AddPending(false);
    if (!failed_ && tune_.tones.empty()) Fail("there are no notes");
    return std::move(tune_);
  }

 private:
  using Place = RtttlCursor::Place;

  void ReadName();
  void ReadDefaults();
  void ReadNotes();
  bool ReadSetting();
  bool Set(char name, Place place);
  bool SetStyle(Place place);
  void SetLoop(Place place);
  void ReadNote();
  std::optional<std::int32_t> ReadPitch();
  bool AtSetting() const;
  bool CommandEnds();
  void PassCommand();

  void AddNote(Note note, Place place);
  void AddPending(bool same_follows);
  void Check(ToneList::Result result);

  bool Fail(std::string text) { return Fail(cursor_.place(), std::move(text)); }
  bool Fail(Place place, std::string text);

  std::string_view text_;
  RtttlCursor cursor_;
  std::int32_t octave_of_a440_;
  RingTone tune_;
  bool failed_ = false;

  std::int32_t duration_ = 4;
  std::int32_t octave_ = 6;
  std::int32_t beat_ = 63;
  Style style_ = Style::kNatural;

  std::optional<Note> pending_;  // whose end depends on what follows
  Place pending_place_;
};

bool IsDuration(std::int32_t number) {
  return number >= 1 && number <= 64 && (number & (number - 1)) == 0;
}

// False, for who goes on with it.
bool Reader::Fail(Place place, std::string text) {
  failed_ = true;
  if (tune_.problems.size() < kMostProblems) {
    tune_.problems.push_back({Severity::kError, place.line, place.column, std::move(text)});
  }
  return false;
}

void Reader::ReadName() {
  if (text_.starts_with("\xEF\xBB\xBF")) {
    for (int i = 0; i < 3; ++i) cursor_.Take();
  }
  const std::size_t begin = cursor_.offset();
  std::size_t end = begin;
  while (!cursor_.AtEnd() && cursor_.Peek() != ':') {
    cursor_.Take();
    end = cursor_.offset();
  }
  tune_.name = text_.substr(begin, end - begin);
  while (!tune_.name.empty() && static_cast<unsigned char>(tune_.name.back()) <= ' ') {
    tune_.name.pop_back();
  }
  if (!cursor_.TakeIf(':')) Fail("expected \":\" behind the name");
}

void Reader::ReadDefaults() {
  while (!cursor_.AtEnd() && cursor_.Peek() != ':') {
    if (!ReadSetting() || !CommandEnds()) PassCommand();
    cursor_.TakeIf(',');
  }
  if (!cursor_.TakeIf(':')) Fail("expected \":\" behind the defaults");
}

void Reader::ReadNotes() {
  while (!cursor_.AtEnd() && tune_.problems.size() < kMostProblems) {
    if (AtSetting()) {
      if (!ReadSetting() || !CommandEnds()) PassCommand();
    } else {
      ReadNote();
    }
    cursor_.TakeIf(',');
  }
}

// Whether a letter and "=" stand here.
bool Reader::AtSetting() const {
  RtttlCursor ahead = cursor_;
  const char name = ahead.Take();
  return name >= 'a' && name <= 'z' && ahead.Peek() == '=';
}

bool Reader::ReadSetting() {
  const Place place = cursor_.place();
  const char name = cursor_.Take();
  if (std::string_view("dobsl").find(name) == std::string_view::npos || !cursor_.TakeIf('=')) {
    return Fail(place, "expected d=, o=, b=, s= or l=");
  }
  return Set(name, place);
}

bool Reader::Set(char name, Place place) {
  if (name == 's') return SetStyle(place);
  const std::int32_t value = cursor_.TakeNumber();
  if (name == 'd') {
    if (!IsDuration(value)) return Fail(place, "d= is 1, 2, 4, 8, 16, 32 or 64");
    duration_ = value;
  } else if (name == 'o') {
    if (value < 4 || value > 8) return Fail(place, "o= is 4 to 8");
    octave_ = value;
  } else if (name == 'b') {
    if (value < kSlowestBeat || value > kFastestBeat) return Fail(place, "b= is 5 to 999");
    beat_ = value;
  } else {
    if (value < 0 || value > 15) return Fail(place, "l= is 0 to 15");
    if (value > 0) SetLoop(place);
  }
  return true;
}

bool Reader::SetStyle(Place place) {
  switch (cursor_.Take()) {
    case 's':
      style_ = Style::kStaccato;
      return true;
    case 'n':
      style_ = Style::kNatural;
      return true;
    case 'c':
      style_ = Style::kContinuous;
      return true;
    default:
      return Fail(place, "s= is s, n or c");
  }
}

void Reader::SetLoop(Place place) {
  if (tune_.problems.size() == kMostProblems) return;
  tune_.problems.push_back({Severity::kWarning, place.line, place.column,
                            "a tone program cannot repeat itself: the tune is there once"});
}

// What stands between two commas, or before the end of a part.
bool Reader::CommandEnds() {
  const char next = cursor_.Peek();
  if (cursor_.AtEnd() || next == ',' || next == ':') return true;
  return Fail("expected \",\"");
}

void Reader::PassCommand() {
  while (!cursor_.AtEnd() && cursor_.Peek() != ',' && cursor_.Peek() != ':') cursor_.Take();
}

// The semitone of a note within its octave, -1 for a rest.
std::optional<std::int32_t> Reader::ReadPitch() {
  const char letter = cursor_.Peek();
  if (letter == 'p') {
    cursor_.Take();
    return -1;
  }
  if (letter < 'a' || letter > 'h') {
    Fail("expected a note, a to h or p");
    return std::nullopt;
  }
  cursor_.Take();
  const std::int32_t sharp = cursor_.TakeIf('#') ? 1 : 0;
  return kSemitones.at(static_cast<std::size_t>(letter - 'a')) + sharp;
}

void Reader::ReadNote() {
  const Place place = cursor_.place();
  if (cursor_.Peek() == ':') {
    Fail("a second \":\" behind the notes: is it another tune?");
    cursor_.Take();
    return;
  }
  const std::int32_t said = cursor_.TakeNumber();
  if (said >= 0 && !IsDuration(said)) {
    Fail(place, "a duration is 1, 2, 4, 8, 16, 32 or 64");
    return PassCommand();
  }
  const auto semitone = ReadPitch();
  if (!semitone) return PassCommand();
  bool dotted = cursor_.TakeIf('.');
  const Place octave_place = cursor_.place();
  const std::int32_t octave = cursor_.TakeNumber();
  if (octave >= 0 && (octave < 4 || octave > 8)) {
    Fail(octave_place, "an octave is 4 to 8");
    return PassCommand();
  }
  dotted = cursor_.TakeIf('.') || dotted;
  if (!CommandEnds()) return PassCommand();
  Note note{.style = style_};
  if (*semitone >= 0) {
    note.pitch_hz = PitchOfNote(*semitone, octave >= 0 ? octave : octave_, octave_of_a440_);
  }
  note.length_ms = kWholeNoteMs * (dotted ? 1.5 : 1.0) / (beat_ * (said >= 0 ? said : duration_));
  AddNote(note, place);
}

void Reader::AddNote(Note note, Place place) {
  AddPending(pending_ && pending_->pitch_hz == note.pitch_hz);
  pending_ = note;
  pending_place_ = place;
}

void Reader::AddPending(bool same_follows) {
  if (!pending_ || failed_) return;
  const Note note = *pending_;
  pending_.reset();
  if (note.pitch_hz == 0) return Check(tune_.tones.Silence(note.length_ms));
  double gap_ms = 0;
  if (note.style == Style::kStaccato) gap_ms = note.length_ms / 2;
  if (note.style == Style::kNatural && same_follows) gap_ms = std::min(kGapMs, note.length_ms / 4);
  if (gap_ms < kShortestGapMs) gap_ms = 0;
  Check(tune_.tones.Sound(note.pitch_hz, note.length_ms - gap_ms));
  if (gap_ms > 0) Check(tune_.tones.Silence(gap_ms));
}

void Reader::Check(ToneList::Result result) {
  if (result == ToneList::Result::kTooShort)
    Fail(pending_place_, "too short for a tone of its own");
  if (result == ToneList::Result::kTooMany) {
    Fail(pending_place_, "more tones than the 996 of a tone program");
  }
}

}  // namespace

RingTone ReadRingTone(std::string_view text, std::int32_t octave_of_a440) {
  if (text.size() <= kMostRingToneText) return Reader(text, octave_of_a440).Read();
  RingTone none;
  none.problems.push_back({Severity::kError, 1, 1, "more than 1 MiB is no ring tone text"});
  return none;
}

std::int16_t PitchOfNote(std::int32_t semitone, std::int32_t octave, std::int32_t octave_of_a440) {
  constexpr std::int32_t kSemitoneOfA = 9;
  const double steps = 12 * (octave - octave_of_a440) + semitone - kSemitoneOfA;
  return static_cast<std::int16_t>(std::lround(440 * std::exp2(steps / 12)));
}

}  // namespace tools
