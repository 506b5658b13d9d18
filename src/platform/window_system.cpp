#include "platform/window_system.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QtGlobal>

namespace quarvel {

void chooseWindowSystem() {
    const bool chosen = qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    const bool both =
        !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") && !qEnvironmentVariableIsEmpty("DISPLAY");
    if (!chosen && both) qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("xcb;wayland"));
    // The toolkit would ask the session bus, at each menu bar, whether the desktop shows it elsewhere, and
    // wait 25 seconds for a bus that does not answer. Ours always stand in their windows.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
}

} // namespace quarvel
