#include "files/system_name.h"

#include "text/code_page.h"

#include <QStringDecoder>

namespace quarvel {
namespace {

constexpr char16_t bytesBegin = 0xDC00; // of the code points that stand for the bytes 0x80 to 0xFF

bool standsForByte(QChar character) {
    return character.unicode() >= bytesBegin + 0x80 && character.unicode() <= bytesBegin + 0xFF;
}

/// Whether a character stands for a byte: one that follows the first half of a pair is the second half.
bool standsForByte(const QString& text, qsizetype at) {
    return standsForByte(text.at(at)) && (at == 0 || !text.at(at - 1).isHighSurrogate());
}

char byteOf(QChar character) { return static_cast<char>(character.unicode() - bytesBegin); }

} // namespace

QByteArray systemName(const QString& path) {
    QByteArray bytes;
    qsizetype done = 0; // characters
    for (qsizetype at = 0; at < path.size(); ++at) {
        if (!standsForByte(path, at)) continue;
        bytes += QStringView(path).mid(done, at - done).toUtf8() + byteOf(path.at(at));
        done = at + 1;
    }
    return bytes + QStringView(path).mid(done).toUtf8();
}

QString nameFromSystem(QByteArrayView bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString name = utf8(bytes);
    if (!utf8.hasError()) return name;
    QString kept;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        kept += QChar(value < 0x80 ? char16_t{value} : static_cast<char16_t>(bytesBegin + value));
    }
    return kept;
}

QString readableName(QString name) {
    for (qsizetype at = 0; at < name.size(); ++at)
        if (standsForByte(name, at)) {
            const char byte = byteOf(name.at(at));
            name[at] = decodeCodePage(QByteArrayView(&byte, 1)).front();
        }
    return name;
}

} // namespace quarvel
