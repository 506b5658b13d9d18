#include "files/state_store.h"
#include "install/state_folder.h"
#include "support/disk.h"
#include "support/ordinary_user.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <vector>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

const StateName drafts{u"drafts"_s, 2};

} // namespace

/// What the program remembers by itself, on real folders.
class TestState : public QObject {
    Q_OBJECT

    [[nodiscard]] QString at(const QString& name) const { return temp_.path() + u'/' + name; }

    QTemporaryDir temp_;
    std::vector<StateTrouble> told_;
    StateStore::Report report_ = [this](StateTrouble trouble, const Failure&) { told_.push_back(trouble); };

private Q_SLOTS:
    void init() { told_.clear(); }

    void aStateFolderBelongsToOneProgramFolder() {
        qputenv("XDG_STATE_HOME", QFile::encodeName(at(u"state"_s)));
        QVERIFY(QDir(temp_.path()).mkpath(u"a/quarvel"_s) && QDir(temp_.path()).mkpath(u"b/quarvel"_s));
        QVERIFY(QFile::link(at(u"a/quarvel"_s), at(u"link"_s)));
        const auto installed = [this](const QString& path) {
            return findStateFolder({at(path), u"/starter"_s}).path;
        };
        QVERIFY(installed(u"a/quarvel"_s).startsWith(at(u"state/quarvel/quarvel-"_s)));
        QVERIFY(installed(u"a/quarvel"_s) != installed(u"b/quarvel"_s));
        QCOMPARE(installed(u"link"_s), installed(u"a/quarvel"_s)); // by its real path
        QCOMPARE(findStateFolder({at(u"a"_s), {}}).path, at(u"a/Stato"_s));
    }

    void aContentComesBackInTheNextRun() {
        const QString folder = at(u"new/folder"_s);
        StateStore(folder, FolderAccess::OwnerOnly, report_).write(drafts, "one\ntwo\n");
        QCOMPARE(StateStore(folder, FolderAccess::OwnerOnly, report_).read(drafts), "one\ntwo\n");
        QCOMPARE(QFile::permissions(folder) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
        QVERIFY(told_.empty());
    }

    void aFileThatCannotBeUsedIsSetAsideOnce() {
        const QByteArray good = stateFileBytes(drafts, "content");
        for (const QByteArray& bytes :
             {QByteArray(), QByteArray("content"), good.chopped(1), good + 'x',
              QByteArray(good).replace("state", "stats"), stateFileBytes({u"drafts"_s, 3}, "content"),
              stateFileBytes({u"pins"_s, 2}, "content")}) {
            QTemporaryDir folder;
            for (const bool written : {true, false}) { // a name is also looked at when it is first written
                told_.clear();
                put(folder.filePath(u"drafts"_s), bytes);
                StateStore store(folder.path(), FolderAccess::Usual, report_);
                if (written) store.write(drafts, "new");
                QCOMPARE(store.read(drafts), written ? "new" : "");
                QCOMPARE(store.read(drafts), written ? "new" : "");
                QCOMPARE(told_, std::vector{StateTrouble::SetAside});
                QCOMPARE(bytesOf(folder.filePath(written ? u"drafts.aside-1"_s : u"drafts.aside-2"_s)),
                         bytes);
            }
        }
    }

    void whatCannotBeWrittenLastsForTheRun() {
        put(at(u"file"_s));
        StateStore store(at(u"file/folder"_s), FolderAccess::Usual, report_);
        store.write(drafts, "one");
        store.write(drafts, "two");
        QCOMPARE(store.read(drafts), "two");
        QCOMPARE(told_, std::vector{StateTrouble::NotKept});
        QVERIFY(QFile::remove(at(u"file"_s))); // and is written as soon as that can be done
        store.write(drafts, "three");
        QCOMPARE(bytesOf(at(u"file/folder/drafts"_s)), stateFileBytes(drafts, "three"));
        QCOMPARE(store.read(drafts), "three");
    }

    void whatCannotBeSetAsideStaysAsItIs() {
        const QString folder = at(u"odd"_s);
        QVERIFY(QDir().mkpath(folder));
        put(folder + u"/drafts"_s, "of a later version");
        QVERIFY(QFile::setPermissions(temp_.path(), QFile::Permissions(0x7711)));
        QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x5555)));
        StateStore store(folder, FolderAccess::Usual, report_);
        {
            const OrdinaryUser user;
            store.write(drafts, "one");
        }
        QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x7777)));
        store.write(drafts, "two");
        QCOMPARE(store.read(drafts), "two");
        QCOMPARE(bytesOf(folder + u"/drafts"_s), "of a later version");
        QCOMPARE(told_, std::vector{StateTrouble::NotKept});
    }
};

QTEST_GUILESS_MAIN(TestState)

#include "tst_state.moc"
