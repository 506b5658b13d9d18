#pragma once

#include <QtGlobal>
#include <unistd.h>

namespace quarvel {

/// While it lives, a test that runs as root is an ordinary user, to whom the system can refuse something.
class OrdinaryUser {
public:
    OrdinaryUser() : wasRoot_(::geteuid() == 0) {
        constexpr uid_t nobody = 65534;
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
