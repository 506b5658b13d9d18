// What one language pass costs over a window of 120 controls, against reading the file and searching the key
// once a lookup, which is the least that a pass without a cache can do.

#include "files/whole_file.h"
#include "language/language_support.h"
#include "value_window.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

/// A language file of about `size` bytes in the order that costs most: the window's section is the last one,
/// so that every lookup crosses the whole file.
QByteArray languageFile(int size) {
    QByteArray window = "[frmMain]\r\nfrmMain.Caption=\"Instrument charts\"\r\n";
    for (int i = 0; i < 120; ++i)
        window += "cmdButton" + QByteArray::number(i) + ".Caption=\"Caption of a button\"\r\n";
    QByteArray bytes = "[Strings]\r\n";
    while (bytes.size() + window.size() < size)
        bytes += "0001=\"The text of a message of the usual length?\"\r\n";
    return bytes + window;
}

bool plainLookup(const QByteArray& path, const QByteArray& key) {
    const int file = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    struct stat info {};
    ::fstat(file, &info);
    const auto size = static_cast<size_t>(info.st_size);
    const std::unique_ptr<char[]> bytes(new char[size]);
    const bool whole = ::read(file, bytes.get(), size) == info.st_size;
    ::close(file);
    return whole && ::memmem(bytes.get(), size, key.constData(), static_cast<size_t>(key.size())) != nullptr;
}

double median(std::vector<qint64> nanoseconds) {
    std::ranges::sort(nanoseconds);
    return static_cast<double>(nanoseconds[nanoseconds.size() / 2]) / 1e6;
}

void compare(int size) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"English.lng"_s);
    if (!writeWholeFile(file, languageFile(size))) std::abort();
    QString current = u"English"_s;
    const modLanguageSupport support(folder.path(), current);
    ValueWindow window;
    std::vector<QByteArray> keys{"frmMain.Caption", "frmMain.Tag"};
    for (int i = 0; i < 120; ++i) {
        const QString name = window.add(u"cmdButton%1"_s.arg(i)).name();
        for (const char* suffix : {".Caption", ".ToolTipText", ".Tag"})
            keys.push_back(name.toLatin1() + suffix);
    }
    const QByteArray path = QFile::encodeName(file);
    std::vector<qint64> pass, plain;
    QElapsedTimer timer;
    for (int round = 0; round < 101; ++round) {
        timer.start();
        support.MLSApplyLanguage(window);
        pass.push_back(timer.nsecsElapsed());
        timer.start();
        const auto found =
            std::ranges::count_if(keys, [&](const auto& key) { return plainLookup(path, key); });
        plain.push_back(timer.nsecsElapsed());
        if (found != 121) std::abort();
    }
    std::printf("%d bytes: pass %.2f ms, plain %.2f ms, ratio %.2f (budget 1.5)\n", size, median(pass),
                median(plain), median(pass) / median(plain));
}

} // namespace

int main() {
    compare(20 * 1024);
    compare(63 * 1024 - 600); // still read as a profile
    compare(1024 * 1024);     // scanned by lines
}
