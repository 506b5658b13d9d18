#include "files/folder_locks.h"

#include "files/system_name.h"

#include <QDeadlineTimer>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace quarvel {
namespace {

constexpr int longestWaitMilliseconds = 500;
constexpr unsigned pauseMicroseconds = 2000;

/// False when another program still holds the lock at the deadline.
bool lock(int folder, const QDeadlineTimer& deadline) {
    while (::flock(folder, LOCK_EX | LOCK_NB) != 0) {
        if (errno == EINTR) continue;
        if (errno != EWOULDBLOCK) return true; // no locks here
        if (deadline.hasExpired()) return false;
        ::usleep(pauseMicroseconds);
    }
    return true;
}

} // namespace

FolderLocks::FolderLocks(const QStringList& folders) {
    const QDeadlineTimer deadline(longestWaitMilliseconds);
    for (const QString& folder : folders) {
        locked_.push_back(std::make_unique<Descriptor>(
            ::open(systemName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
        const int opened = locked_.back()->number();
        // A folder that may not be listed may still be written to.
        if (opened < 0 && errno == EACCES) continue;
        held_ = opened >= 0 && lock(opened, deadline);
        if (!held_) return;
    }
}

} // namespace quarvel
