#include "install/state_folder.h"

#include "files/lookup.h"
#include "install/user_folders.h"

#include <QCryptographicHash>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr int hashDigits = 8;

QString nameFor(const QString& programFolder) {
    const QFileInfo info(programFolder);
    // A folder that does not exist yet has no canonical path.
    const QString real = info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
    const QByteArray hash = QCryptographicHash::hash(real.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QFileInfo(real).fileName() + u'-' + QString::fromLatin1(hash.left(hashDigits));
}

QString portablePlace(const QString& programFolder) {
    return resolvePath(programFolder, u"Stato"_s).valueOr(programFolder + u"/Stato"_s);
}

} // namespace

StateFolder findStateFolder(const ProgramFolder& folder) {
    if (folder.starter.isEmpty()) return {portablePlace(folder.path), FolderAccess::Usual};
    return {userStateFolder() + u"/quarvel/"_s + nameFor(folder.path), FolderAccess::OwnerOnly};
}

} // namespace quarvel
