#pragma once

#include "archive/saving.h"
#include "language/profile.h"
#include "viewer/core/notes.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QList>
#include <QMap>

namespace quarvel {

/// What the program saves.
enum class Saving { Record, Notes, Language };
inline const QList<Saving> allSavings = {Saving::Record, Saving::Notes, Saving::Language};

/// A program folder with the airport KILL, into which everything can be saved.
inline void layOutForSaving(const QString& folder) {
    for (const char16_t* part : {u"Sid", u"Star", u"Approach", u"Aeroporto"})
        QDir(folder).mkpath(QStringLiteral("aeroporti/KILL/") + QString::fromUtf16(part));
}

/// Versions differ everywhere, and in length.
inline QString textOf(int version) { return QString(300 + version % 7 * 1500, QChar(u'A' + version % 26)); }

/// Saves a version of something as the windows do.
inline Result<Written> save(Saving what, const QString& folder, int version) {
    const QString text = textOf(version);
    AirportRecord record;
    switch (what) {
    case Saving::Record:
        record.values.fill(text);
        record.values[IcaoCode] = QStringLiteral("KILL");
        return saveAirport(ArchivePaths(folder), QStringLiteral("KILL"), record);
    case Saving::Notes:
        return saveNotes(folder + QStringLiteral("/aeroporti/KILL/Sid"), Family::Sid, QStringLiteral("KENN"),
                         {{NotesBox::Text1, text}, {NotesBox::Text2, text}, {NotesBox::Text3, text}});
    case Saving::Language: break;
    }
    return WriteIniString(folder + QStringLiteral("/LangSetting.ini"), QStringLiteral("Language"),
                          QStringLiteral("CurrentLanguage"),
                          version % 2 == 0 ? QStringLiteral("English") : QStringLiteral("Italiano"));
}

/// The bytes of all files below a folder by their paths; hidden files and folders only when asked for.
inline QMap<QString, QByteArray> filesBelow(const QString& folder, QDir::Filters hidden = {}) {
    QMap<QString, QByteArray> files;
    QDirIterator found(folder, QDir::AllEntries | QDir::NoDotAndDotDot | hidden,
                       QDirIterator::Subdirectories);
    while (found.hasNext()) {
        QFile file(found.next());
        files[file.fileName()] = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(folder)");
    }
    return files;
}

} // namespace quarvel
