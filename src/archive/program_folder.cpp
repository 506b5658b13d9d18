#include "archive/program_folder.h"

#include "files/lookup.h"

#include <QDir>
#include <QFile>
#include <pwd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

QString starterFolder(const QString& executableFolder) {
    return QDir::cleanPath(executableFolder + u"/../share/quarvel/starter"_s);
}

/// The user's home, from the user database where the environment names none: the toolkit would take the root
/// of the file system.
QString homeFolder() {
    QString named = qEnvironmentVariable("HOME");
    if (QDir::isAbsolutePath(named)) return named;
    const passwd* const user = ::getpwuid(::getuid()); // NOLINT(concurrency-mt-unsafe): asked only here
    return user != nullptr ? QFile::decodeName(user->pw_dir) : QDir::homePath();
}

/// Where programs keep their data for this user. XDG_DATA_HOME, given as a relative path, is invalid and to
/// be ignored (the desktops' base directory rules, 0.8, "Basics"); Qt 6.4 would take it.
QString userDataFolder() {
    const QString named = qEnvironmentVariable("XDG_DATA_HOME");
    return QDir::isAbsolutePath(named) ? named : homeFolder() + u"/.local/share"_s;
}

} // namespace

ProgramFolder chooseProgramFolder(const Surroundings& around) {
    if (around.archiveBeside) return {around.executableFolder, {}};
    if (around.starterInstalled || !around.executableFolderWritable)
        return {QDir::cleanPath(around.userDataFolder + u"/quarvel"_s),
                starterFolder(around.executableFolder)};
    return {around.executableFolder, {}};
}

ProgramFolder findProgramFolder(const QString& executableFolder) {
    Surroundings around;
    around.executableFolder = executableFolder;
    around.userDataFolder = userDataFolder();
    around.starterInstalled = isFolder(starterFolder(executableFolder)).valueOr(true);
    // A portable program that cannot see its archive for a moment shall say so, not begin another elsewhere.
    around.archiveBeside = resolvePath(executableFolder, u"aeroporti"_s)
                               .then([](const QString& path) { return isFolder(path); })
                               .valueOr(!around.starterInstalled);
    around.executableFolderWritable =
        ::access(QFile::encodeName(executableFolder).constData(), W_OK | X_OK) == 0;
    return chooseProgramFolder(around);
}

} // namespace quarvel
