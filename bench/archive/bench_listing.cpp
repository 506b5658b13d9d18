// The promise: listing an archive of 50,000 airports (reading, matching, sorting) costs at most three times
// as much as only walking through its directory.

#include "archive/listing.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <dirent.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int folderCount = 50'000;
constexpr int rounds = 15;

/// The i-th of 456,976 codes of four letters, spread over the alphabet; different for different i.
QString code(int i) {
    QString text;
    for (int rest = static_cast<int>(i * 99'991LL % 456'976), k = 0; k < 4; ++k, rest /= 26)
        text.prepend(QChar(u'A' + rest % 26));
    return text;
}

int walk(const QByteArray& folder) {
    int count = 0;
    DIR* dir = ::opendir(folder.constData());
    if (dir == nullptr) return 0;
    while (::readdir(dir) != nullptr) ++count; // NOLINT(concurrency-mt-unsafe): one thread only
    ::closedir(dir);
    return count;
}

/// Milliseconds that `work` takes.
template <class Work>
double timed(Work work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + rounds / 2, values.end());
    return values[rounds / 2];
}

/// Medians of one case, walk and listing measured in turns; false when the archive is not the one expected.
bool measure(const char* label, const QString& folder, const QString& typed) {
    const QByteArray encoded = QFile::encodeName(folder);
    std::vector<double> bare;
    std::vector<double> listed;
    int rows = 0;
    bool whole = true;
    for (int i = 0; i < rounds; ++i) {
        bare.push_back(timed([&] { whole = whole && walk(encoded) == folderCount + 2; }));
        listed.push_back(timed([&] { rows = quarvel::ArchiveListing(folder, typed).size(); }));
    }
    std::printf("%-12s typed \"%s\": %5d rows, walk %6.2f ms, listing %6.2f ms, ratio %.2f\n", label,
                qPrintable(typed), rows, median(bare), median(listed), median(listed) / median(bare));
    return whole;
}

bool measureArchive(const char* label, const QString& before, const QString& after) {
    const QTemporaryDir temp;
    const QDir dir(temp.path());
    for (int i = 0; i < folderCount; ++i)
        if (!dir.mkdir(before + code(i) + after)) return false;
    bool fine = true;
    for (const QString& typed : {u""_s, before + u"LI"_s, before + u"X"_s})
        fine = measure(label, temp.path(), typed) && fine;
    return fine;
}

} // namespace

int main() {
    const bool codes = measureArchive("codes", {}, {});
    const bool longNames = measureArchive("long names", u"AEROPORTO DI "_s, u" NORD"_s);
    return codes && longNames ? 0 : 1;
}
