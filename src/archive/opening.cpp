#include "archive/opening.h"

#include "files/lookup.h"
#include "text/strings.h"

namespace quarvel {

using namespace Qt::StringLiterals;

bool hasDataFile(const ArchivePaths& paths, const QString& name) {
    return holdsExactly(paths.generalFolder(name), name + u".txt"_s);
}

Result<void> checkLookedInto(const ArchivePaths& paths, const QString& name) {
    const Result<QStringList> files = listFiles(paths.generalFolder(name));
    if (files || files.failure().fault == Fault::NotFound) return {};
    return files.failure();
}

bool hasPicture(const ArchivePaths& paths, const QString& name, const QString& icao) {
    const QString folder = paths.generalFolder(name);
    const QString code = trimBlanks(icao);
    return holdsExactly(folder, code + u".gif"_s) || holdsExactly(folder, code.toLower() + u".gif"_s);
}

} // namespace quarvel
