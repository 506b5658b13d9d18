#include "judgement.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <algorithm>
#include <cerrno>
#include <initializer_list>
#include <utility>

using namespace Qt::StringLiterals;

namespace breaking {
namespace {

const QString remembered = u"Stato"_s; // beside the archive: none of the user's files

/// The changed files by their names, and those that should have changed and have not.
struct Changes {
    QStringList made;
    QStringList missing;
    QString neither; ///< one that is neither its old nor its new self
};

Changes changesIn(const Expectation& expected, const Files& now) {
    Changes changes;
    QSet<QString> paths(expected.before.keyBegin(), expected.before.keyEnd());
    paths += QSet<QString>(expected.after.keyBegin(), expected.after.keyEnd());
    for (const QString& path : paths) {
        const auto in = [&](const Files& files) {
            return files.contains(path) == now.contains(path) && files.value(path) == now.value(path);
        };
        const bool isOld = in(expected.before);
        const bool isNew = in(expected.after);
        if (!isOld && !isNew) changes.neither = path;
        if (path.endsWith(u'/') || isOld == isNew) continue;
        (isNew ? changes.made : changes.missing).append(path);
    }
    return changes;
}

/// Whether some folder or file that the text names holds a file's old self.
bool namesPlaceOf(const QByteArray& bytes, const QString& text) {
    for (const QString& line : text.split(u'\n')) {
        const QString place = line.trimmed();
        if (!place.startsWith(u'/') || !QFileInfo::exists(place)) continue;
        QStringList files{place};
        for (QDirIterator below(place, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
             below.hasNext();)
            files.append(below.next());
        for (const QString& name : files)
            if (QFile file(name); file.open(QIODevice::ReadOnly) && file.readAll() == bytes) return true;
    }
    return false;
}

/// What is untrue about a message that says which files are new and where the old ones are.
QString untrueAbout(const Expectation& expected, const Changes& changes, const QString& told) {
    for (const QString& path : changes.missing)
        if (told.section(u"Le loro versioni precedenti"_s, 0, 0).contains(path))
            return u"%1 is called new"_s.arg(path);
    for (const QString& path : changes.made) {
        if (!told.contains(path.section(u'/', -1))) return u"it does not say that %1 is new"_s.arg(path);
        if (expected.before.contains(path) && !namesPlaceOf(expected.before[path], told))
            return u"it does not say where the old %1 lies"_s.arg(path);
    }
    return {};
}

} // namespace

Files filesBelow(const QString& folder) {
    Files files;
    const QDir root(folder);
    QDirIterator found(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (found.hasNext()) {
        const QFileInfo entry(found.next());
        const QString path = root.relativeFilePath(entry.filePath());
        if (path.section(u'/', 0, 0) == remembered || path == "quarvel"_L1) continue;
        QFile file(entry.filePath());
        if (entry.isDir())
            files[path + u'/'] = {};
        else
            files[path] = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }
    return files;
}

void layOut(const QString& folder, const Files& files) {
    const QDir root(folder);
    QDir(root.filePath(remembered)).removeRecursively();
    const Files now = filesBelow(folder);
    for (const QString& path : now.keys())
        if (!files.contains(path))
            path.endsWith(u'/') ? QDir(root.filePath(path)).removeRecursively()
                                : QFile::remove(root.filePath(path));
    for (auto file = files.begin(); file != files.end(); ++file) {
        if (now.contains(file.key()) && now[file.key()] == file.value()) continue;
        if (file.key().endsWith(u'/')) {
            root.mkpath(file.key());
            continue;
        }
        QFile written(root.filePath(file.key()));
        if (!written.open(QIODevice::WriteOnly) || written.write(file.value()) != file.value().size())
            qFatal("cannot lay out %s", qPrintable(file.key()));
    }
}

namespace {

/// What the boxes tell beyond those that every save shows.
struct Told {
    QStringList texts;
    Outcome outcome = Outcome::Saved;
    bool notKept = false; ///< an earlier version
};

bool begins(const QString& text, std::initializer_list<QStringView> beginnings) {
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&](QStringView each) { return text.startsWith(each); });
}

Told toldBy(QStringList boxes, const QStringList& usual) {
    for (const QString& box : usual) boxes.removeOne(box);
    Told told{boxes};
    for (const QString& box : boxes) {
        if (begins(box, {u"L'aeroporto non è stato salvato", u"Le note non sono state salvate",
                         u"La lingua scelta vale da adesso, ma"}))
            told.outcome = Outcome::Refused;
        if (begins(box, {u"Il salvataggio è riuscito solo in parte"})) told.outcome = Outcome::Partly;
        if (begins(box, {u"La versione precedente"})) told.notKept = true;
    }
    return told;
}

/// A reason that the failed call did not give.
QString untrueReason(const QString& text, int error) {
    const bool refused = error == EACCES || error == EROFS;
    const std::pair<QStringView, bool> reasons[] = {{u"Il disco è pieno", error == ENOSPC},
                                                    {u"Il sistema non permette", refused},
                                                    {u"questa cartella non esiste", false},
                                                    {u"Non è un file normale", false},
                                                    {u"Non è un nome valido", false},
                                                    {u"È danneggiato", false},
                                                    {u"È incompleto", false},
                                                    {u"È troppo grande", false}};
    for (const auto& [reason, holds] : reasons)
        if (!holds && text.contains(reason)) return u"an untrue reason: "_s + text;
    return {};
}

/// A changed file whose old self is not among the earlier versions.
QString notKept(const Expectation& expected, const Changes& changes) {
    for (const QString& path : changes.made)
        if (expected.before.contains(path) &&
            !namesPlaceOf(expected.before[path], expected.folder + u'/' + remembered))
            return path;
    return {};
}

QStringList leftOvers(const Expectation& expected, const Files& now) {
    QStringList left;
    for (const QString& path : now.keys())
        if (!expected.before.contains(path) && !expected.after.contains(path)) left.append(path);
    return left;
}

QString wrongIn(const Expectation& expected, const Told& told, const Changes& changes) {
    const QString all = told.texts.join(u'\n');
    switch (told.outcome) {
    case Outcome::Refused:
        return changes.made.isEmpty() ? QString()
                                      : u"%1 is new, and told is: %2"_s.arg(changes.made.join(u' '), all);
    case Outcome::Partly: {
        const QString untrue = untrueAbout(expected, changes, all);
        return untrue.isEmpty() ? QString() : u"%1: %2"_s.arg(untrue, all);
    }
    case Outcome::Saved: break;
    }
    if (!changes.missing.isEmpty())
        return u"%1 is not saved, and told is: %2"_s.arg(changes.missing.join(u' '), all);
    const QString lost = told.notKept ? QString() : notKept(expected, changes);
    return lost.isEmpty() ? QString() : u"the old %1 is not kept, and nothing is told"_s.arg(lost);
}

} // namespace

Verdict judgeFailure(const Expectation& expected, const QStringList& boxes, int error) {
    const Files now = filesBelow(expected.folder);
    const Changes changes = changesIn(expected, now);
    const Told told = toldBy(boxes, expected.usualBoxes);
    Verdict verdict{told.outcome, wrongIn(expected, told, changes)};
    if (!changes.neither.isEmpty()) verdict.wrong = changes.neither + u" is neither old nor new"_s;
    for (const QString& path : leftOvers(expected, now))
        if (told.outcome != Outcome::Partly && !path.contains(u".quarvel-new-"_s))
            verdict.wrong = u"%1 was left behind"_s.arg(path);
    if (verdict.wrong.isEmpty()) verdict.wrong = untrueReason(told.texts.join(u'\n'), error);
    return verdict;
}

QString wrongAfterSuccess(const Expectation& expected, const QStringList& boxes, Left allowed) {
    const Files now = filesBelow(expected.folder);
    const Changes changes = changesIn(expected, now);
    const QStringList notNew = changes.missing + QStringList(changes.neither);
    if (!notNew.join(QString()).isEmpty()) return u"the next save does not save "_s + notNew.join(u' ');
    QStringList left = leftOvers(expected, now);
    if (allowed == Left::OldSelves)
        left.removeIf([](const QString& path) { return path.contains(u"Quarvel-old-"_s); });
    if (!left.isEmpty()) return u"the next save leaves "_s + left.join(u' ');
    QStringList told = boxes; // that the kept old selves are other names of their files is true
    if (allowed == Left::OldSelves)
        told.removeIf([](const QString& text) { return begins(text, {u"Salvato. Questi file avevano"}); });
    for (const QString& usual : expected.usualBoxes) told.removeOne(usual);
    return told.isEmpty() ? QString() : u"the next save tells "_s + boxes.join(u" / "_s);
}

} // namespace breaking
