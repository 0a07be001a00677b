#include "hearing/age_guide.h"

#include <array>
#include <cmath>
#include <iterator>

namespace hearing {
namespace {

constexpr double kYoungest = 18;   // years; the thresholds rise from there
constexpr double kOldest = 70;     // of the study
constexpr double kLeastRise = 20;  // dB
constexpr double kGreatestRise = 60;

struct Row {
  int pitch_hz;
  double factor;
  double exponent;
};
constexpr std::array<Row, 6> kStudy{{{9000, 0.021, 2},
                                     {10000, 0.024, 2},
                                     {11200, 0.029, 2},
                                     {12500, 0.24, 1.5},
                                     {14000, 0.32, 1.5},
                                     {16000, 0.36, 1.5}}};

// When the threshold of this row's pitch has risen by `rise_db`.
double AgeAt(const Row& row, double rise_db) {
  return kYoungest + std::pow(rise_db / row.factor, 1 / row.exponent);
}

double AgeAt(int pitch_hz, double rise_db) {
  if (pitch_hz <= kStudy.front().pitch_hz) return AgeAt(kStudy.front(), rise_db);
  for (auto above = std::next(kStudy.begin()); above != kStudy.end(); ++above) {
    if (pitch_hz > above->pitch_hz) continue;
    const Row& below = *std::prev(above);
    const double part = static_cast<double>(pitch_hz - below.pitch_hz) /
                        static_cast<double>(above->pitch_hz - below.pitch_hz);
    return (1 - part) * AgeAt(below, rise_db) + part * AgeAt(*above, rise_db);
  }
  return AgeAt(kStudy.back(), rise_db);
}

}  // namespace

AgeRange AgesOf(int pitch_hz) {
  AgeRange range;
  const double to = AgeAt(pitch_hz, kGreatestRise);
  if (pitch_hz <= kStudy.back().pitch_hz) {
    range.from = static_cast<int>(std::lround(AgeAt(pitch_hz, kLeastRise)));
  }
  if (pitch_hz >= kStudy.front().pitch_hz && to <= kOldest) {
    range.to = static_cast<int>(std::lround(to));
  }
  return range;
}

bool Holds(const AgeRange& range, int age) {
  return (!range.from || age >= *range.from) && (!range.to || age <= *range.to);
}

}  // namespace hearing
