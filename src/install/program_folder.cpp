#include "install/program_folder.h"

#include "files/lookup.h"
#include "install/user_folders.h"

#include <QDir>
#include <QFile>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

QString starterFolder(const QString& executableFolder) {
    return QDir::cleanPath(executableFolder + u"/../share/quarvel/starter"_s);
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
    around.archiveBeside = resolvePath(executableFolder, archiveName())
                               .then([](const QString& path) { return isFolder(path); })
                               .valueOr(!around.starterInstalled);
    around.executableFolderWritable =
        ::access(QFile::encodeName(executableFolder).constData(), W_OK | X_OK) == 0;
    return chooseProgramFolder(around);
}

} // namespace quarvel
