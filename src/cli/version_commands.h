#pragma once

#include "language/language_support.h"
#include "safekeeping/earlier_versions.h"

#include <QString>

namespace quarvel {

/// What a command has to say, and the exit status of the program.
struct Said {
    QString out;
    QString error;
    int status = 0; ///< 0 done, 1 not done, 2 not understood
};

/// Lists the earlier versions of an airport's files, of all files for an empty name: below each file's path a
/// line each, the newest first, with number, time and first line.
[[nodiscard]] Said listVersions(const EarlierVersions& versions, modLanguageSupport& language,
                                const QString& airport);

/// Brings a version of a file back, by its number in that list. The file's present self is kept first; where
/// that fails nothing is done.
[[nodiscard]] Said bringBack(const EarlierVersions& versions, modLanguageSupport& language,
                             const QString& file, int number);

} // namespace quarvel
