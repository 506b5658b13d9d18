#pragma once

#include <QString>

namespace quarvel {

/// The name of the folder that holds all airports.
[[nodiscard]] inline QString archiveName() { return QStringLiteral("aeroporti"); }

/// What decides where the program folder is.
struct Surroundings {
    QString executableFolder;              ///< absolute
    QString userDataFolder;                ///< absolute; where programs keep their data for this user
    bool archiveBeside = false;            ///< the archive folder lies beside the executable
    bool starterInstalled = false;         ///< there is a starter folder
    bool executableFolderWritable = false; ///< by this user
};

/// The folder of the archive, the language files, the settings and the sound.
struct ProgramFolder {
    QString path;
    QString starter; ///< the folder that it is laid out from; empty for one that is taken as it is
};

/// A portable program lives beside its archive, an installed one in the user's data folder. One that is
/// neither stays in its own folder, as long as it can be written.
[[nodiscard]] ProgramFolder chooseProgramFolder(const Surroundings& around);

/// Looks around the executable, then chooses. `executableFolder` is absolute.
[[nodiscard]] ProgramFolder findProgramFolder(const QString& executableFolder);

} // namespace quarvel
