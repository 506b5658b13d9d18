#pragma once

#include "archive/paths.h"
#include "files/result.h"

#include <QString>

namespace quarvel {

/// Whether the airport has a data file: its general-data folder lists a plain file named exactly {name}.txt,
/// letter case included. Fails with the faults of readFailure where that cannot be told, as in a folder that
/// may not be looked into: such an airport is not to be taken for one that is not in the archive.
[[nodiscard]] Result<bool> hasDataFile(const ArchivePaths& paths, const QString& name);

/// Whether the airport has a picture: its general-data folder lists {icao}.gif or the same in lower case,
/// exactly. The code's blanks at its ends do not count. Fails like hasDataFile.
[[nodiscard]] Result<bool> hasPicture(const ArchivePaths& paths, const QString& name, const QString& icao);

} // namespace quarvel
