#include "archive/airport_folders.h"

#include "archive/name_rules.h"
#include "files/lookup.h"
#include "files/staging_folder.h"
#include "files/system_error.h"
#include "files/system_name.h"
#include "files/whole_copy.h"

#include <QDir>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace quarvel {

using namespace Qt::StringLiterals;

namespace {

const QStringList subFolders = {u"Sid"_s, u"Star"_s, u"Approach"_s, u"Aeroporto"_s};

/// 0, or the system's error number.
int makeFolder(const QString& path) {
    // The user's mask takes its part away.
    return ::mkdir(systemName(path).constData(), 0777) == 0 ? 0 : errno;
}

bool isEmptyFolder(const QString& path) {
    const Result<QStringList> names = entryNames(path);
    return names && names.value().isEmpty();
}

bool removeFolder(const QString& path) { return ::rmdir(systemName(path).constData()) == 0; }

} // namespace

Result<AirportFolders> createAirportFolders(const ArchivePaths& paths, const QString& name) {
    if (const Result<void> usable = checkAirportName(name, NameUse::Existing); !usable)
        return usable.failure();
    const QString archive = paths.archiveFolder();
    const Result<bool> hasArchive = isFolder(archive);
    if (!hasArchive) return hasArchive.failure();
    if (!hasArchive.value()) return Failure{Fault::NotFound, archive, {}};
    const Result<QString> found = paths.airportFolder(name);
    if (!found) return found.failure();
    const QString& airport = found.value();
    const Result<bool> there = isThere(airport);
    if (!there) return there.failure();
    if (there.value()) return AirportFolders::WereThere;
    if (const Result<void> usable = checkAirportName(name, NameUse::New); !usable) return usable.failure();

    // Made aside and moved to their place in one step: an airport without all of its folders could not be
    // saved.
    StagingFolder::clearLeftOvers(archive);
    const auto staging = StagingFolder::make(archive);
    if (!staging) return Failure{staging.failure().fault, airport, {}};
    const QString staged = staging.value()->path() + u'/' + name;
    if (const int error = makeFolder(staged); error != 0) return writeFailure(airport, error);
    for (const QString& part : subFolders)
        if (const int error = makeFolder(staged + u'/' + part); error != 0)
            return writeFailure(airport + u'/' + part, error);
    if (const Result<void> moved = moveToFreeName(staged, airport); !moved) return moved.failure();
    // Somebody else's may have been quicker.
    return isThere(staged).valueOr(true) ? AirportFolders::WereThere : AirportFolders::Made;
}

void removeEmptyAirportFolders(const QString& airport) {
    const Result<QStringList> names = entryNames(airport);
    if (!names || names.value().size() != subFolders.size()) return;
    for (const QString& part : subFolders)
        if (!isEmptyFolder(airport + u'/' + part)) return;
    QStringList gone;
    for (const QString& part : subFolders)
        if (removeFolder(airport + u'/' + part)) gone.append(part);
    if (gone.size() == subFolders.size() && removeFolder(airport)) return;
    // All or none: to an airport with only some of its folders nothing could be saved.
    for (const QString& part : gone) makeFolder(airport + u'/' + part);
}

} // namespace quarvel
