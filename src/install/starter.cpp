#include "install/starter.h"

#include "files/lookup.h"
#include "files/make_folder.h"
#include "files/staging_folder.h"
#include "files/whole_copy.h"
#include "files/whole_file.h"

#include <QFileInfo>
#include <QStringList>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

/// What the starter has and the program folder lacks.
struct Missing {
    QStringList files;
    bool archive = false;
    [[nodiscard]] bool any() const { return archive || !files.isEmpty(); }
};

Result<Missing> findMissing(const ProgramFolder& folder) {
    Missing missing;
    const Result<bool> archive = isTaken(folder.path, archiveName());
    if (!archive) return archive.failure();
    missing.archive = !archive.value();
    const Result<QStringList> files = listFiles(folder.starter);
    if (!files) {
        // An archive without a starter is what somebody else laid out: nothing is missing.
        const bool complete = !missing.archive && files.failure().fault == Fault::NotFound;
        return complete ? Result<Missing>(missing) : files.failure();
    }
    for (const QString& file : files.value()) {
        const Result<bool> taken = isTaken(folder.path, file);
        if (!taken) return taken.failure();
        if (!taken.value()) missing.files.append(file);
    }
    return missing;
}

/// Makes the missing things one after the other in a staging folder, and moves each to its place.
class LayingOut {
public:
    LayingOut(const ProgramFolder& folder, const StagingFolder& staging)
        : folder_(folder), staging_(staging) {}

    void layOut(const Missing& missing) {
        for (const QString& name : missing.files)
            place(name, copyWholeFile(folder_.starter + u'/' + name, staged(name)));
        if (missing.archive)
            place(archiveName(),
                  resolvePath(folder_.starter, archiveName()).then([&](const QString& archive) {
                      return copyWholeFolder(archive, staged(archiveName()));
                  }));
        flushFolder(folder_.path);
    }
    [[nodiscard]] const Result<void>& result() const { return result_; }

private:
    [[nodiscard]] QString staged(const QString& name) const { return staging_.path() + u'/' + name; }

    void place(const QString& name, Result<void> copied) {
        if (copied) copied = moveToFreeName(staged(name), folder_.path + u'/' + name);
        if (copied || !result_) return;
        // The user knows of no staging folder: told is the place that was meant.
        Failure failure = copied.failure();
        failure.path.replace(staging_.path(), folder_.path);
        result_ = std::move(failure);
    }

    const ProgramFolder& folder_;
    const StagingFolder& staging_;
    Result<void> result_;
};

} // namespace

Result<void> layOutProgramFolder(const ProgramFolder& folder) {
    if (folder.starter.isEmpty()) return {};
    StagingFolder::clearLeftOvers(folder.path);
    const Result<Missing> missing = findMissing(folder);
    if (!missing) return missing.failure();
    if (!missing.value().any()) return {};
    // Those above it are made for the user alone, as is the custom for the folder of the user's data.
    if (Result<void> made = makeFolder(QFileInfo(folder.path).path(), FolderAccess::OwnerOnly); !made)
        return made;
    if (Result<void> made = makeFolder(folder.path, FolderAccess::Usual); !made) return made;
    const auto staging = StagingFolder::make(folder.path);
    if (!staging) return staging.failure();
    LayingOut laying(folder, *staging.value());
    laying.layOut(missing.value());
    return laying.result();
}

} // namespace quarvel
