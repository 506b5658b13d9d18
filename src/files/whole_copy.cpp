#include "files/whole_copy.h"

#include "files/descriptor.h"
#include "files/lookup.h"
#include "files/system_error.h"
#include "files/system_name.h"
#include "files/whole_file.h"

#include <QByteArray>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quarvel {
namespace {

constexpr qint64 largestCopiedFile = qint64{1} << 30; // a file is held in memory while it is copied

/// For file systems that cannot rename without replacing: 0, or the system's error number.
int moveStepByStep(const QByteArray& from, const QByteArray& to) {
    struct stat info {};
    if (::lstat(to.constData(), &info) == 0) return EEXIST;
    if (::lstat(from.constData(), &info) != 0) return errno;
    // A folder takes the place of nothing but an empty folder.
    if (S_ISDIR(info.st_mode)) return ::rename(from.constData(), to.constData()) == 0 ? 0 : errno;
    if (::link(from.constData(), to.constData()) != 0) return errno;
    ::unlink(from.constData());
    return 0;
}

} // namespace

Result<void> copyWholeFile(const QString& from, const QString& to) {
    const Result<QByteArray> bytes = readWholeFile(from, largestCopiedFile);
    if (!bytes) return bytes.failure();
    return writeNewFile(to, bytes.value());
}

Result<void> copyWholeFolder(const QString& from, const QString& to) {
    const Result<QStringList> names = entryNames(from);
    if (!names) return names.failure();
    if (::mkdir(systemName(to).constData(), 0777) != 0) return writeFailure(to, errno);
    for (const QString& name : names.value()) {
        const QString source = from + u'/' + name;
        const QString target = to + u'/' + name;
        struct stat info {};
        if (::lstat(systemName(source).constData(), &info) != 0) return readFailure(source, errno);
        if (Result<void> copied =
                S_ISDIR(info.st_mode) ? copyWholeFolder(source, target) : copyWholeFile(source, target);
            !copied)
            return copied;
    }
    flushFolder(to);
    return {};
}

Result<void> moveToFreeName(const QString& from, const QString& to) {
    const QByteArray source = systemName(from);
    const QByteArray target = systemName(to);
    int error = 0;
    if (::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) != 0)
        error = errno;
    if (error == EINVAL || error == ENOSYS) error = moveStepByStep(source, target);
    if (error != 0 && error != EEXIST) return writeFailure(to, error);
    return {};
}

void flushFolder(const QString& folder) {
    const Descriptor opened(::open(systemName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.number() >= 0) ::fsync(opened.number());
}

} // namespace quarvel
