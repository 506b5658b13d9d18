#pragma once

#include "files/result.h"
#include "files/whole_file.h"
#include "install/state_folder.h"
#include "safekeeping/version_limits.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <vector>

namespace quarvel {

/// One earlier self of a file.
struct EarlierVersion {
    QDateTime kept; ///< when it was replaced
    QString path;   ///< of the version
};

/// The earlier selves of the user's files, as plain files in the state folder: for each file a folder with
/// its path in the program folder, in it a file for each version, named by the time. There is no index; what
/// is there counts, whoever put it there or took it away.
class EarlierVersions {
public:
    EarlierVersions(QString programFolder, const StateFolder& state);

    /// Keeps the present self of a file that is about to become `next`, unless both are equal, or it is kept
    /// already as the newest version; then drops what is beyond the limits. Fails with the faults of
    /// readWholeFile and writeWholeFile.
    [[nodiscard]] Result<void> keep(const FileContent& next) const;

    /// The files that have versions, by their paths in the program folder ("aeroporti/LIRF/Sid/ROTTA_K.txt").
    [[nodiscard]] QStringList files() const;

    /// The versions of a file, the newest first.
    [[nodiscard]] std::vector<EarlierVersion> versionsOf(const QString& file) const;

    /// Puts a version in the place of its file, whose present self is kept before; where that cannot be done
    /// nothing is. Fails with the faults of keep, resolvePath and writeWholeFile.
    [[nodiscard]] Result<void> bringBack(const QString& file, const EarlierVersion& version) const;

private:
    [[nodiscard]] Result<QString> relative(const QString& path) const;
    [[nodiscard]] Result<void> store(const QString& file, const QByteArray& bytes) const;
    [[nodiscard]] Result<QString> folderOf(const QString& file) const;
    void dropBeyondLimits(const VersionLimits& limits) const;

    QString programFolder_;
    QString store_;
    FolderAccess access_;
};

} // namespace quarvel
