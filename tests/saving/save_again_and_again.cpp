#include "archive/saving.h"
#include "saving/two_records.h"

#include <QCoreApplication>
#include <QFile>
#include <cstdio>

/// Saves the airport KILL in the program folder given, with one record and another in turn, until it is
/// killed.
int main(int argc, char** argv) {
    if (argc != 2) return 2;
    const quarvel::ArchivePaths paths(QFile::decodeName(argv[1]));
    std::puts("saving");
    std::fflush(stdout);
    for (int which = 0;; which = 1 - which)
        if (!quarvel::saveAirport(paths, QStringLiteral("KILL"), quarvel::recordOf(which))) return 1;
}
