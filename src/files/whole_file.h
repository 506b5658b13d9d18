#pragma once

#include "files/result.h"

#include <QByteArray>
#include <QString>
#include <vector>

namespace quarvel {

/// Reads a regular file whole. Nothing but a regular file is ever read, so that a pipe or a device under
/// a file's name cannot hold the program up. Fails with NotFound, NotRegular, Unreadable, or TooLarge above
/// `limitBytes`.
[[nodiscard]] Result<QByteArray> readWholeFile(const QString& path, qint64 limitBytes);

/// Replaces or creates a file in one step: the bytes go to a temporary neighbour, are flushed to the disk and
/// take the file's name. On failure (Unwritable, DiskFull, NotRegular) the file is its old self. The folder
/// must exist.
[[nodiscard]] Result<void> writeWholeFile(const QString& path, const QByteArray& bytes);

/// A file to be written.
struct FileContent {
    QString path;
    QByteArray bytes;
};

/// Writes several files that belong together: all of them are prepared, down to the disk, before the first
/// takes its name, so that a full disk or a refused folder changes none of them. Each is its old or its new
/// self.
[[nodiscard]] Result<void> writeWholeFiles(const std::vector<FileContent>& files);

/// Why `path` could not be written or made, from the system's error number: DiskFull or Unwritable.
[[nodiscard]] Failure writeFailure(const QString& path, int error);

} // namespace quarvel
