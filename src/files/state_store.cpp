#include "files/state_store.h"

#include "files/lookup.h"
#include "files/whole_copy.h"
#include "files/whole_file.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr qint64 maxStateBytes = qint64{64} << 20;
constexpr int maxSetAside = 1000;

/// Renames a file to the first free name with a number; false when it could not.
bool renameToNumbered(const QString& path) {
    for (int number = 1; number <= maxSetAside; ++number) {
        const QString target = path + u".aside-%1"_s.arg(number);
        if (isThere(target).valueOr(true)) continue;
        if (!moveToFreeName(path, target)) return false;
        if (!isThere(path).valueOr(true)) return true;
    }
    return false;
}

} // namespace

StateStore::StateStore(QString folder, FolderAccess access, Report report)
    : folder_(std::move(folder)), access_(access), report_(std::move(report)) {}

QByteArray StateStore::read(const StateName& name) {
    const std::scoped_lock lock(inUse_);
    const Known& known = known_[name.name];
    return known.notKept ? *known.notKept : onDisk(name);
}

QByteArray StateStore::readFromDisk(const StateName& name) {
    const std::scoped_lock lock(inUse_);
    return onDisk(name);
}

QByteArray StateStore::onDisk(const StateName& name) {
    Known& known = known_[name.name];
    known.looked = true;
    if (!known.usable) return {};
    const Result<QByteArray> bytes = readWholeFile(pathOf(name), maxStateBytes);
    if (!bytes) {
        if (bytes.failure().fault != Fault::NotFound) leaveOrSetAside(name, bytes.failure());
        return {};
    }
    std::optional<QByteArray> content = stateFileContent(name, bytes.value());
    if (content) return *std::move(content);
    leaveOrSetAside(name, {Fault::Damaged, pathOf(name), {}});
    return {};
}

Kept StateStore::write(const StateName& name, const QByteArray& content) {
    const std::scoped_lock lock(inUse_);
    if (!known_[name.name].looked)
        static_cast<void>(onDisk(name)); // lest a file be replaced that nobody could use
    Known& known = known_[name.name];
    const Result<void> written = writeFile(name, content);
    known.notKept = written ? std::nullopt : std::optional(content);
    if (!written) reportNotKept(written.failure());
    return written ? Kept::Yes : Kept::No;
}

Result<void> StateStore::writeFile(const StateName& name, const QByteArray& content) const {
    if (!known_.at(name.name).usable) return Failure{Fault::Unwritable, pathOf(name), {}};
    if (Result<void> made = makeFolder(folder_, access_); !made) return made;
    const Result<Written> written = writeWholeFile(pathOf(name), stateFileBytes(name, content));
    return written ? Result<void>() : written.failure();
}

void StateStore::leaveOrSetAside(const StateName& name, const Failure& why) {
    // What cannot be read now is perhaps as good as ever: the next run may have it.
    const bool mayBeGood = why.fault == Fault::Unreadable || why.fault == Fault::ReadFailed;
    known_[name.name].usable = !mayBeGood && renameToNumbered(pathOf(name));
    if (!known_[name.name].usable) return reportNotKept(why);
    if (report_) report_(StateTrouble::SetAside, why);
}

void StateStore::reportNotKept(const Failure& why) {
    if (!reportedNotKept_ && report_) report_(StateTrouble::NotKept, why);
    reportedNotKept_ = true;
}

} // namespace quarvel
