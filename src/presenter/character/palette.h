#pragma once

#include <QColor>

/// The character's colours: those of the program's pictures, and the few warm ones that a living thing needs.
namespace quarvel::plumage {

inline constexpr QColor ink{24, 26, 64};
inline constexpr QColor navy{29, 33, 80};
inline constexpr QColor indigo{44, 49, 120};
inline constexpr QColor dusk{54, 59, 142};
inline constexpr QColor slate{70, 75, 171};
inline constexpr QColor iris{106, 108, 224};
inline constexpr QColor periwinkle{128, 128, 255};
inline constexpr QColor lilac{169, 171, 247};
inline constexpr QColor mist{212, 213, 251};
inline constexpr QColor face{232, 232, 244};
inline constexpr QColor paper{250, 250, 252};
inline constexpr QColor amber{255, 180, 60};
inline constexpr QColor sunlit{255, 214, 130};
inline constexpr QColor ember{232, 124, 44};
inline constexpr QColor leather{150, 82, 52};
inline constexpr QColor leatherDark{104, 54, 44};
inline constexpr QColor blush{255, 140, 150};
inline constexpr QColor mouth{110, 28, 62};
inline constexpr QColor tongue{250, 118, 124};

} // namespace quarvel::plumage
