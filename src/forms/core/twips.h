#pragma once

namespace quarvel {

/// Twips (1/1440 inch) to one pixel of a screen of 96 dots per inch, which is what the toolkit's logical
/// pixel always measures.
inline constexpr double twipsPerPixel = 15;

/// A control's place in its container, in twips.
struct Place {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// The unit in which a container measures its inside: how many of it go to one logical pixel.
struct ScaleUnit {
    double perPixelX = twipsPerPixel;
    double perPixelY = twipsPerPixel;
};

inline constexpr ScaleUnit scaleTwips{};
inline constexpr ScaleUnit scalePixels{1, 1};

/// A scale of `unitsAcross` by `unitsDown` units over an area given in twips.
[[nodiscard]] constexpr ScaleUnit customScale(double unitsAcross, double unitsDown, double widthTwips,
                                              double heightTwips) {
    return {unitsAcross / (widthTwips / twipsPerPixel), unitsDown / (heightTwips / twipsPerPixel)};
}

} // namespace quarvel
