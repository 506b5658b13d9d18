#include "archive/saving.h"

#include "archive/airport_folders.h"
#include "archive/name_rules.h"
#include "archive/record_file.h"
#include "files/whole_file.h"

namespace quarvel {

Result<void> saveAirport(const ArchivePaths& paths, const QString& name, const AirportRecord& record) {
    if (const Result<void> allowed = checkAirportName(name, NameUse::New); !allowed) return allowed.failure();
    const QString& icao = record.values[IcaoCode];
    if (!staysInFolder(icao)) return Failure{Fault::BadName, icao, {}};
    if (const Result<void> made = createAirportFolders(paths, name); !made) return made.failure();
    const QString dataFile = paths.dataFileForWriting(name);
    const Result<QByteArray> bytes = recordBytes(record, dataFile);
    if (!bytes) return bytes.failure();
    return writeWholeFiles({{dataFile, bytes.value()}, {paths.presenterTextForWriting(name, icao), {}}});
}

} // namespace quarvel
