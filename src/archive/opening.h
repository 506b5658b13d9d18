#pragma once

#include "archive/paths.h"
#include "files/result.h"

#include <QString>

namespace quarvel {

/// Whether the airport has a data file: its general-data folder lists a plain file named exactly {name}.txt,
/// letter case included.
[[nodiscard]] bool hasDataFile(const ArchivePaths& paths, const QString& name);

/// Whether an airport without a data file may be taken for one that is not in the archive: fails with
/// Unreadable when its folder is there and may not be looked into.
[[nodiscard]] Result<void> checkLookedInto(const ArchivePaths& paths, const QString& name);

/// Whether the airport has a picture: its general-data folder lists {icao}.gif or the same in lower case,
/// exactly. The code's blanks at its ends do not count.
[[nodiscard]] bool hasPicture(const ArchivePaths& paths, const QString& name, const QString& icao);

} // namespace quarvel
