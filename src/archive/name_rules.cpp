#include "archive/name_rules.h"

#include "files/system_name.h"

#include <QChar>

namespace quarvel {

using namespace Qt::StringLiterals;

namespace {

/// Bytes of the longest new name. A file system takes names of 255, and the data file adds ".txt".
constexpr qsizetype longestNewName = 255 - 4;

bool leavesFolder(QChar character) {
    return character == u'/' || character == u'\\' || character.category() == QChar::Other_Control;
}

bool refused(QChar character) { return leavesFolder(character) || u"*?\"<>|:"_s.contains(character); }

} // namespace

Result<void> checkAirportName(const QString& name, NameUse use) {
    if (name.isEmpty() || name == u"."_s || name == u".."_s) return Failure{Fault::BadName, name, {}};
    for (const QChar character : name)
        if (refused(character)) return Failure{Fault::BadName, name, QString(character)};
    if (use == NameUse::Existing) return {};
    // What begins with a dot is hidden: the airport would never be listed.
    if (name.startsWith(u'.')) return Failure{Fault::BadName, name, name.first(1)};
    if (name.endsWith(u'.') || name.endsWith(u' ')) return Failure{Fault::BadName, name, name.last(1)};
    if (systemName(name).size() > longestNewName) return Failure{Fault::BadName, name, {}};
    return {};
}

bool staysInFolder(const QString& text) {
    for (const QChar character : text)
        if (leavesFolder(character)) return false;
    return true;
}

} // namespace quarvel
