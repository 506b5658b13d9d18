#pragma once

#include "files/whole_file.h"

#include <QByteArray>
#include <QString>

namespace quarvel {

/// Files above this size are searched line by line instead of as a profile.
inline constexpr qint64 largestProfileBytes = 64000;
/// A value of a profile is cut to this many characters.
inline constexpr qsizetype longestProfileValue = 511;

/// A profile file's bytes. Fails with the faults of readWholeFile, TooLarge above 8 MB.
[[nodiscard]] Result<QByteArray> readProfile(const QString& file);

/// The value of an entry of a profile (INI) file, in the encoding of text/decoding.h, or an empty text when
/// the section or the key is absent. The file is read afresh on every call. Fails only when the file itself
/// cannot be read.
[[nodiscard]] Result<QString> ReadIniString(const QString& file, const QString& section, const QString& key);

/// Sets one entry of a profile file: the file, the section and the key are made when absent, an existing
/// value of the key is replaced, every other line stays as it was, to the byte. The entry is in the encoding
/// of the lines that are there, Windows-1252 in a new file; a file in UTF-16 becomes one in UTF-8. The file
/// is its old or its new self. What could not be read back as it is, is not written. Fails with the faults of
/// readProfile and writeWholeFile, with NotInCodePage, TooLarge or Damaged.
[[nodiscard]] Result<Written> WriteIniString(const QString& file, const QString& section, const QString& key,
                                             const QString& value,
                                             const BeforeReplacing& beforeReplacing = {});

/// The value of a key in a profile's bytes, by the rules of a profile: names without regard to letter case,
/// blanks around key and value ignored, one matching pair of quotes dropped, the first section of the name
/// and the first entry in it win, lines that begin with a semicolon are comments.
[[nodiscard]] QByteArray profileValue(QByteArrayView profile, QByteArrayView section, QByteArrayView key);

/// What follows a key in a large file's bytes: the rest of the first line that begins with exactly the key,
/// letter case included, whatever its section. The value is that without the one character after the key, and
/// then without its first and last: right for `key="text"`, written without any blanks. Empty when no line
/// begins with the key.
[[nodiscard]] QByteArrayView scannedRest(QByteArrayView file, QByteArrayView key);

/// A profile's bytes with one entry set.
[[nodiscard]] QByteArray profileWithValue(QByteArrayView profile, QByteArrayView section, QByteArrayView key,
                                          QByteArrayView value);

} // namespace quarvel
