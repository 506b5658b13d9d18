#include "archive/saving.h"

#include "archive/airport_folders.h"
#include "archive/name_rules.h"
#include "archive/record_file.h"
#include "files/whole_file.h"

#include <QFileInfo>

namespace quarvel {

Result<Written> saveAirport(const ArchivePaths& paths, const QString& name, const AirportRecord& record,
                            const BeforeReplacing& beforeReplacing) {
    if (const Result<void> allowed = checkAirportName(name, NameUse::Existing); !allowed)
        return allowed.failure();
    // As the record will give it back: by that the text is looked for.
    const QString icao = storableValue(record.values[IcaoCode]);
    if (!staysInFolder(icao)) return Failure{Fault::BadName, icao, {}};
    const Result<QString> dataFile = paths.dataFileForWriting(name);
    if (!dataFile) return dataFile.failure();
    const Result<QString> presenterText = paths.presenterTextForWriting(name, icao);
    if (!presenterText) return presenterText.failure();
    const Result<QByteArray> bytes = recordBytes(record, dataFile.value());
    if (!bytes) return bytes.failure();

    const Result<AirportFolders> folders = createAirportFolders(paths, name);
    if (!folders) return folders.failure();
    Result<Written> written =
        writeWholeFiles({{dataFile.value(), bytes.value()}, {presenterText.value(), {}}}, beforeReplacing);
    if (!written && folders.value() == AirportFolders::Made)
        removeEmptyAirportFolders(QFileInfo(presenterText.value()).path());
    return written;
}

} // namespace quarvel
