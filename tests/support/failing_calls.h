#pragma once

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <functional>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

/// Stands between a test program and the system: a call for a file fails, or kills the program, at a given
/// turn. For one source of a test program alone.
namespace quarvel::failing_calls {

enum class How { Once, AllOfItsKindFromThenOn, AllFromThenOn, Kill };

struct Plan {
    int turn = 0; ///< of the call that fails, from 1 on; 0 is none
    int error = 0;
    How how = How::Once;
    bool plain = false; ///< as on a file system without second names and without renames that replace nothing
    const char* only = nullptr; ///< calls of this kind, or of any
    int alsoRename = 0;         ///< the rename of this turn fails besides
};

inline Plan plan;
inline int made = 0; ///< calls since the plan began
inline int renames = 0;
inline bool watching = false;
inline const char* failed = nullptr; ///< the kind of the first call that failed

/// Whether this call is to fail; errno is set then.
inline bool fails(const char* kind) {
    if (!watching || (plan.only && std::strcmp(kind, plan.only) != 0)) return false;
    ++made;
    bool now = made == plan.turn;
    if (now && plan.how == How::Kill) ::raise(SIGKILL);
    if (now) failed = kind;
    if (plan.how == How::AllFromThenOn) now = plan.turn > 0 && made >= plan.turn;
    if (plan.how == How::AllOfItsKindFromThenOn && failed) now = std::strcmp(kind, failed) == 0;
    if (std::strcmp(kind, "rename") == 0 && ++renames == plan.alsoRename) now = true;
    const bool refused =
        plan.plain && (std::strcmp(kind, "link") == 0 || std::strcmp(kind, "renameat2") == 0);
    if (now || refused) errno = now ? plan.error : EINVAL; // a call that succeeds leaves it alone
    return now || refused;
}

/// Runs something by a plan. Whether it made so many calls that one failed.
inline bool run(const Plan& by, const std::function<void()>& deed) {
    plan = by;
    made = 0;
    renames = 0;
    failed = nullptr;
    watching = true;
    deed();
    watching = false;
    return failed != nullptr;
}

} // namespace quarvel::failing_calls

// NOLINTBEGIN(bugprone-macro-parentheses, cppcoreguidelines-macro-usage)
#define QUARVEL_FAILING(Answer, name, parameters, arguments, refusal, exceptions)                            \
    extern "C" Answer name parameters exceptions {                                                           \
        static auto* const real = reinterpret_cast<Answer(*) parameters>(::dlsym(RTLD_NEXT, #name));         \
        return quarvel::failing_calls::fails(#name) ? (refusal) : real arguments;                            \
    }
QUARVEL_FAILING(DIR*, opendir, (const char* path), (path), nullptr, )
QUARVEL_FAILING(dirent*, readdir, (DIR * dir), (dir), nullptr, )
QUARVEL_FAILING(int, stat, (const char* path, struct stat* info), (path, info), -1, noexcept)
QUARVEL_FAILING(int, lstat, (const char* path, struct stat* info), (path, info), -1, noexcept)
QUARVEL_FAILING(int, fstat, (int file, struct stat* info), (file, info), -1, noexcept)
QUARVEL_FAILING(int, access, (const char* path, int mode), (path, mode), -1, noexcept)
QUARVEL_FAILING(ssize_t, read, (int file, void* bytes, size_t size), (file, bytes, size), -1, )
QUARVEL_FAILING(ssize_t, write, (int file, const void* bytes, size_t size), (file, bytes, size), -1, )
QUARVEL_FAILING(int, fchmod, (int file, mode_t mode), (file, mode), -1, noexcept)
QUARVEL_FAILING(int, flock, (int file, int how), (file, how), -1, noexcept)
QUARVEL_FAILING(int, mkdir, (const char* path, mode_t mode), (path, mode), -1, noexcept)
QUARVEL_FAILING(char*, mkdtemp, (char* path), (path), nullptr, noexcept)
QUARVEL_FAILING(char*, realpath, (const char* path, char* real_), (path, real_), nullptr, noexcept)
QUARVEL_FAILING(int, link, (const char* from, const char* to), (from, to), -1, noexcept)
QUARVEL_FAILING(int, unlink, (const char* path), (path), -1, noexcept)
QUARVEL_FAILING(int, rmdir, (const char* path), (path), -1, noexcept)
QUARVEL_FAILING(int, rename, (const char* from, const char* to), (from, to), -1, noexcept)
QUARVEL_FAILING(int, renameat2, (int a, const char* from, int b, const char* to, unsigned how),
                (a, from, b, to, how), -1, noexcept)
// NOLINTEND(bugprone-macro-parentheses, cppcoreguidelines-macro-usage)

// Nobody pulls the plug in a test: what would be waited for is left out.
extern "C" int fsync(int /*file*/) { return quarvel::failing_calls::fails("fsync") ? -1 : 0; }

extern "C" int open(const char* path, int flags, ...) {
    using Open = int (*)(const char*, int, ...);
    static const auto real = reinterpret_cast<Open>(::dlsym(RTLD_NEXT, "open"));
    std::va_list rest;
    va_start(rest, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : mode_t{0};
    va_end(rest);
    return quarvel::failing_calls::fails("open") ? -1 : real(path, flags, mode);
}
