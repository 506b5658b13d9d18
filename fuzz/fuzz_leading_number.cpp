// The number at the start of a typed text, and what a runway's first end makes of it for its second.

#include "archive/entry_rules.h"
#include "input.h"
#include "text/leading_number.h"

#include <QString>
#include <cmath>

using namespace quarvel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = QString::fromUtf8(inputBytes(data, size));
    const double number = leadingNumber(text);
    mustHold(!std::isnan(number));
    mustHold(leadingNumber(u' ' + text + u'\t' + u'x') == number);
    const Designator judged = judgeDesignator(text);
    mustHold((judged.kind == DesignatorKind::Valid) != judged.reciprocal.isEmpty());
    mustHold(judged.kind != DesignatorKind::Valid || number <= 18);
    return 0;
}
