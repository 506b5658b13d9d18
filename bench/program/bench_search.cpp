// The promise: a key released in the name box over an archive of 50,000 airports is answered, list on the
// screen, in at most three times what only walking through the archive's directory takes.

#include "forms/look.h"
#include "measuring.h"
#include "painted.h"
#include "support/test_program.h"

#include <QApplication>
#include <QDir>
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
constexpr double budget = 3;

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
    if (count != folderCount + 2) qFatal("%d entries", count);
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
        list.wait();
    };
    for (const QString& typed : {u""_s, u"L"_s, u"LI"_s}) {
        nameBox->setText(typed);
        const auto times = medians(rounds, {release, [&] { walk(folder); }});
        const auto rows = TestProgram::rows(test.mainWindow(), u"lstWords"_s).size();
        const QString claim =
            u"A key released over 50,000 airports, \"%1\" typed, %2 rows"_s.arg(typed).arg(rows);
        printRatio(qPrintable(claim), times[0], "walk through the directory", times[1], budget);
    }
    return 0;
}
