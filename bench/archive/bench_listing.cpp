// The promise: listing an archive of 50,000 airports (reading, matching, sorting) costs at most twice as much
// as only walking through its directory, and a hundredth of that reading while the directory is unchanged.

#include "archive/listing.h"
#include "program/measuring.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <dirent.h>

using namespace quarvel;
using namespace quarvel::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int folderCount = 50'000;
constexpr int rounds = 31;
constexpr int keptListings = 50; ///< a round: one alone is near the grain of the clock

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

void measure(const char* label, const QString& folder, const QString& typed) {
    const QByteArray encoded = QFile::encodeName(folder);
    ArchiveSearch kept(std::chrono::nanoseconds(0));
    const int rows = kept.list(folder, typed).size();
    if (!kept.keeps(folder)) qFatal("this file system does not tell when a folder changes");
    int listed = 0;
    const auto times = medians(rounds, {[&] { walk(encoded); },
                                        [&] { listed += ArchiveSearch().list(folder, typed).size(); },
                                        [&] {
                                            for (int i = 0; i < keptListings; ++i)
                                                listed += kept.list(folder, typed).size();
                                        }});
    if (listed % rows != 0) qFatal("rows come and go");
    const double again = times[2] / keptListings;
    std::printf("%-10s typed %-18s: %5d rows, walk %5.2f ms, read %5.2f ms, ratio %.2f (budget 2); unchanged "
                "%.4f ms, ratio 1/%.0f of reading (%s)\n",
                label, qPrintable(u'"' + typed + u'"'), rows, times[0], times[1], times[1] / times[0], again,
                times[1] / again,
                typed.contains(u'*') ? "no budget: every name is looked at" : "budget 1/100");
}

void measureArchive(const char* label, const QString& before, const QString& after) {
    const QTemporaryDir temp;
    const QDir dir(temp.path());
    for (int i = 0; i < folderCount; ++i)
        if (!dir.mkdir(before + code(i) + after)) qFatal("cannot make the archive");
    for (const QString& typed : {u""_s, before + u"LI"_s, before + u"X"_s, u"*LI"_s})
        measure(label, temp.path(), typed);
}

} // namespace

int main() {
    measureArchive("codes", {}, {});
    measureArchive("long names", u"AEROPORTO DI "_s, u" NORD"_s);
    return 0;
}
