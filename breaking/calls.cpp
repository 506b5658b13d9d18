#include "calls.h"

#include <QFile>
#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/syscall.h>
#include <unistd.h>

// The dynamic linker takes these functions for those of the C library, which they call. All that the toolkit,
// the C++ library and the program call comes by here; what the C library calls within itself does not, and so
// each of its functions that touches a file has its own stand-in.

namespace breaking {
namespace {

struct {
    bool armed = false;
    std::string folder;
    int number = 0;
    int error = 0;
    Failing failing = Failing::Once;
    int calls = 0;
    std::string name;
} now;

/// What a descriptor stands for, by the kernel's own account.
std::string meaning(const std::string& link) {
    std::array<char, PATH_MAX> target{};
    const long length = ::syscall(SYS_readlinkat, AT_FDCWD, link.c_str(), target.data(), target.size());
    return length > 0 ? std::string(target.data(), static_cast<std::size_t>(length)) : std::string();
}

std::string wholePath(int at, const char* file) {
    if (file != nullptr && *file == '/') return file;
    const std::string base =
        meaning(at == AT_FDCWD ? "/proc/self/cwd" : "/proc/self/fd/" + std::to_string(at));
    return file != nullptr && *file != '\0' ? base + '/' + file : base;
}

bool concernsSave(const std::string& path) {
    const std::string_view deleted = " (deleted)";
    std::string_view whole = path;
    if (whole.ends_with(deleted)) whole.remove_suffix(deleted.size());
    return whole.starts_with(now.folder) && !whole.ends_with(".lng");
}

/// Whether this call fails; its error number is set then, and left alone otherwise.
bool fails(const char* call, int at, const char* file) {
    if (!now.armed) return false;
    const int before = errno;
    const std::string path = wholePath(at, file);
    errno = before;
    if (!concernsSave(path)) return false;
    ++now.calls;
    const bool struck =
        now.number > 0 && (now.failing == Failing::Once ? now.calls == now.number : now.calls >= now.number);
    if (!struck) return false;
    if (now.name.empty()) now.name = std::string(call) + ' ' + path.substr(now.folder.size());
    errno = now.error;
    return true;
}

/// A file by its path, or by its descriptor.
bool fails(const char* call, const char* file) { return fails(call, AT_FDCWD, file); }
bool fails(const char* call, int descriptor) { return fails(call, descriptor, nullptr); }

} // namespace

void arm(const QString& folder, int number, int error, Failing failing) {
    now = {true, QFile::encodeName(folder).toStdString(), number, error, failing, 0, {}};
}

Struck disarm() {
    now.armed = false;
    return {now.calls, QString::fromStdString(now.name)};
}

} // namespace breaking

struct stat;
struct stat64;
struct statx;
struct statfs;
struct statfs64;
struct statvfs;
struct statvfs64;
struct timespec;
struct __dirstream;
struct dirent;
struct dirent64;

