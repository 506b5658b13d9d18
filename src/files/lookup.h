#pragma once

#include "files/result.h"

#include <QString>
#include <QStringList>

namespace quarvel {

/// Whether two file names are one name to a reader without letter case: as readableName() has them, accents
/// composed.
[[nodiscard]] bool sameName(const QString& left, const QString& right);

/// The name by which `folder` holds `name`: the exact one when it is there, else the first, in name order,
/// that differs only in letter case, else `name` itself. Like all that follows it fails with the faults of
/// readFailure when the folder cannot be looked into, which says nothing about what it holds; a folder that
/// is not there holds nothing.
[[nodiscard]] Result<QString> nameOnDisk(const QString& folder, const QString& name);

/// Whether anything, be it a link to nothing, has a name in `folder`, letter case disregarded.
[[nodiscard]] Result<bool> isTaken(const QString& folder, const QString& name);

/// The path of `relative` ("aeroporti/LIRF/Sid") under `root`, each of its components taken as it is
/// on the disk. Components that are not there yet are kept as written. Fails with BadName when one of them is
/// ".." and with NotFound when the root is empty: whatever a name, a setting or a record says, nobody leaves
/// it.
[[nodiscard]] Result<QString> resolvePath(const QString& root, const QString& relative);

/// Whether `folder` lists a regular file (links followed) whose name is exactly `name`, letter case included.
[[nodiscard]] Result<bool> holdsExactly(const QString& folder, const QString& name);

/// Whether anything, be it a link to nothing, has this path.
[[nodiscard]] Result<bool> isThere(const QString& path);
/// Whether a folder (links followed) has this path.
[[nodiscard]] Result<bool> isFolder(const QString& path);

/// The names of all that a folder holds, hidden or not, in no order. Fails with NotFound, too.
[[nodiscard]] Result<QStringList> entryNames(const QString& folder);

/// The regular, not hidden files of a folder, in the order of sortingKey(), and what cannot be told from
/// them just now: whoever opens that is told why. Fails with NotFound, too.
[[nodiscard]] Result<QStringList> listFiles(const QString& folder);

} // namespace quarvel
