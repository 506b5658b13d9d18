#include "platform/window_system.h"

#include <QByteArray>
#include <QtGlobal>

namespace quarvel {

void chooseWindowSystem() {
    const bool chosen = qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    const bool both =
        !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") && !qEnvironmentVariableIsEmpty("DISPLAY");
    if (!chosen && both) qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("xcb;wayland"));
}

} // namespace quarvel
