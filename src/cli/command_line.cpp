#include "cli/command_line.h"

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

using Deed = CommandLine::Deed;

constexpr int bringBackWords = 3;

CommandLine refusing(const QString& word) { return {Deed::Refuse, word}; }

/// The first word that is one too many; else what stands behind the command.
CommandLine alone(Deed deed, const QStringList& words) {
    return words.size() > 1 ? refusing(words.at(1)) : CommandLine{deed, {}};
}

CommandLine bringBack(const QStringList& words) {
    if (words.size() < bringBackWords) return refusing(words.first());
    if (words.size() > bringBackWords) return refusing(words.at(bringBackWords));
    bool isNumber = false;
    const int number = words.at(2).toInt(&isNumber);
    return isNumber && number > 0 ? CommandLine{Deed::BringBack, words.at(1), number} : refusing(words.at(2));
}

} // namespace

CommandLine readCommandLine(const QStringList& words) {
    if (words.isEmpty()) return {};
    const QString& first = words.first();
    if (first == u"--help"_s || first == u"-h"_s) return alone(Deed::Help, words);
    if (first == u"--version"_s) return alone(Deed::Version, words);
    if (first == u"bring-back"_s) return bringBack(words);
    if (first != u"versions"_s) return refusing(first);
    if (words.size() > 2) return refusing(words.at(2));
    const QString airport = words.size() > 1 ? words.at(1) : QString();
    return airport.startsWith(u'-') ? refusing(airport) : CommandLine{Deed::ListVersions, airport};
}

} // namespace quarvel
