#include "archive/opening.h"

#include "files/lookup.h"
#include "text/strings.h"

namespace quarvel {

using namespace Qt::StringLiterals;

Result<bool> hasDataFile(const ArchivePaths& paths, const QString& name) {
    return paths.generalFolder(name).then(
        [&](const QString& folder) { return holdsExactly(folder, name + u".txt"_s); });
}

Result<bool> hasPicture(const ArchivePaths& paths, const QString& name, const QString& icao) {
    const Result<QString> folder = paths.generalFolder(name);
    if (!folder) return folder.failure();
    const QString code = trimBlanks(icao);
    Result<bool> asWritten = holdsExactly(folder.value(), code + u".gif"_s);
    if (!asWritten || asWritten.value()) return asWritten;
    return holdsExactly(folder.value(), code.toLower() + u".gif"_s);
}

} // namespace quarvel
