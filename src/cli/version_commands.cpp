#include "cli/version_commands.h"

#include "files/lookup.h"
#include "files/system_name.h"
#include "prompts/own_messages.h"
#include "text/decoding.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr int notDone = 1;
constexpr int shownSigns = 60;

// The numbers of what is said.
const QString noVersions = u"0185"_s;
const QString noSuchNumber = u"0186"_s;
const QString broughtBack = u"0187"_s;
const QString notBroughtBack = u"0188"_s;

QString when(const EarlierVersion& version) {
    return version.kept.toLocalTime().toString(u"yyyy-MM-dd HH:mm:ss"_s);
}

/// The beginning of a version's first line. A terminal obeys control characters: none of them reaches it.
QString firstLine(const EarlierVersion& version, qint64 maxBytes) {
    const Result<QByteArray> bytes = readWholeFile(version.path, maxBytes);
    if (!bytes || version.path.endsWith(u".gif", Qt::CaseInsensitive)) return {};
    const QString text = decodeText(bytes.value());
    QString shown = text.left(text.indexOf(u'\n')).left(shownSigns).trimmed();
    std::replace_if(
        shown.begin(), shown.end(), [](QChar sign) { return !sign.isPrint(); }, u'.');
    return shown;
}

bool belongsTo(const QString& file, const QString& airport) {
    return airport.isEmpty() || sameName(file.section(u'/', 1, 1), airport);
}

} // namespace

Said listVersions(const EarlierVersions& versions, modLanguageSupport& language, const QString& airport) {
    QString list;
    for (const QString& file : versions.files()) {
        if (!belongsTo(file, airport)) continue;
        list += readableName(file) + u'\n';
        int number = 0;
        for (const EarlierVersion& version : versions.versionsOf(file))
            list += u"%1  %2  "_s.arg(++number, 4).arg(when(version)) +
                    firstLine(version, limitsFor(file).maxBytes) + u'\n';
    }
    if (!list.isEmpty()) return {list, {}};
    return {
        {}, filledIn(ownText(language, noVersions), airport.isEmpty() ? u"aeroporti"_s : airport), notDone};
}

Said bringBack(const EarlierVersions& versions, modLanguageSupport& language, const QString& file,
               int number) {
    const auto refused = [&](const Failure& failure) {
        return Said{{}, ownText(language, notBroughtBack) + u'\n' + reasonText(language, failure), notDone};
    };
    const std::vector<EarlierVersion> kept = versions.versionsOf(file);
    if (kept.empty()) return {{}, filledIn(ownText(language, noVersions), file), notDone};
    if (static_cast<std::size_t>(number) > kept.size())
        return {{}, filledIn(ownText(language, noSuchNumber), file, QString::number(number)), notDone};
    const EarlierVersion& version = kept[static_cast<std::size_t>(number) - 1];
    if (const Result<void> done = versions.bringBack(file, version); !done) return refused(done.failure());
    return {filledIn(ownText(language, broughtBack), file, when(version)), {}};
}

} // namespace quarvel
