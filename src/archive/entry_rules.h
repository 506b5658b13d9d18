#pragma once

#include "archive/record.h"

#include <QString>
#include <optional>

namespace quarvel {

/// How a field of a runway's first end fills the same field of its second end.
enum class PairRule { ReciprocalDesignator, Copy };

/// What leaving a field fills in.
struct PairedField {
    int target; ///< position of the second end's field
    PairRule rule;
};

/// The field that leaving the field at `position` fills in; none for 33 of the 39.
[[nodiscard]] std::optional<PairedField> pairedField(int position);

/// What a runway's first designator means for its second.
enum class DesignatorKind {
    Empty,  ///< nothing typed: the second end stays as it is
    Valid,  ///< the second designator is `reciprocal`
    Refused ///< above 18: the first designator of a pair is the lower-numbered end
};

struct Designator {
    DesignatorKind kind;
    QString reciprocal; ///< the number plus 18, rounded half to even, without leading zeros
};

[[nodiscard]] Designator judgeDesignator(const QString& typed);

} // namespace quarvel
