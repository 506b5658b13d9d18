#pragma once

#include <QFile>
#include <QString>
#include <unistd.h>

namespace quarvel {

/// While it lives, a test that runs as root is an ordinary user, to whom the system can refuse something.
class OrdinaryUser {
public:
    /// `folder` is the test's temporary folder, which that user shall be able to enter.
    explicit OrdinaryUser(const QString& folder) : wasRoot_(::geteuid() == 0) {
        constexpr uid_t nobody = 65534;
        QFile::setPermissions(folder, QFile::permissions(folder) | QFile::ReadOther | QFile::ExeOther |
                                          QFile::ReadGroup | QFile::ExeGroup);
        if (wasRoot_ && ::setresuid(nobody, nobody, 0) != 0) qFatal("cannot become an ordinary user");
    }
    ~OrdinaryUser() {
        if (wasRoot_ && ::setresuid(0, 0, 0) != 0) qFatal("cannot become root again");
    }
    Q_DISABLE_COPY(OrdinaryUser)

private:
    bool wasRoot_;
};

} // namespace quarvel
