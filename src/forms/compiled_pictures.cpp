#include "forms/compiled_pictures.h"

#include <QGuiApplication>
#include <QString>

using namespace Qt::StringLiterals;

/// A static library's resources are known to the program only after this; outside any namespace by its
/// nature.
static void registerPictures() { Q_INIT_RESOURCE(pictures); }

namespace quarvel {

QPixmap compiledPicture(const char* name) {
    static const bool registered = (registerPictures(), true);
    Q_UNUSED(registered);
    // On a scaled screen the larger form, shown at the same size.
    const bool large = qGuiApp->devicePixelRatio() > 1.0;
    QPixmap pixmap(u":/pictures/%1%2.png"_s.arg(QLatin1StringView(name), large ? u"@2x"_s : QString()));
    if (large) pixmap.setDevicePixelRatio(2.0);
    return pixmap;
}

} // namespace quarvel
