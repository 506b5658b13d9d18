#include "text/code_page.h"

#include <array>

namespace quarvel {
namespace {

/// The characters of the bytes 0x80 to 0x9F; all other bytes are their own character.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

} // namespace

QString decodeCodePage(QByteArrayView bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    QChar* out = text.data();
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        *out++ = QChar(value >= 0x80 && value < 0xA0 ? upperControls[value - 0x80U] : char16_t{value});
    }
    return text;
}

std::optional<char> codePageByte(char16_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
    for (std::size_t i = 0; i < upperControls.size(); ++i)
        if (upperControls[i] == character) return static_cast<char>(0x80U + i);
    return std::nullopt;
}

EncodedText encodeCodePage(const QString& text) {
    EncodedText result;
    const QString composed = text.normalized(QString::NormalizationForm_C);
    result.bytes.reserve(composed.size());
    for (qsizetype i = 0; i < composed.size(); ++i) {
        if (const auto byte = codePageByte(composed.at(i).unicode())) {
            result.bytes.append(*byte);
            continue;
        }
        const bool pair = composed.at(i).isHighSurrogate() && i + 1 < composed.size();
        result.refused = composed.mid(i, pair ? 2 : 1);
        break;
    }
    return result;
}

} // namespace quarvel
