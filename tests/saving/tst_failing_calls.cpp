#include "archive/listing.h"
#include "archive/opening.h"
#include "files/lookup.h"
#include "saving/savings.h"
#include "support/disk.h"
#include "support/failing_calls.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <optional>
#include <sys/wait.h>

using namespace quarvel;
using namespace Qt::StringLiterals;
using failing_calls::How;
using failing_calls::Plan;

/// What is read and saved while any one of the calls for files fails, or the program is killed at it.
class FailingCallsTest : public QObject {
    Q_OBJECT

    using Files = QMap<QString, QByteArray>;

    static bool isAside(const QString& path) {
        return path.contains(u"/Quarvel-old-"_s) || path.contains(u"/.quarvel-new-"_s);
    }

    static Files inPlace(const QString& folder) {
        Files files = filesBelow(folder, QDir::Hidden);
        files.removeIf([](const auto& file) { return isAside(file.key()); });
        return files;
    }

    static QList<QByteArray> aside(const QString& folder) {
        QList<QByteArray> found;
        const Files files = filesBelow(folder, QDir::Hidden);
        for (auto file = files.begin(); file != files.end(); ++file)
            if (isAside(file.key()) && file.value() != "(folder)") found.append(file.value());
        return found;
    }

    /// What is wrong with what a failed save said, if anything.
    static QString judge(const Failure& failure, const Files& old, const Files& now, const QString& folder) {
        const bool partly = failure.fault == Fault::PartlyReplaced;
        const QStringList told = partly ? failure.path.split(u'\n') : QStringList();
        QStringList changed;
        for (auto file = now.begin(); file != now.end(); ++file)
            if (old.value(file.key(), "(missing)") != file.value()) changed.append(file.key());
        changed.removeIf([&](const QString& path) { return now[path] == "(folder)"; });
        if (QSet<QString>(told.begin(), told.end()) != QSet<QString>(changed.begin(), changed.end()))
            return u"told as new is "_s + told.join(u", "_s) + u", and new is "_s + changed.join(u", "_s);
        const QList<QByteArray> kept = aside(folder);
        for (const QString& path : told) {
            bool found = !old.contains(path);
            for (const QString& place : failure.detail.split(u'\n'))
                found = found || bytesOf(place + u'/' + QFileInfo(path).fileName()) == old[path];
            if (!found) return u"the old self is not where it is told: "_s + path;
        }
        return {};
    }

    /// Saves version 1 over 0 by a plan, then again without. What is wrong then, if anything.
    QString saveBy(const Plan& plan, Saving what, bool anew) {
        const QTemporaryDir temp;
        const QString folder = temp.path();
        if (anew) {
            QDir(folder).mkdir(u"aeroporti"_s);
        } else {
            layOutForSaving(folder);
            for (const Saving each : allSavings)
                if (!save(each, folder, 0)) return u"not prepared"_s;
        }
        const Files old = inPlace(folder);
        std::optional<Result<Written>> saved;
        if (plan.how == How::Kill) {
            reached_ = killedAt(plan, [&] { static_cast<void>(save(what, folder, 1)); });
        } else {
            reached_ = failing_calls::run(plan, [&] { saved = save(what, folder, 1); });
        }
        const Files now = inPlace(folder);
        const bool remains = filesBelow(folder, QDir::Hidden).keys() != now.keys();
        if (saved && !saved->ok()) {
            const QString wrong = judge(saved->failure(), old, now, folder);
            if (!wrong.isEmpty()) return wrong;
            const bool partly = saved->failure().fault == Fault::PartlyReplaced;
            const bool inDoubt = plan.alsoRename > 0; // then the old selves are better kept
            if (plan.how == How::Once && !partly && !inDoubt && (remains || now.keys() != old.keys()))
                return u"something remains"_s;
        }
        const QList<QByteArray> keptFirst = aside(folder);
        if (!save(what, folder, 1)) return u"cannot be saved again"_s;
        const Files done = inPlace(folder);
        for (auto file = now.begin(); file != now.end(); ++file)
            if (file.value() != old.value(file.key(), "(missing)") && file.value() != done.value(file.key()))
                return u"neither old nor new: "_s + file.key();
        if (saved && saved->ok() && now != done) return u"said to be saved, and is not"_s;
        // What making an airport left behind is cleared with the next airport that is made.
        const Files hidden = filesBelow(folder, QDir::Hidden);
        for (const QString& path : hidden.keys())
            if (path.contains(u"/.quarvel-new-"_s) && !(anew && path.contains(u"/aeroporti/.quarvel-new-"_s)))
                return u"a left-over is not cleared: "_s + path;
        for (const QByteArray& each : aside(folder))
            if (!old.values().contains(each)) return u"something else than an old self is kept"_s;
        // What was replaced in part lies aside from then on.
        for (auto file = old.begin(); file != old.end(); ++file)
            if (plan.how != How::Kill && saved && !saved->ok() && now[file.key()] != file.value() &&
                !aside(folder).contains(file.value()))
                return u"an old self is lost: "_s + file.key();
        return {};
    }

