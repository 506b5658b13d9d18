#include "archive/paths.h"

#include "files/lookup.h"
#include "install/program_folder.h"
#include "text/strings.h"

#include <utility>

namespace quarvel {

using namespace Qt::StringLiterals;

namespace {

QString airportRelative(const QString& name) { return archiveName() + u'/' + name; }
QString generalRelative(const QString& name) { return airportRelative(name) + u"/Aeroporto"_s; }
QString dataRelative(const QString& name) { return generalRelative(name) + u'/' + name + u".txt"_s; }

QString presenterRelative(const QString& name, const QString& icao) {
    return airportRelative(name) + u'/' + icao + u"_Agent.txt"_s;
}

} // namespace

ArchivePaths::ArchivePaths(QString programFolder) : programFolder_(std::move(programFolder)) {}

QString ArchivePaths::archiveFolder() const {
    return resolvePath(programFolder_, archiveName()).valueOr(programFolder_ + u'/' + archiveName());
}

Result<QString> ArchivePaths::airportFolder(const QString& name) const {
    return resolvePath(programFolder_, airportRelative(name));
}

Result<QString> ArchivePaths::generalFolder(const QString& name) const {
    return resolvePath(programFolder_, generalRelative(name));
}

Result<QString> ArchivePaths::dataFile(const QString& name) const {
    return resolvePath(programFolder_, dataRelative(name));
}

Result<QString> ArchivePaths::picture(const QString& name, const QString& icao) const {
    const Result<QString> folder = generalFolder(name);
    if (!folder) return folder.failure();
    const QString file = trimBlanks(icao) + u".gif"_s;
    // The lower-case form goes before any other mixture: it is the one that the opening check may have found.
    for (const QString& exact : {file, file.toLower()}) {
        const Result<bool> held = holdsExactly(folder.value(), exact);
        if (!held) return held.failure();
        if (held.value()) return resolvePath(folder.value(), exact);
    }
    return resolvePath(folder.value(), file);
}

Result<QString> ArchivePaths::presenterText(const QString& name, const QString& icao) const {
    return resolvePath(programFolder_, presenterRelative(name, icao));
}

Result<QString> ArchivePaths::familyFolder(const QString& name, const QString& family) const {
    const Result<QString> folder = resolvePath(programFolder_, airportRelative(name) + u'/' + family);
    return folder ? Result<QString>(folder.value() + u'/') : folder;
}

} // namespace quarvel
