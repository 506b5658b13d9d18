#include "cli/run.h"

#include "cli/version_commands.h"
#include "install/state_folder.h"
#include "prompts/own_messages.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr int notUnderstood = 2;
const QString help = u"0183"_s;
const QString unknownWord = u"0184"_s;

Said answerTo(const CommandLine& command, const ProgramFolder& folder) {
    QString current;
    modLanguageSupport language(folder.path, current);
    const EarlierVersions versions(folder.path, findStateFolder(folder));
    switch (command.deed) {
    case CommandLine::Deed::Help: return {ownText(language, help), {}};
    case CommandLine::Deed::Version: return {u"Quarvel " QUARVEL_VERSION ""_s, {}};
    case CommandLine::Deed::ListVersions: return listVersions(versions, language, command.subject);
    case CommandLine::Deed::BringBack: return bringBack(versions, language, command.subject, command.number);
    case CommandLine::Deed::Refuse:
    case CommandLine::Deed::Start: break;
    }
    return {{}, filledIn(ownText(language, unknownWord), command.subject), notUnderstood};
}

void print(std::FILE* where, const QString& text) {
    if (text.isEmpty()) return;
    std::fputs(text.toUtf8().constData(), where);
    if (!text.endsWith(u'\n')) std::fputc('\n', where);
}

} // namespace

int runCommand(const CommandLine& command, const ProgramFolder& folder) {
    const Said said = answerTo(command, folder);
    print(stdout, said.out);
    print(stderr, said.error);
    return said.status;
}

} // namespace quarvel
