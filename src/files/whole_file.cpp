#include "files/whole_file.h"

#include "files/descriptor.h"
#include "files/system_error.h"
#include "files/system_name.h"

#include <cerrno>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

namespace quarvel {

Result<QByteArray> readWholeFile(const QString& path, qint64 limitBytes) {
    // Opened without blocking: a pipe without a writer would otherwise wait for one before it can be refused.
    const Descriptor file(::open(systemName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (file.number() < 0) return readFailure(path, errno);
    struct stat info {};
    if (::fstat(file.number(), &info) != 0) return readFailure(path, errno);
    if (!S_ISREG(info.st_mode)) return Failure{Fault::NotRegular, path, {}};
    if (info.st_size > limitBytes) return Failure{Fault::TooLarge, path, {}};

    QByteArray bytes;
    try {
        bytes.resize(static_cast<qsizetype>(info.st_size));
    } catch (const std::bad_alloc&) {
        return Failure{Fault::TooLarge, path, {}}; // for what memory is left
    }
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

} // namespace quarvel
