#pragma once

#include "files/result.h"

#include <QString>

namespace quarvel {

/// Whether the system's error number says that nothing has this path. Every other says that nobody knows: it
/// is never to be taken for "not there".
[[nodiscard]] bool meansAbsent(int error);

/// Why `path` could not be read or looked at, from the system's error number: NotFound, NotRegular (a link
/// that leads to itself), Unreadable (not allowed) or ReadFailed.
[[nodiscard]] Failure readFailure(const QString& path, int error);

/// Why `path` could not be written or made: DiskFull, BadName (too long, or not a name on its file system),
/// Unwritable (not allowed, or no folder to write to) or WriteFailed.
[[nodiscard]] Failure writeFailure(const QString& path, int error);

} // namespace quarvel
