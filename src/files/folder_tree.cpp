#include "files/folder_tree.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace quarvel {

std::vector<TreeFile> filesBelow(const QString& folder) {
    std::vector<TreeFile> files;
    const QDir top(folder);
    QDirIterator entries(folder, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        entries.next();
        const QFileInfo info = entries.fileInfo();
        files.push_back({top.relativeFilePath(info.filePath()), info.size()});
    }
    return files;
}

void removeWithEmptyFolders(const QString& path, const QString& top) {
    QFile::remove(path);
    for (QString folder = QFileInfo(path).path(); folder.startsWith(top + u'/');
         folder = QFileInfo(folder).path())
        if (!QDir().rmdir(folder)) return; // something else is in it
}

} // namespace quarvel
