#pragma once

#include <cstdint>

namespace tactix {

/// A colour as 0x00BBGGRR, or a system colour: 0x80000000 plus its index.
using Color = std::int32_t;

inline constexpr Color WindowColor = static_cast<Color>(0x80000005);
inline constexpr Color WindowTextColor = static_cast<Color>(0x80000008);
inline constexpr Color ButtonFaceColor = static_cast<Color>(0x8000000F);

/// True for a system colour: the front end's palette decides what it is, and the three parts below mean nothing.
constexpr bool IsSystemColor(Color color) { return color < 0; }

/// The parts of a colour, 0 to 255.
constexpr int Red(Color color) { return color & 0xFF; }
constexpr int Green(Color color) { return (color >> 8) & 0xFF; }
constexpr int Blue(Color color) { return (color >> 16) & 0xFF; }

}  // namespace tactix
