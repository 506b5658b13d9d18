#include "text/decoding.h"

#include "text/code_page.h"

#include <QStringDecoder>
#include <algorithm>
#include <bit>
#include <optional>

namespace quarvel {
namespace {

constexpr QByteArrayView utf8Mark("\xEF\xBB\xBF");

bool isHigh(char byte) { return static_cast<unsigned char>(byte) > 0x7F; }

bool hasHigh(QByteArrayView bytes) { return std::any_of(bytes.begin(), bytes.end(), isHigh); }

/// A text in UTF-16, if all of the file is that behind its mark.
std::optional<QString> decodeUtf16(QByteArrayView file) {
    if (!file.startsWith("\xFF\xFE") && !file.startsWith("\xFE\xFF")) return std::nullopt;
    if (file.size() % 2 != 0) return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf16);
    QString text = decoder(file);
    if (!text.isValidUtf16() || text.contains(QChar::Null)) return std::nullopt;
    return text;
}

bool isUtf8(QByteArrayView file) { return markBytes(file) > 0 || (hasHigh(file) && file.isValidUtf8()); }

} // namespace

TextEncoding encodingOf(QByteArrayView file) {
    if (isUtf8(file)) return TextEncoding::Utf8;
    return decodeUtf16(file) ? TextEncoding::Utf16 : TextEncoding::CodePage;
}

QString decodeText(QByteArrayView file) {
    if (!hasHigh(file)) return QString::fromLatin1(file);
    if (isUtf8(file)) return QString::fromUtf8(file.sliced(markBytes(file)));
    const std::optional<QString> wide = decodeUtf16(file);
    return wide ? *wide : decodeCodePage(file);
}

QString decodePart(QByteArrayView part, QByteArrayView file) {
    // Letters of the code page are hardly ever UTF-8 by themselves, which spares looking through the file.
    const bool mayBeUtf8 = hasHigh(part) && (markBytes(file) > 0 || part.isValidUtf8());
    return mayBeUtf8 && isUtf8(file) ? QString::fromUtf8(part) : decodeCodePage(part);
}

qsizetype markBytes(QByteArrayView file) { return file.startsWith(utf8Mark) ? utf8Mark.size() : 0; }

QByteArray utf16AsUtf8(const QByteArray& file) {
    const std::optional<QString> text = decodeUtf16(file);
    return text ? utf8Mark.toByteArray() + text->toUtf8() : file;
}

QString readOtherwise(QByteArrayView codePageFile) {
    if (encodingOf(codePageFile) == TextEncoding::CodePage) return {};
    const auto high = std::find_if(codePageFile.begin(), codePageFile.end(), isHigh);
    const QByteArrayView rest = codePageFile.sliced(high - codePageFile.begin());
    // The first byte of a character in UTF-8 begins with as many ones as the character has bytes.
    const qsizetype length = std::countl_one(static_cast<unsigned char>(rest.front()));
    return decodeCodePage(rest.first(std::min(length, rest.size())));
}

} // namespace quarvel
