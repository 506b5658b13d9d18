#include "files/lookup.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <memory>
#include <sys/stat.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

struct DirCloser {
    void operator()(DIR* dir) const { ::closedir(dir); }
};

QString composed(const QString& text) { return text.normalized(QString::NormalizationForm_C); }

int compareNames(const QString& left, const QString& right) {
    const int folded = QString::compare(composed(left), composed(right), Qt::CaseInsensitive);
    return folded != 0 ? folded : QString::compare(left, right);
}

bool exists(const QString& path) {
    struct stat info {};
    return ::lstat(QFile::encodeName(path).constData(), &info) == 0;
}

/// A name that is nothing but a chart's extension is a chart without a name, not a hidden file.
bool isHidden(const QString& name) { return name.startsWith(u'.') && !sameName(name, u".gif"_s); }

/// All entry names of a folder, "." and ".." left out; none, and the system's error number, when it cannot be
/// read.
std::pair<QStringList, int> readNames(const QString& folder) {
    QStringList names;
    const std::unique_ptr<DIR, DirCloser> dir(::opendir(QFile::encodeName(folder).constData()));
    if (!dir) return {names, errno};
    errno = 0;
    while (const dirent* entry = ::readdir(dir.get())) // NOLINT(concurrency-mt-unsafe): a stream of its own
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0)
            names.append(QFile::decodeName(entry->d_name));
    return {names, errno};
}

QStringList entryNames(const QString& folder) { return readNames(folder).first; }

} // namespace

bool sameName(const QString& left, const QString& right) {
    return QString::compare(composed(left), composed(right), Qt::CaseInsensitive) == 0;
}

QString nameOnDisk(const QString& folder, const QString& name) {
    if (exists(folder + u'/' + name)) return name;
    QStringList alike;
    for (const QString& entry : entryNames(folder))
        if (sameName(entry, name)) alike.append(entry);
    return alike.isEmpty() ? name : *std::min_element(alike.cbegin(), alike.cend());
}

bool isTaken(const QString& folder, const QString& name) {
    return exists(folder + u'/' + nameOnDisk(folder, name));
}

QString resolvePath(const QString& root, const QString& relative) {
    if (root.isEmpty()) return {};
    QString path = root;
    while (path.size() > 1 && path.endsWith(u'/')) path.chop(1);
    for (const QString& part : relative.split(u'/', Qt::SkipEmptyParts)) {
        if (part == u".."_s) return {};
        path += u'/' + nameOnDisk(path, part);
    }
    return path;
}

QString resolveForWriting(const QString& root, const QString& relative) {
    const qsizetype cut = relative.lastIndexOf(u'/');
    const QString folder = resolvePath(root, relative.left(std::max<qsizetype>(cut, 0)));
    const QString name = relative.mid(cut + 1);
    return folder.isEmpty() || name == u".."_s ? QString() : folder + u'/' + name;
}

bool holdsExactly(const QString& folder, const QString& name) {
    return entryNames(folder).contains(name) && QFileInfo(folder + u'/' + name).isFile();
}

Result<QStringList> listFiles(const QString& folder) {
    const auto [entries, error] = readNames(folder);
    const bool none = error == ENOENT || error == ENOTDIR || error == ENAMETOOLONG;
    if (none) return Failure{Fault::NotFound, folder, {}};
    if (error != 0) return Failure{Fault::Unreadable, folder, {}};
    QStringList names;
    for (const QString& name : entries)
        if (!isHidden(name) && QFileInfo(folder + u'/' + name).isFile()) names.append(name);
    std::sort(names.begin(), names.end(),
              [](const QString& a, const QString& b) { return compareNames(a, b) < 0; });
    return names;
}

} // namespace quarvel
