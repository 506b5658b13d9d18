#include "files/descriptor.h"
#include "files/folder_locks.h"
#include "files/staging_folder.h"
#include "files/whole_copy.h"
#include "files/whole_file.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <map>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr mode_t usualMode = 0666; // the user's mask takes its part away

/// The mode of the regular file at `path`, none where nothing is. Fails with NotRegular, or with Unwritable
/// for a file that the user may not write: it is not to be replaced behind the user's back.
Result<std::optional<mode_t>> modeOf(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    struct stat info {};
    if (::lstat(name.constData(), &info) != 0) return std::optional<mode_t>();
    if (!S_ISREG(info.st_mode)) return Failure{Fault::NotRegular, path, {}};
    if (::access(name.constData(), W_OK) != 0) return writeFailure(path, errno);
    return std::optional<mode_t>(info.st_mode & 07777U);
}

/// Writes a new file, down to the disk; 0, or the system's error number.
int writeNew(const QByteArray& name, const QByteArray& bytes, std::optional<mode_t> mode) {
    const Descriptor file(::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, usualMode));
    if (file.number() < 0) return errno;
    if (mode) ::fchmod(file.number(), *mode); // as far as the file system has modes
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t count =
            ::write(file.number(), bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
        if (count < 0 && errno != EINTR) return errno;
        done += std::max<ssize_t>(count, 0);
    }
    return ::fsync(file.number()) == 0 ? 0 : errno;
}

/// A file on its way: made in a staging folder, to take its place's name.
class StagedFile {
public:
    StagedFile(const FileContent& content, const QString& place) : content_(content), place_(place) {}

    /// Makes the file in a staging folder, in which no other has this number.
    Result<void> make(const StagingFolder& staging, std::size_t number) {
        const Result<std::optional<mode_t>> mode = modeOf(place_);
        if (!mode) return mode.failure();
        existed_ = mode.value().has_value();
        staged_ = QFile::encodeName(staging.path() + u'/' + QString::number(number));
        const int error = writeNew(staged_, content_.bytes, mode.value());
        return error == 0 ? Result<void>() : writeFailure(content_.path, error);
    }

    /// Where there is nothing to replace, nothing is called.
    void announce(const BeforeReplacing& beforeReplacing) const {
        if (existed_ && beforeReplacing) beforeReplacing(place_);
    }

    Result<void> takeName() {
        const QByteArray place = QFile::encodeName(place_);
        // A second name for the old file. Where there are none, takeNameBack() cannot help.
        const bool kept = existed_ && ::link(place.constData(), old().constData()) == 0;
        if (::rename(staged_.constData(), place.constData()) != 0) return writeFailure(content_.path, errno);
        canGoBack_ = kept || !existed_;
        return {};
    }

    void takeNameBack() const {
        const QByteArray place = QFile::encodeName(place_);
        if (!canGoBack_) return;
        existed_ ? ::rename(old().constData(), place.constData()) : ::unlink(place.constData());
    }

private:
    [[nodiscard]] QByteArray old() const { return staged_ + ".old"; }

    const FileContent& content_;
    QString place_;
    QByteArray staged_;
    bool existed_ = false;
    bool canGoBack_ = false;
};

/// Files that are all made first and then all take their names.
class Writing {
public:
    Result<void> make(const FileContent& content) {
        // A link stays a link; one to nothing has no canonical path, and is then refused.
        const QFileInfo info(content.path);
        const QString resolved = info.isSymLink() ? info.canonicalFilePath() : QString();
        const QFileInfo place(resolved.isEmpty() ? content.path : resolved);
        const QString folder =
            QFileInfo(place.path()).canonicalFilePath(); // one name for each to lock it once
        if (folder.isEmpty()) return Failure{Fault::Unwritable, content.path, {}};
        if (!stagings_.contains(folder)) {
            StagingFolder::clearLeftOvers(folder);
            auto made = StagingFolder::make(folder);
            if (!made) return Failure{made.failure().fault, content.path, {}};
            stagings_.emplace(folder, made.take());
        }
        files_.emplace_back(content, folder + u'/' + place.fileName());
        return files_.back().make(*stagings_.at(folder), files_.size());
    }

    Result<void> takeNames(const BeforeReplacing& beforeReplacing) {
        QStringList folders;
        for (const auto& [folder, staging] : stagings_) folders.append(folder);
        const FolderLocks locks(folders);
        if (!locks.held()) return Failure{Fault::Unwritable, folders.first(), {}};
        for (const StagedFile& file : files_) file.announce(beforeReplacing);
        for (auto file = files_.begin(); file != files_.end(); ++file) {
            Result<void> taken = file->takeName();
            if (taken) continue;
            while (file != files_.begin()) (--file)->takeNameBack();
            return taken;
        }
        for (const QString& folder : folders) flushFolder(folder);
        return {};
    }

private:
    std::map<QString, std::unique_ptr<StagingFolder>> stagings_; // by the folder that they are in
    std::vector<StagedFile> files_;
};

} // namespace

Failure writeFailure(const QString& path, int error) {
    if (error == ENAMETOOLONG) return {Fault::BadName, path, {}};
    const bool full = error == ENOSPC || error == EDQUOT || error == EFBIG;
    return {full ? Fault::DiskFull : Fault::Unwritable, path, {}};
}

void outliveSizeLimits() { std::signal(SIGXFSZ, SIG_IGN); }

Result<void> writeWholeFiles(const std::vector<FileContent>& files, const BeforeReplacing& beforeReplacing) {
    if (files.empty()) return {};
    Writing writing;
    for (const FileContent& content : files)
        if (Result<void> made = writing.make(content); !made) return made;
    return writing.takeNames(beforeReplacing);
}

Result<void> writeNewFile(const QString& path, const QByteArray& bytes) {
    const int error = writeNew(QFile::encodeName(path), bytes, std::nullopt);
    return error == 0 ? Result<void>() : writeFailure(path, error);
}

Result<void> writeWholeFile(const QString& path, const QByteArray& bytes,
                            const BeforeReplacing& beforeReplacing) {
    return writeWholeFiles({{path, bytes}}, beforeReplacing);
}

} // namespace quarvel