    static bool killedAt(const Plan& plan, const std::function<void()>& deed) {
        const pid_t child = ::fork();
        if (child == 0) {
            failing_calls::run(plan, deed);
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFSIGNALED(status);
    }

    bool reached_ = false; ///< by the last save: the call that was to fail

private Q_SLOTS:
    void everyFileOfASaveIsOldOrNewAndWhatIsToldIsTrue_data() {
        QTest::addColumn<int>("how");
        QTest::addColumn<int>("error");
        QTest::addColumn<bool>("plain");
        QTest::addColumn<bool>("lastRename");
        const auto add = [](const char* name, How how, int error, bool plain, bool lastRename = false) {
            QTest::newRow(name) << static_cast<int>(how) << error << plain << lastRename;
        };
        add("disk error, once", How::Once, EIO, false);
        add("disk full, once", How::Once, ENOSPC, false);
        add("not allowed, once", How::Once, EACCES, false);
        add("disk error, all of a kind from then on", How::AllOfItsKindFromThenOn, EIO, false);
        add("read-only, all from then on", How::AllFromThenOn, EROFS, false);
        add("killed", How::Kill, 0, false);
        add("no second names, disk error, once", How::Once, EIO, true);
        add("no second names, disk error, once and at the last file", How::Once, EIO, true, true);
        add("no second names, disk error, all of a kind", How::AllOfItsKindFromThenOn, EIO, true);
        add("no second names, killed", How::Kill, 0, true);
    }
    void everyFileOfASaveIsOldOrNewAndWhatIsToldIsTrue() {
        QFETCH(int, how);
        QFETCH(int, error);
        QFETCH(bool, plain);
        QFETCH(bool, lastRename);
        Plan plan{1, error, static_cast<How>(how), plain};
        const QMap<Saving, int> files = {{Saving::Record, 2}, {Saving::Notes, 3}, {Saving::Language, 1}};
        for (const auto& [what, anew] : {std::pair(Saving::Record, false),
                                         {Saving::Record, true},
                                         {Saving::Notes, false},
                                         {Saving::Language, false}}) {
            plan.alsoRename = lastRename ? files[what] : 0;
            for (plan.turn = 1; plan.turn == 1 || reached_; ++plan.turn) {
                const QString wrong = saveBy(plan, what, anew);
                const char* const call = failing_calls::failed ? failing_calls::failed : "none";
                QVERIFY2(wrong.isEmpty(),
                         qPrintable(u"saving %1%2, call %3, %4: %5"_s.arg(static_cast<int>(what))
                                        .arg(anew ? u" anew"_s : QString())
                                        .arg(plan.turn)
                                        .arg(QString::fromLatin1(call), wrong)));
            }
        }
    }

    void whatCannotBeSeenIsNotTakenForMissing() {
        const QTemporaryDir temp;
        layOutForSaving(temp.path());
        const QString aside = temp.path() + u"/aeroporti/KILL/"_s;
        for (const Saving what : allSavings) QVERIFY(save(what, temp.path(), 0));
        put(aside + u"Aeroporto/kill.gif"_s);
        const ArchivePaths paths(temp.path());
        // Each tells whether a failure made it say that something is not there.
        const auto text = [](const Result<QString>& found) { return found && found.value().isEmpty(); };
        const QList<std::function<bool()>> looks = {
            [&] { return hasDataFile(paths, u"KILL"_s).valueOr(true) == false; },
            [&] { return hasPicture(paths, u"KILL"_s, u"KILL"_s).valueOr(true) == false; },
            [&] {
                return text(
                    readNoteFiles(aside + u"Sid"_s, Family::Sid, u"KENN"_s).then([](const auto& files) {
                        return noteIn(files[0]);
                    }));
            },
            [&] { return paths.dataFile(u"kill"_s).valueOr(u"KILL.txt"_s).endsWith(u"kill.txt"_s); },
            [&] {
                return listFiles(aside + u"Sid"_s).valueOr({u""_s, u""_s, u""_s}).size() != 3;
            },
            [&] {
                const ArchiveListing listed = ArchiveSearch().list(paths.archiveFolder(), u"K"_s);
                return listed.isReadable() && listed.size() != 1;
            },
            [&] { return archiveState(paths.archiveFolder()) == ArchiveState::Empty; },
        };
        for (const int error : {EIO, EACCES, EMFILE, ENOMEM})
            for (const auto& look : looks)
                for (Plan plan{1, error}; plan.turn == 1 || reached_; ++plan.turn) {
                    bool misled = false;
                    reached_ = failing_calls::run(plan, [&] { misled = look(); });
                    QVERIFY2(!misled,
                             qPrintable(u"look %1, call %2, %3"_s.arg(&look - looks.data())
                                            .arg(plan.turn)
                                            .arg(QString::fromLatin1(
                                                failing_calls::failed ? failing_calls::failed : "none"))));
                }
    }
};

QTEST_GUILESS_MAIN(FailingCallsTest)
#include "tst_failing_calls.moc"
