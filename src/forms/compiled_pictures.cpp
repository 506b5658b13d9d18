#include "forms/compiled_pictures.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QResource>
#include <QString>
#include <png.h>

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

/// Reads a PNG through its own library. The toolkit's way to it would first load every plug-in for picture
/// formats, which takes as long as all pictures of the main window together. Bytes that are no PNG give no
/// picture.
QImage readPng(const QByteArray& bytes) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&png, bytes.constData(), static_cast<std::size_t>(bytes.size())) ==
        0)
        return {};
    png.format = PNG_FORMAT_BGRA; // what the toolkit calls ARGB32 on a little-endian machine
    static_assert(Q_BYTE_ORDER == Q_LITTLE_ENDIAN);
    QImage image(static_cast<int>(png.width), static_cast<int>(png.height), QImage::Format_ARGB32);
    const auto stride = static_cast<png_int_32>(image.bytesPerLine());
    if (png_image_finish_read(&png, nullptr, image.bits(), stride, nullptr) == 0) return {};
    return image;
}

} // namespace

QPixmap compiledPicture(const char* name) {
    const CompiledFile file = compiledFile(name, u"png"_s);
    QPixmap pixmap = QPixmap::fromImage(readPng(QResource(file.path).uncompressedData()));
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
