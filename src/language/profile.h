#pragma once

#include "files/result.h"

#include <QByteArray>
#include <QString>

namespace quarvel {

/// Files above this size are searched line by line instead of as a profile.
inline constexpr qint64 largestProfileBytes = 64000;
/// A value of a profile is cut to this many characters.
inline constexpr qsizetype longestProfileValue = 511;

/// A profile file's bytes. Fails with the faults of readWholeFile, TooLarge above 8 MB.
[[nodiscard]] Result<QByteArray> readProfile(const QString& file);

/// The value of an entry of a profile (INI) file in Windows-1252, or an empty text when the section or the
/// key is absent. The file is read afresh on every call. Fails only when the file itself cannot be read.
[[nodiscard]] Result<QString> ReadIniString(const QString& file, const QString& section, const QString& key);

/// Sets one entry of a profile file: the file, the section and the key are made when absent, an existing
/// value of the key is replaced, every other line stays as it was, to the byte. The file is its old or its
/// new self. What could not be read back as it is, is not written. Returns whether it was written.
bool WriteIniString(const QString& file, const QString& section, const QString& key, const QString& value);

/// The value of a key in a profile's bytes, by the rules of a profile: names without regard to letter case,
/// blanks around key and value ignored, one matching pair of quotes dropped, the first section of the name
/// and the first entry in it win, lines that begin with a semicolon are comments.
[[nodiscard]] QByteArray profileValue(QByteArrayView profile, QByteArrayView section, QByteArrayView key);

/// The value of a key in a large file's bytes. Of the first line that begins with exactly the key (letter
/// case included, whatever its section) the key and the one character after it are passed over, and what
/// follows is given without its first and last character: right for `key="text"`, written without any blanks.
/// Empty when fewer than two characters follow, or when no line begins with the key.
[[nodiscard]] QByteArray scannedValue(QByteArrayView file, QByteArrayView key);

/// A profile's bytes with one entry set.
[[nodiscard]] QByteArray profileWithValue(QByteArrayView profile, QByteArrayView section, QByteArrayView key,
                                          QByteArrayView value);

} // namespace quarvel
