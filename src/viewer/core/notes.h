#pragma once

#include "files/whole_file.h"
#include "viewer/core/catalogue.h"

#include <QByteArray>
#include <QString>
#include <array>
#include <optional>
#include <span>
#include <vector>

namespace quarvel {

/// The three notes boxes of the viewer.
enum class NotesBox { Text1, Text2, Text3 };
inline constexpr std::array allNotesBoxes = {NotesBox::Text1, NotesBox::Text2, NotesBox::Text3};

/// Which note of a family lies in which file and is shown in which box.
struct NoteKind {
    const char16_t* prefix; ///< of the file's name, such as "ROTTA_"
    NotesBox box;
    bool writtenInCapitals;
};

/// The notes of a family, in the order in which they are read and written; none for arrivals.
[[nodiscard]] std::span<const NoteKind> notesOf(Family family);

/// The name of a note's file: prefix, chart name exactly as listed, ".txt".
[[nodiscard]] QString noteFileName(const NoteKind& kind, const QString& chartName);

/// A box takes 15000 characters; anything near this size is no note, whatever its name says. What is read is
/// not larger, and neither is what is written.
inline constexpr qint64 largestNoteBytes = qint64{1024} * 1024;

/// The first field of a notes file, whose text is that of decodeText: leading blanks skipped; quoted, up to
/// the next quote or the end of the file; not quoted, up to the first comma or line end. Fails with TooShort
/// when the file has no field.
[[nodiscard]] Result<QString> parseNote(const QByteArray& bytes, const QString& path);

/// Whether a notes file holds more than the note that is read from it, which a save would take away: anything
/// but blanks and line ends behind the first field.
[[nodiscard]] bool holdsMoreThanNote(const QByteArray& bytes);

/// The bytes of a notes file: the text in double quotes, CR LF. Line breaks inside the text become CR LF, a
/// double quote the closing typographic quote. Fails with NotInCodePage (detail: the character), Ambiguous
/// (detail: the characters that would be read back as one of UTF-8) and TooLarge.
[[nodiscard]] Result<QByteArray> noteBytes(const QString& text, const QString& path);

/// A note's file as it lies on the disk.
struct NoteFile {
    NotesBox box;
    QString path;
    std::optional<QByteArray> bytes; ///< none where the folder lists no file of exactly that name
};

/// The files of all notes of a chart, in the family's order. Fails with the faults of holdsExactly and
/// readWholeFile.
[[nodiscard]] Result<std::vector<NoteFile>> readNoteFiles(const QString& folder, Family family,
                                                          const QString& chartName);

/// The note in a file, an empty text where there is none. Fails with those of parseNote.
[[nodiscard]] Result<QString> noteIn(const NoteFile& file);

/// Whether replacing the file as it is `now` takes away what nobody saw who knows it as it was `read`: it has
/// changed since, or holds more than its note.
[[nodiscard]] bool holdsUnseen(const NoteFile& read, const NoteFile& now);

/// The text of one notes box to be saved.
struct NoteText {
    NotesBox box;
    QString text;
};

/// The notes in all files of a chart. Fails with those of parseNote.
[[nodiscard]] Result<std::vector<NoteText>> notesIn(const std::vector<NoteFile>& files);

/// What a save of the notes writes, in the family's order. Fails with the faults of noteBytes.
[[nodiscard]] Result<std::vector<FileContent>> noteContents(const QString& folder, Family family,
                                                            const QString& chartName,
                                                            const std::vector<NoteText>& texts);

/// Writes all notes of a chart, in the family's order. All of them are prepared before the first file
/// changes, so that a character that cannot be stored or a full disk leaves every note as it was. Fails with
/// the faults of noteBytes and writeWholeFiles.
[[nodiscard]] Result<Written> saveNotes(const QString& folder, Family family, const QString& chartName,
                                        const std::vector<NoteText>& texts,
                                        const BeforeReplacing& beforeReplacing = {});

} // namespace quarvel
