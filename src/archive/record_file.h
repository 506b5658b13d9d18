#pragma once

#include "archive/record.h"
#include "files/result.h"

#include <QByteArray>
#include <QString>

namespace quarvel {

/// A record is 39 short texts; a file beyond this is something else under a data file's name. What is read is
/// not larger, and neither is what is written.
inline constexpr qint64 largestRecordBytes = qint64{1024} * 1024;

/// A value as a record holds it, and as a file that is named after it is called: --- for an empty one; a line
/// break as a blank, a double quote as the closing typographic quote, accents composed.
[[nodiscard]] QString storableValue(QString value);

/// The bytes of a data file: 39 lines in Windows-1252, each a storable value in double quotes, ended by CR
/// LF. Fails with NotInCodePage (detail: the character that cannot be stored), Ambiguous (detail: the
/// characters that would be read back as one of UTF-8) and TooLarge.
[[nodiscard]] Result<QByteArray> recordBytes(const AirportRecord& record, const QString& path);

/// Reads 39 values from a data file's bytes, whose text is that of decodeText, tolerantly: blanks before a
/// value are skipped; a quoted value runs to the next quote (or the end of the file), any other to the next
/// comma or line end, blanks at its ends dropped; after a closing quote everything up to and including the
/// next comma or line end is skipped. Line ends are CR LF, LF or CR. What follows the 39th value is ignored.
/// Fails with TooShort (detail: how many values there are).
[[nodiscard]] Result<AirportRecord> parseRecord(const QByteArray& bytes, const QString& path);

/// Whether a data file holds more than the record that is read from it, which a save would take away:
/// anything but blanks and line ends behind a closing quote or behind the 39th value.
[[nodiscard]] bool holdsMoreThanRecord(const QByteArray& bytes);

/// Reads a data file. Fails with the faults of readWholeFile and parseRecord.
[[nodiscard]] Result<AirportRecord> readRecord(const QString& path);

/// Creates or replaces a data file in one step. Fails with those of recordBytes and writeWholeFile.
[[nodiscard]] Result<void> writeRecord(const QString& path, const AirportRecord& record);

} // namespace quarvel
