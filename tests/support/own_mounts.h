#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <cstdio>
#include <functional>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quarvel {

/// What a child process, in which the test mounts what it likes, made of the test.
enum class InOwnMounts { Passed, Failed, NotAllowed };

namespace own_mounts {

/// Leaves the machine's mounts alone; for root only.
inline bool enter() {
    return ::unshare(CLONE_NEWNS) == 0 && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

} // namespace own_mounts

/// Runs a test, which returns an empty text or what is wrong, in such a child.
inline InOwnMounts inOwnMounts(const std::function<QString()>& test) {
    const pid_t child = ::fork();
    if (child == 0) {
        if (!own_mounts::enter()) ::_exit(2);
        const QByteArray wrong = test().toLocal8Bit();
        std::fprintf(stderr, "%s%s", wrong.constData(), wrong.isEmpty() ? "" : "\n");
        ::_exit(wrong.isEmpty() ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    const bool allowed = !WIFEXITED(status) || WEXITSTATUS(status) != 2;
    if (!allowed) return InOwnMounts::NotAllowed;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? InOwnMounts::Passed : InOwnMounts::Failed;
}

/// A file system in memory, of a size in bytes, on a folder that is there.
inline bool mountInMemory(const QString& folder, int bytes) {
    const QByteArray size = "size=" + QByteArray::number(bytes);
    return ::mount("none", QFile::encodeName(folder).constData(), "tmpfs", 0, size.constData()) == 0;
}

} // namespace quarvel
