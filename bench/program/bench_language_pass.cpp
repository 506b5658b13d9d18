// The promise: putting a language's texts on the main window costs at most one and a half times what opening,
// reading and scanning the language file once a text does, with files that have grown to 20 and 63 KB; with
// the small ones that are shipped, whose reading costs next to nothing, at most twice. Between two controls
// the pass handles the events that wait.

#include "files/lookup.h"
#include "forms/look.h"
#include "language/language_support.h"
#include "measuring.h"
#include "support/test_program.h"

#include <QApplication>
#include <QFile>
#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

using namespace quarvel;
using namespace quarvel::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 101;

/// Every key that one pass over the window looks up.
std::vector<QByteArray> keysOf(const frmMain& window) {
    std::vector<QByteArray> keys{"frmMain.Caption", "frmMain.Tag"};
    for (const Control* control : window.controls())
        for (const char* suffix : {".Caption", ".ToolTipText", ".Tag"})
            keys.push_back(controlKey(*control).toLatin1() + suffix);
    return keys;
}

bool plainLookup(const QByteArray& path, const QByteArray& key) {
    const int file = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    struct stat info {};
    if (file < 0 || ::fstat(file, &info) != 0) qFatal("cannot open the language file");
    const auto size = static_cast<size_t>(info.st_size);
    const std::unique_ptr<char[]> bytes(new char[size]);
    const bool whole = ::read(file, bytes.get(), size) == info.st_size;
    ::close(file);
    return whole && ::memmem(bytes.get(), size, key.constData(), static_cast<size_t>(key.size())) != nullptr;
}

void plainLookups(const QByteArray& path, const std::vector<QByteArray>& keys) {
    if (std::ranges::count_if(keys, [&](const auto& key) { return plainLookup(path, key); }) < 30)
        qFatal("this is not the language file");
}

/// Messages in front of the window's section, until the language file has this size in bytes.
void growTo(TestProgram& test, const QString& file, qsizetype size) {
    QByteArray grown = "[Strings]\r\n";
    const QByteArray window = test.read(file);
    while (grown.size() + window.size() < size)
        grown += "0901=\"The text of a message of the usual length?\"\r\n";
    test.write(file, grown + window);
}

void compare(TestProgram& test, const char* file, double budget) {
    QString italian = u"Italiano"_s;
    QString english = u"English"_s;
    const modLanguageSupport same(test.path({}), italian);
    const modLanguageSupport other(test.path({}), english);
    frmMain& window = test.program().mainWindow();
    const auto keys = keysOf(window);
    const QByteArray path = QFile::encodeName(test.path(u"Italiano.lng"_s));
    const QByteArray otherPath = QFile::encodeName(test.path(u"English.lng"_s));
    bool toOther = false;
    const auto again =
        medians(rounds, {[&] { same.MLSApplyLanguage(window); }, [&] { plainLookups(path, keys); }});
    const auto change =
        medians(rounds, {[&] { ((toOther = !toOther) ? other : same).MLSApplyLanguage(window); },
                         [&] { plainLookups(toOther ? otherPath : path, keys); }});
    const QString lookups = u"%1 plain lookups"_s.arg(keys.size());
    printRatio(qPrintable(u"Language pass, %1, same language"_s.arg(QLatin1StringView(file))), again[0],
               qPrintable(lookups), again[1], budget);
    printRatio(qPrintable(u"Language pass, %1, another language, painted"_s.arg(QLatin1StringView(file))),
               change[0], qPrintable(lookups), change[1], budget);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    applyProgramLook(application);
    TestProgram test;
    test.start();
    compare(test, "file as shipped", 2);
    for (const auto& [size, file] : {std::pair{20'000, "file of 20 KB"}, {63'000, "file of 63 KB"}}) {
        for (const QString& language : {u"Italiano.lng"_s, u"English.lng"_s}) growTo(test, language, size);
        compare(test, file, 1.5);
    }
    return 0;
}
