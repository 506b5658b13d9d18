#pragma once

#include "archive/paths.h"
#include "archive/record.h"
#include "files/whole_file.h"

#include <QString>
#include <optional>
#include <vector>

namespace quarvel {

/// Saves an airport under a name: its data file, and its presenter text file, which becomes empty. The
/// airport's folders are made when there are none, and taken back when nothing is saved. Both files are
/// prepared completely before the first takes its place, and each is its old or its new self whatever fails.
/// Fails with BadName (the name, or an ICAO code that no file can be named after), and with the faults of
/// createAirportFolders, recordBytes and writeWholeFiles.
[[nodiscard]] Result<Written> saveAirport(const ArchivePaths& paths, const QString& name,
                                          const AirportRecord& record,
                                          const BeforeReplacing& beforeReplacing = {});

/// Of the files that saveAirport replaces by `next`, those that hold what nobody has seen who knows the
/// record `shown` (none for a new airport): a data file that is another record, or more than one, and a
/// presenter text, which the save empties. Fails with the faults of readWholeFile.
[[nodiscard]] Result<std::vector<FileContent>> unseenFiles(const ArchivePaths& paths, const QString& name,
                                                           const AirportRecord& next,
                                                           const std::optional<AirportRecord>& shown);

} // namespace quarvel
