#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <optional>

namespace quarvel {

/// Decodes Windows-1252 text. Every one of the 256 byte values gives one character: the five bytes that
/// the code page leaves open (81, 8D, 8F, 90, 9D) give the control characters of the same number, so that
/// any file survives a read and a write. Table: Unicode Consortium, CP1252.TXT with its best-fit entries.
[[nodiscard]] QString decodeCodePage(QByteArrayView bytes);

/// The byte of one character, or nothing when the code page lacks it.
[[nodiscard]] std::optional<char> codePageByte(char16_t character);

/// Text in Windows-1252, or the first character that the code page lacks.
struct EncodedText {
    QByteArray bytes;
    QString refused; ///< empty when the whole text was encoded
};

/// Encodes a text in Windows-1252. Accents typed as separate marks are composed first.
[[nodiscard]] EncodedText encodeCodePage(const QString& text);

} // namespace quarvel
