#include "files/folder_locks.h"
#include "files/lookup.h"
#include "files/staged_file.h"
#include "files/staging_folder.h"
#include "files/system_error.h"
#include "files/system_name.h"
#include "files/whole_copy.h"
#include "files/whole_file.h"

#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <map>
#include <memory>
#include <ranges>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

/// A path without links, by the one name that each folder has.
Result<QString> withoutLinks(const QString& path, const QString& known) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(systemName(path).constData(), nullptr),
                                                           &std::free);
    if (real) return nameFromSystem(real.get());
    return writeFailure(known, errno);
}

/// Where the file that the user names `path` is or will be. A link stays, and what it leads to is written;
/// one to nothing is refused.
Result<QString> placeOf(const QString& path) {
    struct stat info {};
    const int error = ::lstat(systemName(path).constData(), &info) == 0 ? 0 : errno;
    if (error != 0 && error != ENOENT) return writeFailure(path, error);
    if (error == 0 && S_ISLNK(info.st_mode)) {
        const Result<QString> led = withoutLinks(path, path);
        const bool nowhere =
            !led && led.failure().fault == Fault::Unwritable && !isFolder(path).valueOr(true);
        return nowhere ? Failure{Fault::NotRegular, path, {}} : led;
    }
    const QFileInfo parts(path);
    return withoutLinks(parts.path(), path).then([&](const QString& folder) {
        return Result<QString>(folder + u'/' + parts.fileName());
    });
}

/// Files that are all made first and then all take their names.
class Writing {
public:
    Result<void> make(const FileContent& content) {
        const Result<QString> place = placeOf(content.path);
        if (!place) return place.failure();
        const QString folder = QFileInfo(place.value()).path();
        if (!stagings_.contains(folder)) {
            StagingFolder::clearLeftOvers(folder);
            auto made = StagingFolder::make(folder);
            if (!made) return Failure{made.failure().fault, content.path, {}};
            stagings_.emplace(folder, made.take());
        }
        files_.emplace_back(content.path, place.value(), *stagings_.at(folder), files_.size());
        return files_.back().make(content.bytes);
    }

    Result<Written> takeNames(const std::vector<FileContent>& contents,
                              const BeforeReplacing& beforeReplacing) {
        QStringList folders;
        for (const auto& [folder, staging] : stagings_) folders.append(folder);
        const FolderLocks locks(folders);
        if (!locks.held()) return Failure{Fault::WriteFailed, folders.first(), {}};
        if (const Result<void> kept = keepOld(); !kept) return kept.failure();
        Written written;
        for (std::size_t i = 0; i < files_.size(); ++i) {
            if (files_[i].replaces() && beforeReplacing) beforeReplacing(contents[i]);
            if (files_[i].hasOtherNames()) written.separated.append(files_[i].known());
        }
        for (StagedFile& file : files_)
            if (const Result<void> taken = file.takeName(); !taken) return putBack(taken.failure());
        for (const QString& folder : folders) flushFolder(folder);
        return written;
    }

private:
    /// A single file needs no copy of its old self: it is replaced or it is not.
    Result<void> keepOld() {
        for (StagedFile& file : files_) {
            if (Result<void> looked = file.lookAgain(); !looked) return looked;
            if (files_.size() == 1) continue;
            if (Result<void> kept = file.keepOld(); !kept) return kept;
        }
        return {};
    }

    /// Undoes what was done, and says what could not be undone.
    Failure putBack(const Failure& failure) {
        if (files_.size() == 1) return failure;
        QStringList renewed;
        std::vector<StagedFile*> unsure; // whose old selves are to be kept
        std::for_each(files_.rbegin(), files_.rend(), [&](StagedFile& file) {
            const bool back = file.takeNameBack();
            if (!back) renewed.prepend(file.known());
            if (file.replaces() && (!back || file.isInDoubt())) unsure.push_back(&file);
        });
        // Only now: keeping moves them.
        QStringList oldSelves;
        for (const StagedFile* file : unsure)
            if (const QString kept = file->staging().keepOldFolder(); !oldSelves.contains(kept))
                oldSelves.prepend(kept);
        if (renewed.isEmpty()) return failure;
        return {Fault::PartlyReplaced, renewed.join(u'\n'), oldSelves.join(u'\n')};
    }

    std::map<QString, std::unique_ptr<StagingFolder>> stagings_; // by the folder that they are in
    std::vector<StagedFile> files_;
};

} // namespace

void outliveSizeLimits() { std::signal(SIGXFSZ, SIG_IGN); }

Result<Written> writeWholeFiles(const std::vector<FileContent>& files,
                                const BeforeReplacing& beforeReplacing) {
    if (files.empty()) return Written();
    Writing writing;
    for (const FileContent& content : files)
        if (const Result<void> made = writing.make(content); !made) return made.failure();
    return writing.takeNames(files, beforeReplacing);
}

Result<void> writeNewFile(const QString& path, const QByteArray& bytes) {
    const int error = writeNewLike(path, bytes, nullptr);
    return error == 0 ? Result<void>() : writeFailure(path, error);
}

Result<Written> writeWholeFile(const QString& path, const QByteArray& bytes,
                               const BeforeReplacing& beforeReplacing) {
    return writeWholeFiles({{path, bytes}}, beforeReplacing);
}

} // namespace quarvel
