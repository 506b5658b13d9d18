#include "files/whole_file.h"

#include "files/descriptor.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace quarvel {
namespace {

Failure readFailure(const QString& path, int error) {
    return {error == ENOENT || error == ENOTDIR ? Fault::NotFound : Fault::Unreadable, path, {}};
}

/// Brings a file's new content to the disk under a temporary name. A file that is let go without being
/// committed leaves no trace.
Result<void> prepare(QSaveFile& file, const FileContent& content) {
    const QFileInfo info(content.path);
    if (info.exists() && !info.isFile()) return Failure{Fault::NotRegular, content.path, {}};
    file.setDirectWriteFallback(false);
    errno = 0;
    if (!file.open(QIODevice::WriteOnly)) return writeFailure(content.path, errno);
    const bool written = file.write(content.bytes) == content.bytes.size() && file.flush();
    if (!written || ::fsync(file.handle()) != 0) return writeFailure(content.path, errno);
    return {};
}

} // namespace

Failure writeFailure(const QString& path, int error) {
    const bool full = error == ENOSPC || error == EDQUOT || error == EFBIG;
    return {full ? Fault::DiskFull : Fault::Unwritable, path, {}};
}

Result<QByteArray> readWholeFile(const QString& path, qint64 limitBytes) {
    // Opened without blocking: a pipe without a writer would otherwise wait for one before it can be refused.
    const Descriptor file(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (file.number() < 0) return readFailure(path, errno);
    struct stat info {};
    if (::fstat(file.number(), &info) != 0) return readFailure(path, errno);
    if (!S_ISREG(info.st_mode)) return Failure{Fault::NotRegular, path, {}};
    if (info.st_size > limitBytes) return Failure{Fault::TooLarge, path, {}};

    QByteArray bytes(static_cast<qsizetype>(info.st_size), Qt::Uninitialized);
    qsizetype got = 0;
    while (got < bytes.size()) {
        const ssize_t count =
            ::read(file.number(), bytes.data() + got, static_cast<size_t>(bytes.size() - got));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return readFailure(path, errno);
        if (count == 0) break;
        got += count;
    }
    bytes.truncate(got);
    return bytes;
}

Result<void> writeWholeFile(const QString& path, const QByteArray& bytes) {
    return writeWholeFiles({{path, bytes}});
}

Result<void> writeWholeFiles(const std::vector<FileContent>& files) {
    std::vector<std::unique_ptr<QSaveFile>> prepared;
    for (const FileContent& content : files) {
        prepared.push_back(std::make_unique<QSaveFile>(content.path));
        if (const Result<void> done = prepare(*prepared.back(), content); !done) return done.failure();
    }
    for (const auto& file : prepared) {
        errno = 0;
        if (!file->commit()) return writeFailure(file->fileName(), errno);
    }
    return {};
}

} // namespace quarvel
