#pragma once

#include "files/result.h"

#include <QString>
#include <vector>

namespace quarvel {

/// A file below a folder.
struct TreeFile {
    QString path; ///< relative to that folder, with /
    qint64 bytes;
};

/// The regular files of a folder and of all folders in it, in no order. Hidden ones and links are left out;
/// so is what cannot be read, for a folder without which the caller can do.
[[nodiscard]] std::vector<TreeFile> filesBelow(const QString& folder);

/// Removes a file, then the folder that it lay in and those above it as far as they are empty, but not `top`.
void removeWithEmptyFolders(const QString& path, const QString& top);

} // namespace quarvel
