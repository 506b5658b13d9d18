#pragma once

#include "files/result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

namespace quarvel {

/// Reads a regular file whole. Nothing but a regular file is ever read, so that a pipe or a device under
/// a file's name cannot hold the program up. Fails with the faults of readFailure, NotRegular, or TooLarge
/// above `limitBytes` and above what there is memory for.
[[nodiscard]] Result<QByteArray> readWholeFile(const QString& path, qint64 limitBytes);

/// A file to be written.
struct FileContent {
    QString path;
    QByteArray bytes;
};

/// Is told of a file that is about to be replaced and what it will be, while nobody else saves in its folder:
/// its old self can still be kept elsewhere. What becomes of that does not stop the save.
using BeforeReplacing = std::function<void(const FileContent& next)>;

/// What a save that succeeded has to tell all the same.
struct Written {
    QStringList separated; ///< files that had other names (hard links) besides, which keep the old selves
};

/// Replaces or creates files that belong together. All of them are made in a hidden folder beside their
/// places, down to the disk, before the first takes its name, so that a full disk or a refused folder changes
/// none of them. Then all old selves are kept there, by second names or, where there are none, as copies;
/// when one file cannot take its name, those before it are put back. Should even that fail, the save fails
/// with PartlyReplaced, and the old selves stay in a folder that nobody clears. Each is its old or its new
/// self at any moment, and of two programs that write the same files at once, all those of the later one
/// stay. New files have the user's usual mode, others keep theirs, and their owner and group as far as the
/// user may give them; a link stays and what it leads to is written. The folders must exist. Fails with the
/// faults of writeFailure, and with NotRegular (also of a link to nothing). `beforeReplacing` is called for
/// each file that is there already, when all are made and before the first takes its name.
[[nodiscard]] Result<Written> writeWholeFiles(const std::vector<FileContent>& files,
                                              const BeforeReplacing& beforeReplacing = {});

/// The same for a single file.
[[nodiscard]] Result<Written> writeWholeFile(const QString& path, const QByteArray& bytes,
                                             const BeforeReplacing& beforeReplacing = {});

/// Writes a file that is not there yet, down to the disk, though not in one step: for a temporary place.
/// Fails with the faults of writeFailure.
[[nodiscard]] Result<void> writeNewFile(const QString& path, const QByteArray& bytes);

/// Makes a write beyond the process's file-size limit fail as one on a full disk does, where the system would
/// end the process. For the beginning of a program.
void outliveSizeLimits();

} // namespace quarvel
