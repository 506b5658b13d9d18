#pragma once

#include "archive/record.h"

namespace quarvel {

/// One of two records that differ in every value and in length; many times larger than a real one, so that
/// writing it takes a while.
inline AirportRecord recordOf(int which) {
    AirportRecord record;
    for (QString& value : record.values)
        value = QString(which == 0 ? 200 : 3000, QChar(which == 0 ? u'A' : u'B'));
    record.values[IcaoCode] = QStringLiteral("KILL");
    return record;
}

} // namespace quarvel
