// How well text stands out from its ground (W3C, Web Content Accessibility Guidelines 2.1).
#pragma once

#include <cstdint>

namespace ui {

// From 1 to 21; colours are 0x00RRGGBB, their order does not matter.
double Contrast(std::uint32_t one, std::uint32_t other);

// Level AA for texts of normal size.
bool IsReadable(std::uint32_t text, std::uint32_t ground);

}  // namespace ui
