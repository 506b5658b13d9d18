#include "files/lookup.h"

#include "files/folder_reader.h"
#include "files/system_error.h"
#include "files/system_name.h"
#include "text/name_order.h"

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

QString composed(const QString& text) { return readableName(text).normalized(QString::NormalizationForm_C); }

/// A name that is nothing but a chart's extension is a chart without a name, not a hidden file.
bool isHidden(const QString& name) { return name.startsWith(u'.') && !sameName(name, u".gif"_s); }

/// A folder that is not there holds nothing.
Result<QStringList> entryNamesIfAny(const QString& folder) {
    Result<QStringList> names = entryNames(folder);
    return !names && names.failure().fault == Fault::NotFound ? QStringList() : names;
}

/// The kind bits of what has this path, links followed; none for nothing, and for a link that leads nowhere.
Result<mode_t> kindOf(const QString& path) {
    struct stat info {};
    if (::stat(systemName(path).constData(), &info) == 0) return info.st_mode & S_IFMT;
    if (meansAbsent(errno) || errno == ELOOP) return mode_t{0};
    return readFailure(path, errno);
}

Result<bool> isFile(const QString& path) {
    return kindOf(path).then([](mode_t kind) { return Result<bool>(kind == S_IFREG); });
}

} // namespace

bool sameName(const QString& left, const QString& right) {
    return QString::compare(composed(left), composed(right), Qt::CaseInsensitive) == 0;
}

Result<bool> isThere(const QString& path) {
    struct stat info {};
    if (::lstat(systemName(path).constData(), &info) == 0) return true;
    if (meansAbsent(errno)) return false;
    return readFailure(path, errno);
}

Result<bool> isFolder(const QString& path) {
    return kindOf(path).then([](mode_t kind) { return Result<bool>(kind == S_IFDIR); });
}

Result<QStringList> entryNames(const QString& folder) {
    FolderReader reader(systemName(folder));
    QStringList names;
    while (const dirent* entry = reader.next()) names.append(nameFromSystem(entry->d_name));
    if (reader.error() != 0) return readFailure(folder, reader.error());
    return names;
}

Result<QString> nameOnDisk(const QString& folder, const QString& name) {
    const Result<bool> exact = isThere(folder + u'/' + name);
    if (!exact) return exact.failure();
    if (exact.value()) return name;
    const Result<QStringList> entries = entryNamesIfAny(folder);
    if (!entries) return entries.failure();
    QStringList alike;
    for (const QString& entry : entries.value())
        if (sameName(entry, name)) alike.append(entry);
    const auto sameLetters = std::find_if(alike.cbegin(), alike.cend(), [&name](const QString& entry) {
        return readableName(entry) == name; // in bytes that are no UTF-8
    });
    if (sameLetters != alike.cend()) return *sameLetters;
    return alike.isEmpty() ? name : *std::min_element(alike.cbegin(), alike.cend());
}

Result<bool> isTaken(const QString& folder, const QString& name) {
    return nameOnDisk(folder, name).then([&](const QString& found) {
        return isThere(folder + u'/' + found);
    });
}

Result<QString> resolvePath(const QString& root, const QString& relative) {
    if (root.isEmpty()) return Failure{Fault::NotFound, relative, {}};
    QString path = root;
    while (path.size() > 1 && path.endsWith(u'/')) path.chop(1);
    for (const QString& part : relative.split(u'/', Qt::SkipEmptyParts)) {
        if (part == u".."_s) return Failure{Fault::BadName, relative, {}};
        const Result<QString> found = nameOnDisk(path, part);
        if (!found) return found.failure();
        path += u'/' + found.value();
    }
    return path;
}

Result<bool> holdsExactly(const QString& folder, const QString& name) {
    const Result<QStringList> names = entryNamesIfAny(folder);
    if (!names) return names.failure();
    for (const QString& held : names.value()) {
        if (readableName(held) != name) continue;
        Result<bool> file = isFile(folder + u'/' + held);
        if (!file || file.value()) return file;
    }
    return false;
}

Result<QStringList> listFiles(const QString& folder) {
    const Result<QStringList> entries = entryNames(folder);
    if (!entries) return entries.failure();
    std::vector<std::pair<QString, QString>> keyed;
    for (const QString& name : entries.value())
        if (!isHidden(name) && isFile(folder + u'/' + name).valueOr(true))
            keyed.emplace_back(sortingKey(readableName(name)), name);
    std::sort(keyed.begin(), keyed.end());
    QStringList names;
    for (const auto& [key, name] : keyed) names.append(name);
    return names;
}

} // namespace quarvel
