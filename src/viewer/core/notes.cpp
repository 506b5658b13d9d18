#include "viewer/core/notes.h"

#include "files/lookup.h"
#include "files/whole_file.h"
#include "text/code_page.h"
#include "text/decoding.h"

#include <QDir>
#include <algorithm>
#include <array>

namespace quarvel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array sidNotes = {
    NoteKind{u"ROTTA_", NotesBox::Text2, true},
    NoteKind{u"ALTITUDINE_", NotesBox::Text3, false},
    NoteKind{u"DECOLLO_", NotesBox::Text1, false},
};
constexpr std::array approachNotes = {NoteKind{u"MISSED_", NotesBox::Text2, false}};

/// CR LF, lone CR and lone LF all become single line feeds.
QString withLineFeeds(QString text) {
    text.replace("\r\n"_L1, "\n"_L1);
    text.replace(u'\r', u'\n');
    return text;
}

/// The first field of a notes file's text and what stands behind it, its closing quote left out.
struct Field {
    QStringView text;
    QStringView rest;
};

std::optional<Field> firstField(QStringView file) {
    const auto* const start =
        std::find_if(file.begin(), file.end(), [](QChar letter) { return letter != u' '; });
    if (start == file.end()) return std::nullopt;
    if (*start == u'"') {
        const auto* const end = std::find(start + 1, file.end(), u'"');
        return Field{{start + 1, end}, {end == file.end() ? end : end + 1, file.end()}};
    }
    constexpr std::array fieldEnds = {u',', u'\r', u'\n'};
    const auto* const end = std::find_first_of(start, file.end(), fieldEnds.begin(), fieldEnds.end());
    return Field{{start, end}, {end, file.end()}};
}

/// Exactly one separator between the two, whether or not the folder ends in one.
QString noteFilePath(const QString& folder, const NoteKind& kind, const QString& chartName) {
    return QDir(folder).filePath(noteFileName(kind, chartName));
}

} // namespace

std::span<const NoteKind> notesOf(Family family) {
    switch (family) {
    case Family::Sid: return sidNotes;
    case Family::Approach: return approachNotes;
    case Family::Star:
    case Family::None: break;
    }
    return {};
}

QString noteFileName(const NoteKind& kind, const QString& chartName) {
    return QString::fromUtf16(kind.prefix) + chartName + ".txt"_L1;
}

Result<QString> parseNote(const QByteArray& bytes, const QString& path) {
    const QString file = decodeText(bytes);
    const std::optional<Field> field = firstField(file);
    if (!field) return Failure{Fault::TooShort, path, {}};
    return withLineFeeds(field->text.toString());
}

bool holdsMoreThanNote(const QByteArray& bytes) {
    const QString file = decodeText(bytes);
    const std::optional<Field> field = firstField(file);
    return field && !field->rest.trimmed().isEmpty();
}

Result<QByteArray> noteBytes(const QString& text, const QString& path) {
    QString field = withLineFeeds(text);
    field.replace(u'\n', "\r\n"_L1);
    // A straight quote would end the note when it is read back; the typographic one looks the same to a
    // reader.
    field.replace(u'"', u'\u201D');
    const EncodedText encoded = encodeCodePage(field);
    if (!encoded.refused.isEmpty()) return Failure{Fault::NotInCodePage, path, encoded.refused};
    if (const QString pair = readOtherwise(encoded.bytes); !pair.isEmpty())
        return Failure{Fault::Ambiguous, path, pair};
    QByteArray bytes = '"' + encoded.bytes + "\"\r\n";
    if (bytes.size() > largestNoteBytes) return Failure{Fault::TooLarge, path, {}};
    return bytes;
}

Result<std::vector<NoteFile>> readNoteFiles(const QString& folder, Family family, const QString& chartName) {
    std::vector<NoteFile> files;
    for (const NoteKind& kind : notesOf(family)) {
        const QString name = noteFileName(kind, chartName);
        files.push_back({kind.box, noteFilePath(folder, kind, chartName), std::nullopt});
        const Result<bool> held = holdsExactly(folder, name);
        if (!held) return held.failure();
        if (!held.value()) continue;
        const Result<QString> path = resolvePath(folder, name);
        if (!path) return path.failure();
        Result<QByteArray> bytes = readWholeFile(path.value(), largestNoteBytes);
        if (!bytes) return bytes.failure();
        files.back().bytes = bytes.take();
    }
    return files;
}

Result<QString> noteIn(const NoteFile& file) {
    return file.bytes ? parseNote(*file.bytes, file.path) : Result<QString>(QString());
}

Result<std::vector<NoteText>> notesIn(const std::vector<NoteFile>& files) {
    std::vector<NoteText> notes;
    for (const NoteFile& file : files) {
        Result<QString> note = noteIn(file);
        if (!note) return note.failure();
        notes.push_back({file.box, note.take()});
    }
    return notes;
}

bool holdsUnseen(const NoteFile& read, const NoteFile& now) {
    return now.bytes && (now.bytes != read.bytes || holdsMoreThanNote(*now.bytes));
}

Result<std::vector<FileContent>> noteContents(const QString& folder, Family family, const QString& chartName,
                                              const std::vector<NoteText>& texts) {
    std::vector<FileContent> files;
    for (const NoteKind& kind : notesOf(family)) {
        const auto note = std::find_if(texts.cbegin(), texts.cend(),
                                       [&kind](const NoteText& text) { return text.box == kind.box; });
        if (note == texts.cend()) continue; // a box that was not given must not empty its file
        const QString path = noteFilePath(folder, kind, chartName);
        Result<QByteArray> bytes =
            noteBytes(kind.writtenInCapitals ? inCapitals(note->text) : note->text, path);
        if (!bytes) return bytes.failure();
        files.push_back({path, bytes.take()});
    }
    return files;
}

Result<Written> saveNotes(const QString& folder, Family family, const QString& chartName,
                          const std::vector<NoteText>& texts, const BeforeReplacing& beforeReplacing) {
    return noteContents(folder, family, chartName, texts).then([&](const std::vector<FileContent>& files) {
        return writeWholeFiles(files, beforeReplacing);
    });
}

} // namespace quarvel
