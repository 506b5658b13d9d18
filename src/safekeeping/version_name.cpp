#include "safekeeping/version_name.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

const QString timeFormat = u"yyyy-MM-dd HH.mm.ss.zzz"_s;

} // namespace

QString versionName(const QDateTime& kept, const QString& fileName) {
    const QString extension = QFileInfo(fileName).suffix();
    return kept.toUTC().toString(timeFormat) + u'Z' + (extension.isEmpty() ? QString() : u'.' + extension);
}

QDateTime versionTime(const QString& name) {
    QDateTime time = QDateTime::fromString(name.section(u'Z', 0, 0), timeFormat);
    time.setTimeSpec(Qt::UTC);
    return name.contains(u'Z') ? time : QDateTime();
}

} // namespace quarvel
