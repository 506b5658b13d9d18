#pragma once

#include "files/descriptor.h"
#include "files/result.h"

#include <QString>
#include <memory>

namespace quarvel {

/// A hidden folder within another, in which things are made whole before they are moved to their places. It
/// goes, with what is still in it, when this object does. A process that is killed leaves it behind; because
/// its owner holds a lock on it, such a left-over can be told from one that is in use.
///
/// Within it there may be a folder of old selves: of files that are being replaced, until it is sure that
/// they are. An old self that exists nowhere else is never cleared, but comes to light in a folder
/// "Quarvel-old-...".
class StagingFolder {
public:
    /// Fails with the faults of writeFailure, of `folder`.
    [[nodiscard]] static Result<std::unique_ptr<StagingFolder>> make(const QString& folder);

    /// Removes what killed processes have left in `folder`.
    static void clearLeftOvers(const QString& folder);

    ~StagingFolder();
    StagingFolder(const StagingFolder&) = delete;
    StagingFolder& operator=(const StagingFolder&) = delete;

    [[nodiscard]] const QString& path() const { return path_; }

    [[nodiscard]] QString oldFolder() const;
    /// Makes it when it is not there yet.
    [[nodiscard]] Result<void> makeOldFolder();
    /// Keeps it for good, and says where it then is: in sight or, where nothing can be moved, where it was.
    [[nodiscard]] QString keepOldFolder();

private:
    explicit StagingFolder(const QString& path);

    QString path_;
    Descriptor locked_;
    QString kept_; ///< where the old selves are, once they are kept
};

} // namespace quarvel
