#pragma once

#include <QString>
#include <array>
#include <cstddef>

namespace quarvel {

/// How many values an airport's general data has.
inline constexpr int recordSize = 39;
inline constexpr int runwayRows = 6;
inline constexpr int valuesPerRunwayRow = 5;

/// The positions of the values that have a name of their own.
enum RecordPosition : int {
    Longitude = 0,
    Latitude = 1,
    Elevation = 2,
    FirstRunwayRow = 3, ///< six rows of designator, length, ILS ident, ILS frequency, ILS course
    VorIdent = 33,
    VorFrequency = 34,
    NdbIdent = 35,
    NdbFrequency = 36,
    TransitionAltitude = 37,
    IcaoCode = 38,
};

/// The columns of a runway row, in the order of their positions.
enum class RunwayColumn : int { Designator, Length, IlsIdent, IlsFrequency, IlsCourse };

/// The position of a column of a runway row, row 0 to 5.
[[nodiscard]] constexpr int runwayPosition(int row, RunwayColumn column) {
    return FirstRunwayRow + valuesPerRunwayRow * row + static_cast<int>(column);
}

/// What an empty value is stored as. It is not turned back into an empty value when read.
inline constexpr char16_t emptyPlaceholder[] = u"---";

/// The longest text that can be typed as the value of a position; 0 means without limit.
[[nodiscard]] constexpr int longestTyped(int position) {
    constexpr std::array<int, valuesPerRunwayRow> runway = {3, 5, 3, 6, 3};
    if (position >= FirstRunwayRow && position < VorIdent)
        return runway[static_cast<std::size_t>((position - FirstRunwayRow) % valuesPerRunwayRow)];
    switch (position) {
    case Elevation:
    case TransitionAltitude: return 5;
    case VorIdent:
    case NdbIdent: return 3;
    case VorFrequency:
    case NdbFrequency: return 6;
    case IcaoCode: return 4;
    default: return 0;
    }
}

/// An airport's general data: 39 texts, free but for their length when typed.
struct AirportRecord {
    std::array<QString, recordSize> values;
    [[nodiscard]] bool operator==(const AirportRecord&) const = default;
};

} // namespace quarvel
