#include "archive/airport_folders.h"

#include "archive/name_rules.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

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

/// Folders that are taken back in reverse order unless they are kept.
class FreshFolders {
public:
    FreshFolders() = default;
    FreshFolders(const FreshFolders&) = delete;
    FreshFolders& operator=(const FreshFolders&) = delete;
    ~FreshFolders() {
        for (; !made_.empty(); made_.pop_back()) ::rmdir(made_.back().constData());
    }

    /// Makes a folder; 0, or the system's error number.
    int make(const QString& path) {
        QByteArray encoded = QFile::encodeName(path);
        if (::mkdir(encoded.constData(), 0777) != 0) return errno; // the user's mask takes its part away
        made_.push_back(std::move(encoded));
        return 0;
    }
    void keep() { made_.clear(); }

private:
    std::vector<QByteArray> made_;
};

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

    FreshFolders fresh;
    const QString folders[] = {airport, airport + u"/Sid"_s, airport + u"/Star"_s, airport + u"/Approach"_s,
                               airport + u"/Aeroporto"_s};
    for (const QString& folder : folders)
        if (const int error = fresh.make(folder); error != 0) return makeFailure(folder, error);
    fresh.keep();
    return {};
}

} // namespace quarvel
