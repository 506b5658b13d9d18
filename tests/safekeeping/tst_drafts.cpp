#include "safekeeping/kept_draft.h"

#include <QTemporaryDir>
#include <QTest>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

const QString route = u"LIRF/Sid/ROTTA_KENN1.txt"_s;

/// What one run of the program keeps in a state folder.
struct Run {
    StateStore store;
    Drafts drafts{store};
    KeptDraft kept{drafts};

    explicit Run(const QString& folder) : store(folder, FolderAccess::Usual, {}) {}
};

} // namespace

/// What was typed and not saved, from the key to the next run.
class DraftsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isOnTheDiskWithoutBeingAsked() {
        const QTemporaryDir folder;
        Run run(folder.path());
        run.kept.begin(route, u"VIA OST"_s);
        run.kept.typed(u"VIA OST \u2192 caff\u00E8"_s);
        QTRY_COMPARE(Run(folder.path()).drafts.newest(route), u"VIA OST \u2192 caff\u00E8"_s);
    }

    void becomesWhatTheUserMakesOfIt_data() {
        // t types "T", T types over it, b goes back to the saved text, c chooses the chart again, z takes the
        // offer, e drops it, s saves; o chooses another file, l this one while "l" stands there. Then: the
        // newest draft, and whether it is offered.
        QTest::addColumn<QString>("deeds");
        QTest::addColumn<QString>("newest");
        QTest::addColumn<QString>("offered");
        const QList<std::tuple<const char*, QString, QString, QString>> rows = {
            {"what is typed is not offered while it stands there", u"t"_s, u"t"_s, {}},
            {"coming back it is offered", u"tc"_s, u"t"_s, u"t"_s},
            {"typed back to what is saved", u"tb"_s, {}, {}},
            {"taken", u"tcz"_s, u"t"_s, {}},
            {"taken and undone", u"tczb"_s, u"t"_s, u"t"_s},
            {"taken and gone on with", u"tczTc"_s, u"T"_s, u"T"_s},
            {"dropped", u"tce"_s, {}, {}},
            {"saved", u"ts"_s, {}, {}},
            {"taken and saved", u"tczs"_s, {}, {}},
            {"left alone while another box is saved", u"tcs"_s, u"t"_s, u"t"_s},
            {"passed over, it outlives the save of the new one", u"tcTs"_s, u"t"_s, u"t"_s},
            {"passed over and typed on the way to another", u"tcTtTce"_s, u"t"_s, u"t"_s},
            {"left standing by another airport, it hides no offer", u"tclT"_s, u"T"_s, {}},
            {"left standing and cleared, it hides no offer", u"tclb"_s, u"t"_s, u"t"_s},
            {"typed under another name, it is a draft at once", u"otl"_s, u"l"_s, {}},
            {"passed over and pasted, then taken back", u"tctb"_s, u"t"_s, u"t"_s},
            {"typed twice, it is dropped at once", u"tctce"_s, {}, {}},
            {"left standing and not touched, it is no draft", u"tcl"_s, u"t"_s, u"t"_s},
            {"passed over, it stays behind the new one", u"tcTce"_s, u"t"_s, u"t"_s},
        };
        for (const auto& [name, deeds, newest, offered] : rows)
            QTest::newRow(name) << deeds << newest << offered;
    }
    void becomesWhatTheUserMakesOfIt() {
        QFETCH(QString, deeds);
        const QTemporaryDir folder;
        Run run(folder.path());
        run.kept.begin(route, u"saved"_s);
        for (const QChar deed : deeds) {
            switch (deed.unicode()) {
            case u'b': run.kept.typed(u"saved"_s); break;
            case u'c': run.kept.begin(route, u"saved"_s); break;
            case u'z': run.kept.taken(); break;
            case u'e': run.kept.refused(); break;
            case u'l': run.kept.beginOver(route, u"saved"_s, deed); break;
            case u'o': run.kept.begin(u"other"_s, u"saved"_s); break;
            case u's': run.kept.saved(deed); break;
            default: run.kept.typed(deed); break;
            }
        }
        QTEST(run.drafts.newest(route).value_or(QString()), "newest");
        QTEST(run.kept.offer().value_or(QString()), "offered");
    }

    void whatTheDiskRefusedIsWrittenAtTheEnd() {
        const QTemporaryDir folder;
        const QString place = folder.filePath(u"state"_s);
        QVERIFY(QFile(place).open(QIODevice::WriteOnly)); // where a folder is wanted
        Run one(place);
        one.drafts.keep(route, u"one"_s, Drafts::Beside::Others);
        one.drafts.flush();
        QVERIFY(QFile::remove(place));
        Run other(place);
        other.drafts.keep(u"other"_s, u"two"_s, Drafts::Beside::Others);
        other.drafts.flush();
        one.drafts.flush();
        QCOMPARE(Run(place).drafts.newest(route), u"one"_s);
        QCOMPARE(Run(place).drafts.newest(u"other"_s), u"two"_s);
    }

    void thoseOfAnotherCopyStayAndTheOldestGo() {
        const QTemporaryDir folder;
        Run one(folder.path());
        Run other(folder.path());
        QCOMPARE(other.drafts.newest(route), std::nullopt); // both have looked
        one.drafts.keep(route, u"one"_s, Drafts::Beside::Others);
        one.drafts.flush();
        other.drafts.keep(route, u"two"_s, Drafts::Beside::Others); // of the same file
        other.drafts.flush();
        const auto behindTheNewest = [&] {
            Run run(folder.path());
            run.drafts.dropNewest(route);
            return run.drafts.newest(route);
        };
        for (int draft = 0; draft < 498; ++draft)
            other.drafts.keep(QString::number(draft), u"x"_s, Drafts::Beside::Others);
        other.drafts.flush();
        QCOMPARE(behindTheNewest(), u"one"_s);
        other.drafts.keep(u"498"_s, u"x"_s, Drafts::Beside::Others);
        other.drafts.flush();
        QCOMPARE(behindTheNewest(), std::nullopt);
        QVERIFY(Run(folder.path()).drafts.newest(u"0"_s).has_value());
    }
};

QTEST_GUILESS_MAIN(DraftsTest)
#include "tst_drafts.moc"
