#include "archive/airport_folders.h"

#include "archive/name_rules.h"
#include "files/staging_folder.h"
#include "files/whole_copy.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <sys/stat.h>

namespace quarvel {

using namespace Qt::StringLiterals;

namespace {

Failure makeFailure(const QString& path, int error) {
    switch (error) {
    case ENOSPC:
    case EDQUOT: return {Fault::DiskFull, path, {}};
    case ENAMETOOLONG:
    case EINVAL: return {Fault::BadName, path, {}};
    default: return {Fault::Unwritable, path, {}};
    }
}

/// 0, or the system's error number.
int makeFolder(const QString& path) {
    // The user's mask takes its part away.
    return ::mkdir(QFile::encodeName(path).constData(), 0777) == 0 ? 0 : errno;
}

bool anyEntry(const QString& path) {
    struct stat info {};
    return ::lstat(QFile::encodeName(path).constData(), &info) == 0;
}

} // namespace

Result<void> createAirportFolders(const ArchivePaths& paths, const QString& name) {
    if (Result<void> checked = checkAirportName(name, NameUse::New); !checked) return checked;
    const QString archive = paths.archiveFolder();
    if (!QFileInfo(archive).isDir()) return Failure{Fault::NotFound, archive, {}};
    const QString airport = paths.airportFolder(name);
    if (anyEntry(airport)) return {};

    // Made aside and moved to their place in one step: an airport without all of its folders could not be
    // saved.
    StagingFolder::clearLeftOvers(archive);
    const auto staging = StagingFolder::make(archive);
    if (!staging) return Failure{staging.failure().fault, airport, {}};
    const QString staged = staging.value()->path() + u'/' + name;
    for (const auto& part : {u""_s, u"/Sid"_s, u"/Star"_s, u"/Approach"_s, u"/Aeroporto"_s})
        if (const int error = makeFolder(staged + part); error != 0)
            return makeFailure(airport + part, error);
    return moveToFreeName(staged, airport);
}

} // namespace quarvel
