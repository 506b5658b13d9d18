#pragma once

#include "archive/paths.h"
#include "archive/record.h"
#include "files/result.h"

#include <QString>

namespace quarvel {

/// Saves an airport under a name: its data file, and its presenter text file, which becomes empty. The
/// airport's folders are made first when there are none. Both files are prepared completely before the first
/// takes its place, and each is its old or its new self whatever fails. Fails with BadName (the name, or an
/// ICAO code that no file can be named after), and with the faults of createAirportFolders, recordBytes and
/// writeWholeFiles.
[[nodiscard]] Result<void> saveAirport(const ArchivePaths& paths, const QString& name,
                                       const AirportRecord& record);

} // namespace quarvel
