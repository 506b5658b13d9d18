#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace quarvel {

/// How the letters of a text file are stored. What the program writes is in the code page; editors of today
/// save in the others.
enum class TextEncoding {
    CodePage, ///< Windows-1252
    Utf8,     ///< a byte order mark, or bytes above 127 that are UTF-8 throughout
    Utf16     ///< a byte order mark, and UTF-16 throughout
};

/// The encoding of a whole file, which is decided by all of it. Plain ASCII counts as the code page.
[[nodiscard]] TextEncoding encodingOf(QByteArrayView file);

/// The text of a whole file, without its byte order mark. Of the code page, every byte is a character.
[[nodiscard]] QString decodeText(QByteArrayView file);

/// The text of some of a file's bytes, of which `file` is all: as decodeText, but the file is only looked
/// through where it must be. Not for UTF-16.
[[nodiscard]] QString decodePart(QByteArrayView part, QByteArrayView file);

/// How many bytes the UTF-8 byte order mark at a file's beginning takes, if there is one.
[[nodiscard]] qsizetype markBytes(QByteArrayView file);

/// A file in UTF-16 as the same text in UTF-8, with a byte order mark; any other file as it is.
[[nodiscard]] QByteArray utf16AsUtf8(const QByteArray& file);

/// Of bytes in the code page that would be taken for UTF-8 when they are read: the first characters that are
/// to blame, such as È and an ellipsis. Empty when the bytes are read as they were written.
[[nodiscard]] QString readOtherwise(QByteArrayView codePageFile);

} // namespace quarvel