// NOLINTBEGIN: names, types and order of the C library's own
#define STAND_IN(Returned, failed, name, parameters, arguments, ...)                                         \
    extern "C" Q_DECL_EXPORT Returned standIn_##name parameters __asm__(#name);                              \
    Returned standIn_##name parameters {                                                                     \
        static const auto real = reinterpret_cast<Returned(*) parameters>(::dlsym(RTLD_NEXT, #name));        \
        return breaking::fails(#name, __VA_ARGS__) ? failed : real arguments;                                \
    }
#define BY_PATH(name, parameters, arguments) STAND_IN(int, -1, name, parameters, arguments, path)
#define BY_DESCRIPTOR(name, parameters, arguments) STAND_IN(int, -1, name, parameters, arguments, fd)
#define BY_FOLDER(name, parameters, arguments) STAND_IN(int, -1, name, parameters, arguments, at, path)

BY_PATH(open, (const char* path, int flags, mode_t mode), (path, flags, mode))
BY_PATH(open64, (const char* path, int flags, mode_t mode), (path, flags, mode))
BY_PATH(__open_2, (const char* path, int flags), (path, flags))
BY_PATH(__open64_2, (const char* path, int flags), (path, flags))
BY_PATH(creat, (const char* path, mode_t mode), (path, mode))
BY_PATH(creat64, (const char* path, mode_t mode), (path, mode))
BY_FOLDER(openat, (int at, const char* path, int flags, mode_t mode), (at, path, flags, mode))
BY_FOLDER(openat64, (int at, const char* path, int flags, mode_t mode), (at, path, flags, mode))
BY_FOLDER(__openat_2, (int at, const char* path, int flags), (at, path, flags))
BY_FOLDER(__openat64_2, (int at, const char* path, int flags), (at, path, flags))
STAND_IN(ssize_t, -1, read, (int fd, void* to, size_t size), (fd, to, size), fd)
STAND_IN(ssize_t, -1, __read_chk, (int fd, void* to, size_t size, size_t room), (fd, to, size, room), fd)
STAND_IN(ssize_t, -1, pread64, (int fd, void* to, size_t size, long at), (fd, to, size, at), fd)
STAND_IN(ssize_t, -1, write, (int fd, const void* from, size_t size), (fd, from, size), fd)
STAND_IN(ssize_t, -1, pwrite64, (int fd, const void* from, size_t size, long at), (fd, from, size, at), fd)
STAND_IN(ssize_t, -1, copy_file_range, (int in, long* from, int fd, long* to, size_t size, unsigned flags),
         (in, from, fd, to, size, flags), fd)
STAND_IN(ssize_t, -1, sendfile64, (int fd, int in, long* from, size_t size), (fd, in, from, size), fd)
BY_DESCRIPTOR(syncfs, (int fd), (fd))
BY_DESCRIPTOR(ftruncate, (int fd, long size), (fd, size))
BY_DESCRIPTOR(ftruncate64, (int fd, long size), (fd, size))
BY_DESCRIPTOR(posix_fallocate64, (int fd, long at, long size), (fd, at, size))
BY_DESCRIPTOR(flock, (int fd, int how), (fd, how))
BY_DESCRIPTOR(fchmod, (int fd, mode_t mode), (fd, mode))
BY_DESCRIPTOR(fchown, (int fd, uid_t user, gid_t group), (fd, user, group))
BY_DESCRIPTOR(futimens, (int fd, const timespec* times), (fd, times))
BY_DESCRIPTOR(fstat, (int fd, struct stat* info), (fd, info))
BY_DESCRIPTOR(fstat64, (int fd, struct stat64* info), (fd, info))
BY_DESCRIPTOR(fstatfs, (int fd, struct statfs* info), (fd, info))
BY_DESCRIPTOR(fstatfs64, (int fd, struct statfs64* info), (fd, info))
BY_PATH(chmod, (const char* path, mode_t mode), (path, mode))
BY_PATH(chown, (const char* path, uid_t user, gid_t group), (path, user, group))
BY_PATH(lchown, (const char* path, uid_t user, gid_t group), (path, user, group))
BY_FOLDER(fchmodat, (int at, const char* path, mode_t mode, int flags), (at, path, mode, flags))
BY_FOLDER(fchownat, (int at, const char* path, uid_t user, gid_t group, int flags),
          (at, path, user, group, flags))
BY_FOLDER(utimensat, (int at, const char* path, const timespec* times, int flags), (at, path, times, flags))
BY_PATH(stat, (const char* path, struct stat* info), (path, info))
BY_PATH(stat64, (const char* path, struct stat64* info), (path, info))
BY_PATH(lstat, (const char* path, struct stat* info), (path, info))
BY_PATH(lstat64, (const char* path, struct stat64* info), (path, info))
BY_FOLDER(fstatat, (int at, const char* path, struct stat* info, int flags), (at, path, info, flags))
BY_FOLDER(fstatat64, (int at, const char* path, struct stat64* info, int flags), (at, path, info, flags))
BY_FOLDER(statx, (int at, const char* path, int flags, unsigned mask, struct statx* info),
          (at, path, flags, mask, info))
BY_PATH(statfs, (const char* path, struct statfs* info), (path, info))
BY_PATH(statfs64, (const char* path, struct statfs64* info), (path, info))
BY_PATH(statvfs, (const char* path, struct statvfs* info), (path, info))
BY_PATH(statvfs64, (const char* path, struct statvfs64* info), (path, info))
BY_PATH(access, (const char* path, int mode), (path, mode))
BY_PATH(eaccess, (const char* path, int mode), (path, mode))
BY_PATH(euidaccess, (const char* path, int mode), (path, mode))
BY_FOLDER(faccessat, (int at, const char* path, int mode, int flags), (at, path, mode, flags))
STAND_IN(ssize_t, -1, readlink, (const char* path, char* to, size_t size), (path, to, size), path)
STAND_IN(ssize_t, -1, __readlink_chk, (const char* path, char* to, size_t size, size_t room),
         (path, to, size, room), path)
STAND_IN(ssize_t, -1, readlinkat, (int at, const char* path, char* to, size_t size), (at, path, to, size), at,
         path)
STAND_IN(char*, nullptr, realpath, (const char* path, char* to), (path, to), path)
STAND_IN(char*, nullptr, __realpath_chk, (const char* path, char* to, size_t room), (path, to, room), path)
STAND_IN(char*, nullptr, canonicalize_file_name, (const char* path), (path), path)
BY_PATH(mkdir, (const char* path, mode_t mode), (path, mode))
BY_FOLDER(mkdirat, (int at, const char* path, mode_t mode), (at, path, mode))
STAND_IN(char*, nullptr, mkdtemp, (char* path), (path), path)
BY_PATH(mkostemp64, (char* path, int flags), (path, flags))
BY_PATH(rmdir, (const char* path), (path))
BY_PATH(remove, (const char* path), (path))
BY_PATH(unlink, (const char* path), (path))
BY_FOLDER(unlinkat, (int at, const char* path, int flags), (at, path, flags))
BY_PATH(link, (const char* from, const char* path), (from, path))
BY_FOLDER(linkat, (int from, const char* name, int at, const char* path, int flags),
          (from, name, at, path, flags))
BY_PATH(symlink, (const char* to, const char* path), (to, path))
BY_FOLDER(symlinkat, (const char* to, int at, const char* path), (to, at, path))
BY_PATH(rename, (const char* from, const char* path), (from, path))
BY_FOLDER(renameat, (int from, const char* name, int at, const char* path), (from, name, at, path))
BY_FOLDER(renameat2, (int from, const char* name, int at, const char* path, unsigned flags),
          (from, name, at, path, flags))
STAND_IN(__dirstream*, nullptr, opendir, (const char* path), (path), path)
STAND_IN(__dirstream*, nullptr, fdopendir, (int fd), (fd), fd)
extern "C" int dirfd(__dirstream*) noexcept;
STAND_IN(dirent*, nullptr, readdir, (__dirstream * stream), (stream), ::dirfd(stream))
STAND_IN(dirent64*, nullptr, readdir64, (__dirstream * stream), (stream), ::dirfd(stream))

/// Nobody pulls the plug here: what would be waited for is left out.
extern "C" Q_DECL_EXPORT int standIn_fsync(int fd) __asm__("fsync");
int standIn_fsync(int fd) { return breaking::fails("fsync", fd) ? -1 : 0; }

/// A close that fails has closed all the same.
extern "C" Q_DECL_EXPORT int standIn_close(int fd) __asm__("close");
int standIn_close(int fd) {
    static const auto real = reinterpret_cast<int (*)(int)>(::dlsym(RTLD_NEXT, "close"));
    const bool fails = breaking::fails("close", fd);
    const int error = errno;
    const int closed = real(fd);
    if (fails) errno = error;
    return fails ? -1 : closed;
}
// NOLINTEND
