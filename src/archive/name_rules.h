#pragma once

#include "files/result.h"

#include <QString>

namespace quarvel {

enum class NameUse {
    Existing, ///< a name to be looked for
    New       ///< a name to be created
};

/// Whether a text can name an airport's folder: not empty, not "." or "..", no separator, control character
/// or one of * ? " < > | : in it. A new name may not end in a dot or a blank either, which other file systems
/// drop, nor begin with a dot: it would never be listed. Fails with BadName; the failure's detail is the
/// offending character, if it is one.
[[nodiscard]] Result<void> checkAirportName(const QString& name, NameUse use);

/// Whether a text can be part of a file name inside a folder (an ICAO code in a picture's name).
[[nodiscard]] bool staysInFolder(const QString& text);

} // namespace quarvel
