#pragma once

#include "files/whole_file.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTest>
#include <sys/resource.h>

namespace quarvel {

inline void put(const QString& path, const QByteArray& bytes = {}) {
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), qPrintable(path));
}

inline QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

/// While it lives, files cannot grow beyond a size: a write fails in its middle, as on a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        outliveSizeLimits();
        ::getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit limit{bytes, old_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &old_); }
    Q_DISABLE_COPY(FileSizeLimit)

private:
    rlimit old_{};
};

} // namespace quarvel
