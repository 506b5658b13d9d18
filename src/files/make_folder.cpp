#include "files/make_folder.h"

#include "files/lookup.h"
#include "files/system_error.h"
#include "files/system_name.h"

#include <QFileInfo>
#include <cerrno>
#include <sys/stat.h>

namespace quarvel {
namespace {

constexpr mode_t usualMode = 0777; // the user's mask takes its part away
constexpr mode_t ownerMode = 0700;

} // namespace

Result<void> makeFolder(const QString& path, FolderAccess access) {
    if (const Result<bool> is = isFolder(path); !is || is.value()) return is ? Result<void>() : is.failure();
    if (const QString above = QFileInfo(path).path(); above != path)
        if (Result<void> made = makeFolder(above, access); !made) return made;
    const mode_t mode = access == FolderAccess::Usual ? usualMode : ownerMode;
    if (::mkdir(systemName(path).constData(), mode) == 0) return {};
    const int error = errno;
    if (isFolder(path).valueOr(false)) return {}; // another process was quicker
    return error == EEXIST ? Failure{Fault::NotFolder, path, {}} : writeFailure(path, error);
}

} // namespace quarvel
