#include "safekeeping/earlier_versions.h"

#include "files/folder_tree.h"
#include "files/lookup.h"
#include "files/make_folder.h"
#include "safekeeping/version_name.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

QString folderPart(const QString& path) { return path.section(u'/', 0, -2); }
QString namePart(const QString& path) { return path.section(u'/', -1); }

/// What a kind's part of the store holds, but for what is no version.
std::vector<StoredVersion> storedIn(const QString& folder) {
    std::vector<StoredVersion> stored;
    for (const TreeFile& file : filesBelow(folder))
        if (versionTime(namePart(file.path)).isValid())
            stored.push_back({folderPart(file.path), namePart(file.path), file.bytes});
    return stored;
}

} // namespace

EarlierVersions::EarlierVersions(QString programFolder, const StateFolder& state)
    : programFolder_(std::move(programFolder)), store_(state.path + u"/versioni"_s), access_(state.access) {}

Result<QString> EarlierVersions::folderOf(const QString& file) const {
    return resolvePath(store_, limitsFor(file).folder + u'/' + file);
}

Result<QString> EarlierVersions::relative(const QString& path) const {
    if (!path.startsWith(programFolder_ + u'/')) return Failure{Fault::BadName, path, {}};
    return path.mid(programFolder_.size() + 1);
}

Result<void> EarlierVersions::keep(const FileContent& next) const {
    const Result<QString> file = relative(next.path);
    if (!file) return file.failure();
    const Result<QByteArray> present = readWholeFile(next.path, limitsFor(file.value()).maxBytes);
    if (!present) return present.failure();
    return present.value() == next.bytes ? Result<void>() : store(file.value(), present.value());
}

/// Stores the newest version of a file, unless it is that already.
Result<void> EarlierVersions::store(const QString& file, const QByteArray& bytes) const {
    const VersionLimits& limits = limitsFor(file);
    const std::vector<EarlierVersion> versions = versionsOf(file);
    QDateTime now = QDateTime::currentDateTimeUtc();
    if (!versions.empty()) {
        const EarlierVersion& newest = versions.front();
        const Result<QByteArray> last = readWholeFile(newest.path, limits.maxBytes);
        if (last && last.value() == bytes) return {};
        now = std::max(now, newest.kept.addMSecs(1)); // after it, be the clock set back
    }
    const Result<QString> folder = folderOf(file);
    if (!folder) return folder.failure();
    if (Result<void> made = makeFolder(folder.value(), access_); !made) return made;
    const Result<Written> kept = writeWholeFile(folder.value() + u'/' + versionName(now, file), bytes);
    dropBeyondLimits(limits);
    return kept ? Result<void>() : kept.failure();
}

QStringList EarlierVersions::files() const {
    QStringList files;
    for (const VersionLimits& limits : allLimits())
        for (const StoredVersion& version : storedIn(store_ + u'/' + limits.folder))
            files.append(version.folder);
    files.removeDuplicates();
    files.sort(Qt::CaseInsensitive);
    return files;
}

std::vector<EarlierVersion> EarlierVersions::versionsOf(const QString& file) const {
    std::vector<EarlierVersion> versions;
    const QString folder = folderOf(file).valueOr({});
    if (folder.isEmpty()) return versions;
    for (const TreeFile& version : filesBelow(folder))
        if (const QDateTime kept = versionTime(version.path); kept.isValid())
            versions.push_back({kept, folder + u'/' + version.path});
    std::sort(versions.begin(), versions.end(),
              [](const EarlierVersion& left, const EarlierVersion& right) { return left.path > right.path; });
    return versions;
}

Result<void> EarlierVersions::bringBack(const QString& file, const EarlierVersion& version) const {
    const Result<QByteArray> bytes = readWholeFile(version.path, limitsFor(file).maxBytes);
    if (!bytes) return bytes.failure();
    const Result<QString> place = resolvePath(programFolder_, file);
    if (!place) return place.failure();
    const FileContent next{place.value(), bytes.value()};
    // Unlike a save, this has no haste: what cannot be kept is not replaced.
    if (Result<void> kept = keep(next); !kept && kept.failure().fault != Fault::NotFound) return kept;
    const Result<Written> written =
        writeWholeFiles({next}, [this](const FileContent& again) { static_cast<void>(keep(again)); });
    return written ? Result<void>() : written.failure();
}

void EarlierVersions::dropBeyondLimits(const VersionLimits& limits) const {
    const QString top = store_ + u'/' + limits.folder;
    for (const StoredVersion& version : beyondLimits(storedIn(top), limits))
        removeWithEmptyFolders(top + u'/' + version.folder + u'/' + version.name, top);
}

} // namespace quarvel
