#pragma once

#include <QString>
#include <vector>

namespace quarvel {

/// What is kept of one kind of files.
struct VersionLimits {
    QString folder;  ///< its own, in the store
    int perFile;     ///< versions
    qint64 maxBytes; ///< of all versions together, each as whole blocks of the disk
};

/// Texts, records and settings; charts and photos. A file's kind follows from its extension.
[[nodiscard]] const VersionLimits& limitsFor(const QString& fileName);

/// All kinds.
[[nodiscard]] const std::vector<VersionLimits>& allLimits();

/// A version in the store, as far as the limits ask.
struct StoredVersion {
    QString folder; ///< of all versions of one file
    QString name;   ///< sorts by time
    qint64 bytes;
};

/// Those that have to go, the oldest first: of each file what is beyond its number, then whatever is oldest
/// until the rest fits.
[[nodiscard]] std::vector<StoredVersion> beyondLimits(std::vector<StoredVersion> stored,
                                                      const VersionLimits& limits);

} // namespace quarvel
