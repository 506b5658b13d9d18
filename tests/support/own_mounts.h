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

/// Leaves the machine's mounts alone; a user who is not root becomes root among its own.
inline bool enter() {
    const uid_t user = ::getuid();
    const gid_t group = ::getgid();
    const bool root = user == 0 && ::unshare(CLONE_NEWNS) == 0;
    if (!root && ::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
    const auto tell = [](const char* path, const QByteArray& text) {
        QFile file(QFile::decodeName(path));
        return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(text) == text.size();
    };
    if (!root && !(tell("/proc/self/setgroups", "deny") &&
                   tell("/proc/self/uid_map", "0 " + QByteArray::number(user) + " 1") &&
                   tell("/proc/self/gid_map", "0 " + QByteArray::number(group) + " 1")))
        return false;
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
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

inline bool makeReadOnly(const QString& folder) {
    return ::mount("none", QFile::encodeName(folder).constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) ==
           0;
}

/// Puts a file that cannot be replaced over another.
inline bool nailDown(const QString& file) {
    const QByteArray path = QFile::encodeName(file);
    return ::mount(path.constData(), path.constData(), nullptr, MS_BIND, nullptr) == 0;
}

} // namespace quarvel
