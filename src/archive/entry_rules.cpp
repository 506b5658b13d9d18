#include "archive/entry_rules.h"

#include "text/leading_number.h"
#include "text/rounding.h"

namespace quarvel {
namespace {

constexpr double highestFirstDesignator = 18;
constexpr double halfTurn = 18; // designators count tens of degrees

} // namespace

std::optional<PairedField> pairedField(int position) {
    for (int row = 0; row < runwayRows; row += 2) {
        if (position == runwayPosition(row, RunwayColumn::Designator))
            return PairedField{runwayPosition(row + 1, RunwayColumn::Designator),
                               PairRule::ReciprocalDesignator};
        if (position == runwayPosition(row, RunwayColumn::Length))
            return PairedField{runwayPosition(row + 1, RunwayColumn::Length), PairRule::Copy};
    }
    return std::nullopt;
}

Designator judgeDesignator(const QString& typed) {
    if (typed.isEmpty()) return {DesignatorKind::Empty, {}};
    const double number = leadingNumber(typed);
    if (number > highestFirstDesignator) return {DesignatorKind::Refused, {}};
    // Adding 0 turns a negative zero into a plain one.
    return {DesignatorKind::Valid, QString::number(roundHalfEven(number + halfTurn) + 0.0, 'f', 0)};
}

} // namespace quarvel
