#include "files/staging_folder.h"

#include "files/lookup.h"
#include "files/system_error.h"
#include "files/system_name.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

const QString namePrefix = u".quarvel-new-"_s;
const QString shownPrefix = u"Quarvel-old-"_s;
constexpr int randomLetters = 6; // behind the prefix
constexpr int attempts = 100;

int openFolder(const QString& path) {
    return ::open(systemName(path).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

void removeFolder(const QString& path) {
    // Twice, lest a failure that passes leave anything; what is left all the same is cleared the next time.
    for (int attempt = 0; attempt < 2; ++attempt) {
        std::error_code left;
        std::filesystem::remove_all(systemName(path).toStdString(), left);
        if (!left) return;
    }
}

QString oldFolderIn(const QString& staging) { return staging + u"/.old"_s; }

/// Whether a folder holds a file that exists nowhere else, or may.
bool holdsLastCopies(const QString& folder) {
    const Result<QStringList> names = entryNames(folder);
    if (!names) return names.failure().fault != Fault::NotFound;
    return std::any_of(names.value().begin(), names.value().end(), [&](const QString& name) {
        struct stat info {};
        const bool seen = ::lstat(systemName(folder + u'/' + name).constData(), &info) == 0;
        return !seen || info.st_nlink == 1;
    });
}

/// Moves the old selves of a staging folder out of it, to where the user sees them. Where they then are.
QString bringToLight(const QString& staging) {
    const QString hidden = oldFolderIn(staging);
    QString shown = staging;
    shown.replace(shown.lastIndexOf(namePrefix), namePrefix.size(), shownPrefix);
    const bool moved = ::rename(systemName(hidden).constData(), systemName(shown).constData()) == 0;
    return moved || !isThere(hidden).valueOr(true) ? shown : hidden;
}

} // namespace

StagingFolder::StagingFolder(const QString& path) : path_(path), locked_(openFolder(path)) {}

StagingFolder::~StagingFolder() {
    if (kept_ != oldFolder()) removeFolder(path_);
}

Result<std::unique_ptr<StagingFolder>> StagingFolder::make(const QString& folder) {
    for (int attempt = 0; attempt < attempts; ++attempt) {
        QByteArray name = systemName(folder + u'/' + namePrefix + u"XXXXXX"_s);
        if (::mkdtemp(name.data()) == nullptr) return writeFailure(folder, errno);
        std::unique_ptr<StagingFolder> made(new StagingFolder(nameFromSystem(name)));
        const int error = made->locked_.number() < 0 ? errno : 0;
        if (error != 0 && error != ENOENT) return writeFailure(folder, error);
        // Before it was locked, another process may have taken it for a left-over. On a file system without
        // locks it is nobody's to clear.
        const bool taken = ::flock(made->locked_.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
        if (error == 0 && !taken && isThere(made->path_).valueOr(false)) return made;
    }
    return Failure{Fault::WriteFailed, folder, {}};
}

QString StagingFolder::oldFolder() const { return oldFolderIn(path_); }

Result<void> StagingFolder::makeOldFolder() {
    if (::mkdir(systemName(oldFolder()).constData(), S_IRWXU) == 0 || errno == EEXIST) return {};
    return writeFailure(path_, errno);
}

QString StagingFolder::keepOldFolder() {
    if (kept_.isEmpty()) kept_ = bringToLight(path_);
    return kept_;
}

void StagingFolder::clearLeftOvers(const QString& folder) {
    const Result<QStringList> names = entryNames(folder);
    for (const QString& name : names ? names.value() : QStringList()) {
        // To the letter: by its capitals a folder of the user's may be told from one of these.
        if (!name.startsWith(namePrefix) || name.size() != namePrefix.size() + randomLetters) continue;
        const QString path = folder + u'/' + name;
        const Descriptor opened(openFolder(path));
        if (opened.number() < 0 || ::flock(opened.number(), LOCK_EX | LOCK_NB) != 0) continue;
        if (!holdsLastCopies(oldFolderIn(path)) || bringToLight(path) != oldFolderIn(path))
            removeFolder(path);
    }
}

} // namespace quarvel
