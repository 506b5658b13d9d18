#pragma once

#include "files/result.h"

#include <QString>
#include <QStringList>

namespace quarvel {

/// Whether two file names are one name on a file system without letter case (accents composed first).
[[nodiscard]] bool sameName(const QString& left, const QString& right);

/// The name by which `folder` holds `name`: the exact one when it is there, else the first, in name order,
/// that differs only in letter case, else `name` itself.
[[nodiscard]] QString nameOnDisk(const QString& folder, const QString& name);

/// Whether anything, be it a link to nothing, has a name in `folder`, letter case disregarded.
[[nodiscard]] bool isTaken(const QString& folder, const QString& name);

/// The path of `relative` ("aeroporti/LIRF/Sid") under `root`, each of its components taken as it is
/// on the disk. Components that are not there yet are kept as written. An empty path, which no file has, when
/// one of them is ".." or the root is empty: whatever a name, a setting or a record says, nobody leaves it.
[[nodiscard]] QString resolvePath(const QString& root, const QString& relative);

/// Like resolvePath, but the last component keeps its exact letters: the way to a file to be written.
[[nodiscard]] QString resolveForWriting(const QString& root, const QString& relative);

/// Whether `folder` lists a regular file (links followed) whose name is exactly `name`, letter case included.
[[nodiscard]] bool holdsExactly(const QString& folder, const QString& name);

/// The regular, not hidden files of a folder, by name without regard to case. Fails with NotFound or
/// Unreadable.
[[nodiscard]] Result<QStringList> listFiles(const QString& folder);

} // namespace quarvel
