#include "files/system_error.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace quarvel {
namespace {

/// What an error number means for who reads and for who writes. All others may pass by themselves: a disk or
/// network that fails, no memory, too many open files, a file in use.
struct Meaning {
    int error;
    Fault reading;
    Fault writing;
};

constexpr std::array meanings = {
    Meaning{ENOENT, Fault::NotFound, Fault::Unwritable},
    Meaning{ENOTDIR, Fault::NotFound, Fault::Unwritable},
    Meaning{ENAMETOOLONG, Fault::NotFound, Fault::BadName}, // no file can have such a name
    Meaning{EINVAL, Fault::ReadFailed, Fault::BadName},     // how FAT refuses a character in a name
    Meaning{EILSEQ, Fault::NotFound, Fault::BadName},
    Meaning{EEXIST, Fault::ReadFailed, Fault::NotRegular}, // something else has the name
    Meaning{ELOOP, Fault::NotRegular, Fault::NotRegular},
    Meaning{EACCES, Fault::Unreadable, Fault::Unwritable},
    Meaning{EPERM, Fault::Unreadable, Fault::Unwritable},
    Meaning{EROFS, Fault::Unreadable, Fault::Unwritable},
    Meaning{ENOSPC, Fault::ReadFailed, Fault::DiskFull},
    Meaning{EDQUOT, Fault::ReadFailed, Fault::DiskFull},
    Meaning{EFBIG, Fault::ReadFailed, Fault::DiskFull},
};

Meaning meaningOf(int error) {
    const auto* const found = std::find_if(meanings.begin(), meanings.end(),
                                           [error](const Meaning& m) { return m.error == error; });
    return found != meanings.end() ? *found : Meaning{error, Fault::ReadFailed, Fault::WriteFailed};
}

} // namespace

bool meansAbsent(int error) { return meaningOf(error).reading == Fault::NotFound; }

Failure readFailure(const QString& path, int error) { return {meaningOf(error).reading, path, {}}; }

Failure writeFailure(const QString& path, int error) { return {meaningOf(error).writing, path, {}}; }

} // namespace quarvel
