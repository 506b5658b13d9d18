#include "files/staged_file.h"

#include "files/descriptor.h"
#include "files/lookup.h"
#include "files/system_error.h"
#include "files/system_name.h"
#include "files/whole_file.h"

#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quarvel {
namespace {

constexpr mode_t usualMode = 0666; // the user's mask takes its part away
constexpr mode_t modeBits = 07777;
constexpr unsigned fromOthersToGroup = 3; // bits
constexpr auto keepId = static_cast<uid_t>(-1);
constexpr qint64 largestCopied = qint64{1} << 30; // held in memory meanwhile

/// The regular file at `place`, none where nothing is.
Result<std::optional<struct stat>> regularFileAt(const QString& place) {
    const QByteArray name = systemName(place);
    struct stat info {};
    if (::lstat(name.constData(), &info) != 0) {
        if (errno == ENOENT) return std::optional<struct stat>();
        return writeFailure(place, errno);
    }
    if (!S_ISREG(info.st_mode)) return Failure{Fault::NotRegular, place, {}};
    if (::access(name.constData(), W_OK) != 0) return writeFailure(place, errno);
    return std::optional<struct stat>(info);
}

/// As far as the file system has modes, and the user may give files away.
void makeLike(int file, const struct stat& other) {
    struct stat made {};
    if (::fstat(file, &made) != 0) return;
    const bool owner = made.st_uid == other.st_uid || ::fchown(file, other.st_uid, keepId) == 0;
    const bool group = made.st_gid == other.st_gid || ::fchown(file, keepId, other.st_gid) == 0;
    mode_t mode = other.st_mode & modeBits;
    if (!owner) mode &= ~static_cast<mode_t>(S_ISUID);
    // What was allowed to the group that it cannot have is no other group's: this one is anybody.
    if (!group)
        mode = (mode & ~static_cast<mode_t>(S_ISGID | S_IRWXG)) | ((mode & S_IRWXO) << fromOthersToGroup);
    ::fchmod(file, mode);
}

/// 0, or the system's error number. What has come to the name meanwhile stays, where the file system can.
int moveToFree(const QByteArray& from, const QByteArray& to) {
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0) return 0;
    if (errno != EINVAL && errno != ENOSYS) return errno;
    return ::rename(from.constData(), to.constData()) == 0 ? 0 : errno;
}

int move(const QByteArray& from, const QByteArray& to) {
    return ::rename(from.constData(), to.constData()) == 0 ? 0 : errno;
}

} // namespace

int writeNewLike(const QString& path, const QByteArray& bytes, const struct stat* other) {
    const Descriptor file(
        ::open(systemName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, usualMode));
    if (file.number() < 0) return errno;
    if (other != nullptr) makeLike(file.number(), *other);
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t count =
            ::write(file.number(), bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
        if (count < 0 && errno != EINTR) return errno;
        done += std::max<ssize_t>(count, 0);
    }
    return ::fsync(file.number()) == 0 ? 0 : errno;
}

StagedFile::StagedFile(QString known, QString place, StagingFolder& staging, std::size_t number)
    : known_(std::move(known)), place_(std::move(place)), staging_(staging),
      new_(staging.path() + u'/' + QString::number(number)),
      old_(staging.oldFolder() + u'/' + QFileInfo(place_).fileName()) {}

Result<void> StagedFile::make(const QByteArray& bytes) {
    const Result<std::optional<struct stat>> old = regularFileAt(place_);
    if (!old) return Failure{old.failure().fault, known_, {}};
    const int error = writeNewLike(new_, bytes, old.value() ? &*old.value() : nullptr);
    return error == 0 ? Result<void>() : writeFailure(known_, error);
}

Result<void> StagedFile::lookAgain() {
    const Result<std::optional<struct stat>> old = regularFileAt(place_);
    if (!old) return Failure{old.failure().fault, known_, {}};
    replaces_ = old.value().has_value();
    otherNames_ = replaces_ && old.value()->st_nlink > 1;
    return {};
}

Result<void> StagedFile::keepOld() {
    if (!replaces_) return {};
    if (const Result<void> made = staging_.makeOldFolder(); !made)
        return Failure{made.failure().fault, known_, {}};
    const QByteArray place = systemName(place_);
    struct stat info {};
    if (::link(place.constData(), systemName(old_).constData()) == 0) return {};
    if (::lstat(place.constData(), &info) != 0) return writeFailure(known_, errno);
    const Result<QByteArray> bytes = readWholeFile(place_, largestCopied);
    if (!bytes) return Failure{bytes.failure().fault, known_, {}};
    const int error = writeNewLike(old_, bytes.value(), &info);
    return error == 0 ? Result<void>() : writeFailure(known_, error);
}

Result<void> StagedFile::takeName() {
    const QByteArray from = systemName(new_);
    const QByteArray to = systemName(place_);
    const int error = replaces_ ? move(from, to) : moveToFree(from, to);
    // A network share may say that it failed when it did not: what has left its old name has the new one.
    const Result<bool> left = error == 0 ? Result<bool>(false) : isThere(new_);
    inDoubt_ = !left;
    taken_ = left && !left.value();
    return taken_ ? Result<void>() : writeFailure(known_, error);
}

bool StagedFile::takeNameBack() {
    if (!taken_) return true;
    const QByteArray place = systemName(place_);
    const bool back = replaces_ ? move(systemName(old_), place) == 0 || !isThere(old_).valueOr(true)
                                : ::unlink(place.constData()) == 0 || errno == ENOENT;
    taken_ = !back;
    return back;
}

} // namespace quarvel
