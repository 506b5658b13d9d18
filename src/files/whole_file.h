#pragma once

#include "files/result.h"

#include <QByteArray>
#include <QString>
#include <functional>
#include <vector>

namespace quarvel {

/// Reads a regular file whole. Nothing but a regular file is ever read, so that a pipe or a device under
/// a file's name cannot hold the program up. Fails with NotFound, NotRegular, Unreadable, or TooLarge above
/// `limitBytes` and above what there is memory for.
[[nodiscard]] Result<QByteArray> readWholeFile(const QString& path, qint64 limitBytes);

/// A file to be written.
struct FileContent {
    QString path;
    QByteArray bytes;
};

/// Is told the path of a file that is about to be replaced, links followed, while nobody else saves in its
/// folder: its old self can still be kept elsewhere. What becomes of that does not stop the save.
using BeforeReplacing = std::function<void(const QString& path)>;

/// Replaces or creates files that belong together. All of them are made in a hidden folder beside their
/// places, down to the disk, before the first takes its name, so that a full disk or a refused folder changes
/// none of them; when one cannot take its name, those before it are put back as far as the file system keeps
/// second names. Each is its old or its new self at any moment, and of two programs that write the same files
/// at once, all those of the later one stay. New files have the user's usual mode, others keep theirs; a link
/// stays and what it leads to is written. The folders must exist. Fails with Unwritable, DiskFull, or
/// NotRegular (also of a link to nothing). `beforeReplacing` is called for each file that is there already,
/// when all are made and before the first takes its name.
[[nodiscard]] Result<void> writeWholeFiles(const std::vector<FileContent>& files,
                                           const BeforeReplacing& beforeReplacing = {});

/// The same for a single file.
[[nodiscard]] Result<void> writeWholeFile(const QString& path, const QByteArray& bytes,
                                          const BeforeReplacing& beforeReplacing = {});

/// Writes a file that is not there yet, down to the disk, though not in one step: for a temporary place.
/// Fails with Unwritable or DiskFull.
[[nodiscard]] Result<void> writeNewFile(const QString& path, const QByteArray& bytes);

/// Makes a write beyond the process's file-size limit fail as one on a full disk does, where the system would
/// end the process. For the beginning of a program.
void outliveSizeLimits();

/// Why `path` could not be written or made, from the system's error number: DiskFull, BadName (too long) or
/// Unwritable.
[[nodiscard]] Failure writeFailure(const QString& path, int error);

} // namespace quarvel
