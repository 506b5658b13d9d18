#pragma once

#include "archive/paths.h"
#include "files/result.h"

#include <QString>

namespace quarvel {

/// Makes a new airport's folder and its sub-folders Sid, Star, Approach and Aeroporto, in this order. When
/// the airport folder exists (in whatever letter case) nothing is made, even if a sub-folder is missing; the
/// archive folder itself is never made. Fails with BadName, NotFound (no archive folder) or
/// Unwritable/DiskFull; what was made until then is taken back.
[[nodiscard]] Result<void> createAirportFolders(const ArchivePaths& paths, const QString& name);

} // namespace quarvel
