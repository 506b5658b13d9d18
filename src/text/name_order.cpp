#include "text/name_order.h"

#include <algorithm>

namespace quarvel {

QString sortingKey(const QString& name) {
    const QString folded = name.normalized(QString::NormalizationForm_C).toCaseFolded();
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    const qsizetype dot = folded.lastIndexOf(u'.');
    const auto extension = dot < 0 ? folded.cend() : folded.cbegin() + dot;
    QString key;
    for (auto at = folded.cbegin(); at != folded.cend();) {
        if (!isDigit(*at)) {
            key += at == extension ? QChar(QChar::Null) : *at;
            ++at;
            continue;
        }
        const auto end = std::find_if_not(at, folded.cend(), isDigit);
        const auto first = std::find_if(at, end, [](QChar digit) { return digit != u'0'; });
        // Of two numbers the longer is the larger. All begin alike, so that they stand where digits do.
        key += u'0';
        key += QChar(static_cast<char16_t>(end - first));
        key += QStringView(first, end);
        at = end;
    }
    return key;
}

} // namespace quarvel
