#include "ui/contrast.h"

#include <algorithm>
#include <cmath>

namespace ui {
namespace {

constexpr double kReadable = 4.5;

double Linear(std::uint32_t channel) {
  const double share = static_cast<double>(channel & 0xFF) / 255;
  return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(std::uint32_t color) {
  return 0.2126 * Linear(color >> 16) + 0.7152 * Linear(color >> 8) + 0.0722 * Linear(color);
}

}  // namespace

double Contrast(std::uint32_t one, std::uint32_t other) {
  const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

bool IsReadable(std::uint32_t text, std::uint32_t ground) {
  return Contrast(text, ground) >= kReadable;
}

}  // namespace ui
