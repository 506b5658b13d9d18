#pragma once

#include "files/descriptor.h"
#include "files/result.h"

#include <QString>
#include <memory>

namespace quarvel {

/// A hidden folder within another, in which things are made whole before they are moved to their places. It
/// goes, with what is still in it, when this object does. A process that is killed leaves it behind; because
/// its owner holds a lock on it, such a left-over can be told from one that is in use.
class StagingFolder {
public:
    /// Fails with Unwritable, DiskFull or NotFound of `folder`.
    [[nodiscard]] static Result<std::unique_ptr<StagingFolder>> make(const QString& folder);

    /// Removes what killed processes have left in `folder`.
    static void clearLeftOvers(const QString& folder);

    ~StagingFolder();
    StagingFolder(const StagingFolder&) = delete;
    StagingFolder& operator=(const StagingFolder&) = delete;

    [[nodiscard]] const QString& path() const { return path_; }

private:
    explicit StagingFolder(const QString& path);

    QString path_;
    Descriptor locked_;
};

} // namespace quarvel
