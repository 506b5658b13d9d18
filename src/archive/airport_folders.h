#pragma once

#include "archive/paths.h"
#include "files/result.h"

#include <QString>

namespace quarvel {

enum class AirportFolders { Made, WereThere };

/// Makes a new airport's folder and its sub-folders Sid, Star, Approach and Aeroporto, in this order. When
/// the airport folder exists (in whatever letter case, also under a name that would not be given to a new
/// one) nothing is made, even if a sub-folder is missing; the archive folder itself is never made. Fails with
/// BadName, NotFound (no archive folder), and the faults of readFailure and writeFailure; what was made until
/// then is taken back.
[[nodiscard]] Result<AirportFolders> createAirportFolders(const ArchivePaths& paths, const QString& name);

/// Takes back what createAirportFolders made, as long as there is nothing in it: all of the folders, or none.
void removeEmptyAirportFolders(const QString& airport);

} // namespace quarvel
