#pragma once

#include "files/result.h"

#include <QString>

namespace quarvel {

/// Every path of the archive. The folder and file names are resolved without regard to letter case at each
/// call; of those that are not there yet, the letters are kept. Names are taken as they are: check them first
/// (archive/name_rules.h). Each fails with the faults of resolvePath.
class ArchivePaths {
public:
    /// `programFolder` without a separator at its end.
    explicit ArchivePaths(QString programFolder);

    [[nodiscard]] const QString& programFolder() const { return programFolder_; }
    /// aeroporti, as written where the program folder cannot be listed: like a folder that is not there, it
    /// is then told as one that is missing or cannot be read.
    [[nodiscard]] QString archiveFolder() const;
    [[nodiscard]] Result<QString> airportFolder(const QString& name) const; ///< aeroporti/{name}
    [[nodiscard]] Result<QString> generalFolder(const QString& name) const; ///< aeroporti/{name}/Aeroporto
    [[nodiscard]] Result<QString> dataFile(const QString& name) const;      ///< .../{name}.txt
    /// .../{icao}.gif, the code without blanks at its ends.
    [[nodiscard]] Result<QString> picture(const QString& name, const QString& icao) const;
    [[nodiscard]] Result<QString> presenterText(const QString& name,
                                                const QString& icao) const; ///< {icao}_Agent.txt
    /// The folder of a procedure family ("Sid", "Star", "Approach"), ending in a separator.
    [[nodiscard]] Result<QString> familyFolder(const QString& name, const QString& family) const;

private:
    QString programFolder_;
};

} // namespace quarvel
