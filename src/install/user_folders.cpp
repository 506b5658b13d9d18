#include "install/user_folders.h"

#include <QDir>
#include <QFile>
#include <pwd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

/// The user's home, from the user database where the environment names none: the toolkit would take the root
/// of the file system.
QString homeFolder() {
    QString named = qEnvironmentVariable("HOME");
    if (QDir::isAbsolutePath(named)) return named;
    const passwd* const user = ::getpwuid(::getuid()); // NOLINT(concurrency-mt-unsafe): asked only here
    return user != nullptr ? QFile::decodeName(user->pw_dir) : QDir::homePath();
}

/// A folder given as a relative path is invalid and to be ignored (the desktops' base directory rules, 0.8,
/// "Basics"); Qt 6.4 would take it.
QString named(const char* variable, const QString& belowHome) {
    QString folder = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(folder) ? folder : homeFolder() + belowHome;
}

} // namespace

QString userDataFolder() { return named("XDG_DATA_HOME", u"/.local/share"_s); }

QString userStateFolder() { return named("XDG_STATE_HOME", u"/.local/state"_s); }

} // namespace quarvel
