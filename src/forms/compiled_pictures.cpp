#include "forms/compiled_pictures.h"

#include <QFile>
#include <QGuiApplication>
#include <QResource>
#include <QString>

using namespace Qt::StringLiterals;

/// A static library's resources are known to the program only after this; outside any namespace by its
/// nature.
static void registerPictures() { Q_INIT_RESOURCE(pictures); }

namespace quarvel {

namespace {

/// The place of a picture's file; on a scaled screen of its larger form, where it has one.
struct CompiledFile {
    QString path;
    double ratio;
};

CompiledFile compiledFile(const char* name, const QString& extension) {
    static const bool registered = (registerPictures(), true);
    Q_UNUSED(registered);
    const QString path = u":/pictures/"_s + QLatin1StringView(name);
    if (qGuiApp->devicePixelRatio() > 1.0) {
        const QString large = path + u"@2x."_s + extension;
        if (QFile::exists(large)) return {large, 2.0};
    }
    return {path + u'.' + extension, 1.0};
}

} // namespace

QPixmap compiledPicture(const char* name) {
    const CompiledFile file = compiledFile(name, u"png"_s);
    QPixmap pixmap(file.path);
    pixmap.setDevicePixelRatio(file.ratio);
    return pixmap;
}

Picture compiledDecoration(const char* name) {
    const QString path = compiledFile(name, u"gif"_s).path;
    const QResource file(path);
    if (!file.isValid()) return {};
    // The resource's own bytes, which outlive the decoding.
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(file.data()), file.size());
    Result<Picture> picture = Picture::decode(bytes, path);
    return picture ? picture.take() : Picture();
}

} // namespace quarvel
