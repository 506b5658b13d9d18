#pragma once

#include "files/result.h"

#include <QString>

namespace quarvel {

enum class FolderAccess {
    Usual,    ///< whatever the user's mask allows
    OwnerOnly ///< for what concerns nobody else
};

/// Makes a folder, and those above it, where there are none. Fails with Unwritable, DiskFull or BadName.
[[nodiscard]] Result<void> makeFolder(const QString& path, FolderAccess access);

} // namespace quarvel
