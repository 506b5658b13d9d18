#include "forms/compiled_pictures.h"

#include <QFile>
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
    const QString path = u":/pictures/"_s + QLatin1StringView(name);
    // On a scaled screen the larger form, shown at the same size.
    if (qGuiApp->devicePixelRatio() > 1.0 && QFile::exists(path + u"@2x.png"_s)) {
        QPixmap large(path + u"@2x.png"_s);
        large.setDevicePixelRatio(2.0);
        return large;
    }
    return QPixmap(path + u".png"_s);
}

} // namespace quarvel
