#pragma once

#include "files/result.h"
#include "files/staging_folder.h"

#include <QByteArray>
#include <QString>
#include <sys/stat.h>

namespace quarvel {

/// A file that is being saved: made in a staging folder beside its place, then given the place's name, and
/// put back as long as the save may still fail. Failures name the file as the user knows it.
class StagedFile {
public:
    /// `known`: the path that the user gave; `place`: what that leads to, in the folder of `staging`.
    /// No other file in the staging folder has this number.
    StagedFile(QString known, QString place, StagingFolder& staging, std::size_t number);

    /// Makes the new file, down to the disk, with the mode of the one that it will replace, and its owner and
    /// group as far as the user may give them. Fails with NotRegular, and with the faults of writeFailure,
    /// also for a file that the user may not write: it is not to be replaced behind the user's back.
    [[nodiscard]] Result<void> make(const QByteArray& bytes);

    /// Looks again at what is to be replaced, now that nobody else saves in the folder.
    [[nodiscard]] Result<void> lookAgain();
    /// Gives the old file a second name in the staging folder or, where there are none, copies it to there.
    [[nodiscard]] Result<void> keepOld();
    [[nodiscard]] Result<void> takeName();
    /// False when the place still holds the new file. Only after keepOld().
    [[nodiscard]] bool takeNameBack();
    /// Whether nobody can tell if the name was taken: the old self is better kept.
    [[nodiscard]] bool isInDoubt() const { return inDoubt_; }

    [[nodiscard]] const QString& known() const { return known_; }
    [[nodiscard]] const QString& place() const { return place_; }
    [[nodiscard]] bool replaces() const { return replaces_; }
    /// Whether what is replaced has other names besides, which will keep its old self.
    [[nodiscard]] bool hasOtherNames() const { return otherNames_; }
    [[nodiscard]] StagingFolder& staging() const { return staging_; }

private:
    QString known_;
    QString place_;
    StagingFolder& staging_;
    QString new_;
    QString old_;
    bool replaces_ = false;
    bool otherNames_ = false;
    bool taken_ = false; ///< the place holds the new file
    bool inDoubt_ = false;
};

/// Writes a file that is not there yet, down to the disk, with the mode and owners of another, if one is
/// given; 0, or the system's error number.
[[nodiscard]] int writeNewLike(const QString& path, const QByteArray& bytes, const struct stat* other);

} // namespace quarvel
