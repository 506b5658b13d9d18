#pragma once

#include "files/make_folder.h"
#include "install/program_folder.h"

#include <QString>

namespace quarvel {

/// Where the program keeps what it remembers by itself. The folder need not exist.
struct StateFolder {
    QString path;
    FolderAccess access;
};

/// A portable program keeps its state in "Stato" beside the archive, so that both travel together. That of an
/// installed one lies in the user's state folder, in a folder of its own for each program folder: it is named
/// after that one, with a short hash of its real path.
[[nodiscard]] StateFolder findStateFolder(const ProgramFolder& folder);

} // namespace quarvel
