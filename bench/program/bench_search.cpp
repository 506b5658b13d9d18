// The promise: a key released in the name box over an archive of 50,000 airports is answered, list painted,
// in at most twice what only walking through the archive's directory takes; and while the archive is
// unchanged, the rows are in the list in a hundredth of the time of reading it again.

#include "archive/listing.h"
#include "forms/look.h"
#include "measuring.h"
#include "painted.h"
#include "support/test_program.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <dirent.h>

using namespace quarvel;
using namespace quarvel::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int folderCount = 50'000;
constexpr int rounds = 31;
constexpr int keptKeys = 20; ///< a round: one alone is near the grain of the clock

/// The i-th of 456,976 codes of four letters, spread over the alphabet; different for different i.
QString code(int i) {
    QString text;
    for (int rest = static_cast<int>(i * 99'991LL % 456'976), k = 0; k < 4; ++k, rest /= 26)
        text.prepend(QChar(u'A' + rest % 26));
    return text;
}

void walk(const QByteArray& folder) {
    int count = 0;
    if (DIR* dir = ::opendir(folder.constData())) {
        while (::readdir(dir) != nullptr) ++count; // NOLINT(concurrency-mt-unsafe): one thread only
        ::closedir(dir);
    }
    if (count < folderCount + 2) qFatal("%d entries", count);
}

/// Waits until the archive has been left alone long enough to be trusted unread.
void waitUntilKept(const QString& archive) {
    ArchiveSearch search;
    QElapsedTimer patience;
    patience.start();
    do {
        if (patience.elapsed() > 10'000) qFatal("this file system does not tell when a folder changes");
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
        static_cast<void>(search.list(archive, {}));
    } while (!search.keeps(archive));
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    applyProgramLook(application);
    TestProgram test;
    const QString archive = test.path(u"aeroporti"_s);
    for (int i = 0; i < folderCount; ++i)
        if (!QDir(archive).mkdir(code(i))) qFatal("cannot make the archive");
    test.start();

    const QByteArray folder = QFile::encodeName(archive);
    auto* nameBox = TestProgram::control<QLineEdit>(test.mainWindow(), u"txtNomeAeroporto"_s);
    Painted list(TestProgram::control<QListView>(test.mainWindow(), u"lstWords"_s)->viewport());
    const auto release = [&] {
        QKeyEvent event(QEvent::KeyRelease, Qt::Key_I, Qt::NoModifier);
        QCoreApplication::sendEvent(nameBox, &event);
    };
    const auto releaseAndPaint = [&] {
        release();
        list.wait();
    };
    const auto claim = [&](const char* folders, const QString& typed) {
        const auto rows = TestProgram::rows(test.mainWindow(), u"lstWords"_s).size();
        return u"A key released over 50,000 airports, %1, \"%2\" typed, %3 rows"_s
            .arg(QLatin1StringView(folders), typed)
            .arg(rows);
    };
    bool more = false;
    const auto change = [&] {
        more = !more;
        if (!(more ? QDir(archive).mkdir(u"ZZZZZ"_s) : QDir(archive).rmdir(u"ZZZZZ"_s))) qFatal("no change");
    };
    for (const QString& typed : {u""_s, u"L"_s, u"LI"_s}) {
        nameBox->setText(typed);
        const auto times = medians(rounds, {[&] { change(), releaseAndPaint(); }, [&] { walk(folder); }});
        printRatio(qPrintable(claim("one just changed, painted", typed)), times[0],
                   "walk through the directory", times[1], 2);
    }
    waitUntilKept(archive);
    for (const QString& typed : {u""_s, u"L"_s, u"LI"_s}) {
        nameBox->setText(typed);
        const auto keys = [&] {
            for (int i = 0; i < keptKeys; ++i) release();
        };
        const auto again = [&] { static_cast<void>(ArchiveSearch().list(archive, typed)); };
        const auto times = medians(rounds, {keys, releaseAndPaint, again});
        printRatio(qPrintable(claim("unchanged, rows in the list", typed)), times[0] / keptKeys,
                   "reading it again", times[2], 0.01);
        printRatio(qPrintable(claim("unchanged, painted", typed)), times[1], "reading it again", times[2], 0);
    }
    return 0;
}
