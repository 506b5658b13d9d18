#pragma once

#include "files/result.h"

#include <QString>

namespace quarvel {

/// Copies a regular file (links followed) to `to`, where nothing is yet, down to the disk. The copy has the
/// user's usual mode, whatever the original's. Fails with the faults of readWholeFile and writeNewFile. What
/// was copied before a failure stays: copy to a temporary place.
[[nodiscard]] Result<void> copyWholeFile(const QString& from, const QString& to);

/// Copies a folder with everything in it to `to`, down to the disk. Fails like copyWholeFile, and with
/// Unwritable when there is a `to` already; a link to a folder is not followed but fails with NotRegular.
[[nodiscard]] Result<void> copyWholeFolder(const QString& from, const QString& to);

/// Moves a file or folder within its file system, in one step. When anything at all has the name `to`, that
/// is left as it is and so is `from`: this counts as done. Fails with Unwritable or DiskFull.
[[nodiscard]] Result<void> moveToFreeName(const QString& from, const QString& to);

/// Brings a folder's list of names to the disk, as far as its file system can.
void flushFolder(const QString& folder);

} // namespace quarvel
