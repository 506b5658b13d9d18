#include "archive/saving.h"

#include "archive/airport_folders.h"
#include "archive/name_rules.h"
#include "archive/record_file.h"
#include "files/whole_file.h"

#include <QFileInfo>

namespace quarvel {
namespace {

constexpr qint64 largestTextBytes = qint64{16} * 1024 * 1024; // as the presenter reads

bool isSeen(const QByteArray& dataFile, const std::optional<AirportRecord>& shown) {
    const Result<AirportRecord> record = parseRecord(dataFile, {});
    return shown && record && record.value().values == shown->values && !holdsMoreThanRecord(dataFile);
}

} // namespace

Result<Written> saveAirport(const ArchivePaths& paths, const QString& name, const AirportRecord& record,
                            const BeforeReplacing& beforeReplacing) {
    if (const Result<void> allowed = checkAirportName(name, NameUse::Existing); !allowed)
        return allowed.failure();
    // As the record will give it back: by that the text is looked for.
    const QString icao = storableValue(record.values[IcaoCode]);
    if (!staysInFolder(icao)) return Failure{Fault::BadName, icao, {}};
    const Result<QString> dataFile = paths.dataFile(name);
    if (!dataFile) return dataFile.failure();
    const Result<QString> presenterText = paths.presenterText(name, icao);
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

Result<std::vector<FileContent>> unseenFiles(const ArchivePaths& paths, const QString& name,
                                             const AirportRecord& next,
                                             const std::optional<AirportRecord>& shown) {
    const Result<QByteArray> bytesOfNext = recordBytes(next, {});
    std::vector<FileContent> unseen;
    const auto look = [&unseen](const Result<QString>& path, qint64 maxBytes, auto isSeen) {
        const Result<QByteArray> bytes =
            path.then([&](const QString& found) { return readWholeFile(found, maxBytes); });
        if (!bytes)
            return bytes.failure().fault == Fault::NotFound ? Result<void>() : Result<void>(bytes.failure());
        if (!isSeen(bytes.value())) unseen.push_back({path.value(), bytes.value()});
        return Result<void>();
    };
    const Result<void> record = look(paths.dataFile(name), largestRecordBytes, [&](const QByteArray& bytes) {
        // What is on the disk already, as after a save that failed in part, is not taken away.
        return (bytesOfNext && bytes == bytesOfNext.value()) || isSeen(bytes, shown);
    });
    if (!record) return record.failure();
    const Result<void> text =
        look(paths.presenterText(name, storableValue(next.values[IcaoCode])), largestTextBytes,
             [](const QByteArray& bytes) { return bytes.trimmed().isEmpty(); });
    if (!text) return text.failure();
    return unseen;
}

} // namespace quarvel
