#include "text/leading_number.h"

namespace quarvel {
namespace {

bool isBlank(QChar character) {
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r';
}

bool isDigit(QChar character) { return character >= u'0' && character <= u'9'; }

} // namespace

double leadingNumber(const QString& text) {
    QString number;
    bool pointRead = false;
    for (const QChar character : text) {
        if (isBlank(character)) continue;
        const bool sign = number.isEmpty() && (character == u'+' || character == u'-');
        const bool point = character == u'.' && !pointRead;
        if (!sign && !point && !isDigit(character)) break;
        pointRead = pointRead || point;
        number += character;
    }
    return number.toDouble(); // 0 for a lone sign or point
}

} // namespace quarvel
