#include "text/strings.h"

#include <algorithm>

namespace quarvel {

QString ReverseString(QString text) {
    std::reverse(text.begin(), text.end());
    return text;
}

QString StripExtension(const QString& name) { return name.left(std::max<qsizetype>(0, name.size() - 4)); }

QString GetExtension(const QString& name) { return name.right(3); }

QString toolkitTitle(QString title) {
    return title.isEmpty() ? QStringLiteral(" ")
                           : title.replace(QLatin1StringView("[*]"), QLatin1StringView("[*][*]"));
}

QString trimBlanks(const QString& text) {
    qsizetype first = 0;
    qsizetype end = text.size();
    while (first < end && text.at(first) == u' ') ++first;
    while (end > first && text.at(end - 1) == u' ') --end;
    return text.mid(first, end - first);
}

} // namespace quarvel
