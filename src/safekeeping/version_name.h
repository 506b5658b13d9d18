#pragma once

#include <QDateTime>
#include <QString>

namespace quarvel {

/// The name of a version's file: when it was kept, to the millisecond and in UTC, so that names sort by time;
/// then the extension of the file that it is a version of ("2026-11-24 08.17.03.123Z.txt").
[[nodiscard]] QString versionName(const QDateTime& kept, const QString& fileName);

/// The time in a version's name; an invalid one when it is no such name.
[[nodiscard]] QDateTime versionTime(const QString& name);

} // namespace quarvel
