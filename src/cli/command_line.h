#pragma once

#include <QString>
#include <QStringList>

namespace quarvel {

/// What the command line asks for.
struct CommandLine {
    enum class Deed { Start, Help, Version, ListVersions, BringBack, Refuse };
    Deed deed = Deed::Start;
    QString
        subject;    ///< ListVersions: the airport, empty for all files; BringBack: the file; Refuse: the word
    int number = 0; ///< BringBack: the version, 1 for the newest
};

/// Reads the words behind the program's name. The program takes these and no others: not the toolkit's
/// options either.
[[nodiscard]] CommandLine readCommandLine(const QStringList& words);

} // namespace quarvel
