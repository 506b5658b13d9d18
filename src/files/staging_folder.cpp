#include "files/staging_folder.h"

#include "files/whole_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

const QString namePrefix = u".quarvel-new-"_s;
constexpr int attempts = 100;

int openFolder(const QString& path) {
    return ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

} // namespace

StagingFolder::StagingFolder(const QString& path) : path_(path), locked_(openFolder(path)) {}

StagingFolder::~StagingFolder() { QDir(path_).removeRecursively(); }

Result<std::unique_ptr<StagingFolder>> StagingFolder::make(const QString& folder) {
    for (int attempt = 0; attempt < attempts; ++attempt) {
        QByteArray name = QFile::encodeName(folder + u'/' + namePrefix + u"XXXXXX"_s);
        if (::mkdtemp(name.data()) == nullptr) return writeFailure(folder, errno);
        std::unique_ptr<StagingFolder> made(new StagingFolder(QFile::decodeName(name)));
        // Before it was locked, another process may have taken it for a left-over. On a file system without
        // locks it is nobody's to clear.
        const bool taken = ::flock(made->locked_.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
        if (!taken && QFileInfo::exists(made->path_)) return made;
    }
    return Failure{Fault::Unwritable, folder, {}};
}

void StagingFolder::clearLeftOvers(const QString& folder) {
    // To the letter: by its capitals a folder of the user's may be told from one of these.
    const QStringList names = QDir(folder).entryList(
        {namePrefix + u"??????"_s}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks | QDir::CaseSensitive);
    for (const QString& name : names) {
        const QString path = folder + u'/' + name;
        const Descriptor opened(openFolder(path));
        if (opened.number() >= 0 && ::flock(opened.number(), LOCK_EX | LOCK_NB) == 0)
            QDir(path).removeRecursively();
    }
}

} // namespace quarvel
