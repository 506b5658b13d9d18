#include "files/folder_tree.h"

#include "files/folder_reader.h"
#include "files/system_name.h"

#include <sys/stat.h>
#include <unistd.h>

namespace quarvel {
namespace {

void addFilesOf(const QByteArray& folder, const QByteArray& below, std::vector<TreeFile>& files) {
    FolderReader entries(folder);
    while (const dirent* entry = entries.next()) {
        const QByteArray name(entry->d_name);
        const QByteArray path = folder + '/' + name;
        struct stat info {};
        if (name.startsWith('.') || ::lstat(path.constData(), &info) != 0) continue;
        if (S_ISDIR(info.st_mode)) addFilesOf(path, below + name + '/', files);
        if (S_ISREG(info.st_mode)) files.push_back({nameFromSystem(below + name), info.st_size});
    }
}

} // namespace

std::vector<TreeFile> filesBelow(const QString& folder) {
    std::vector<TreeFile> files;
    addFilesOf(systemName(folder), {}, files);
    return files;
}

void removeWithEmptyFolders(const QString& path, const QString& top) {
    ::unlink(systemName(path).constData());
    for (QString folder = path.section(u'/', 0, -2); folder.startsWith(top + u'/');
         folder = folder.section(u'/', 0, -2))
        if (::rmdir(systemName(folder).constData()) != 0) return; // something else is in it
}

} // namespace quarvel
