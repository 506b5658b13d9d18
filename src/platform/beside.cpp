#include "platform/beside.h"

#include <QByteArray>
#include <QtGlobal>
#include <dlfcn.h>
#include <system_error>
#include <utility>

namespace quarvel {

Beside::Beside(std::function<void()> work) {
    try {
        thread_ = std::thread(std::move(work));
    } catch (const std::system_error&) {
        // No thread to spare.
    }
}

void Beside::finish() {
    if (thread_.joinable()) thread_.join();
}

void settleEnvironment() {
    const char* const name = "DESKTOP_STARTUP_ID";
    if (!qEnvironmentVariableIsSet(name)) return;
    const QByteArray id = qgetenv(name);
    qunsetenv(name);
    qputenv(name, id);
}

void readFontList() {
    // The toolkit brings the library along; where it does not, there is nothing to read.
    using Initialise = int (*)();
    const auto initialise = reinterpret_cast<Initialise>(::dlsym(RTLD_DEFAULT, "FcInit"));
    if (initialise != nullptr) initialise();
}

} // namespace quarvel
