// A control's tag, in which letter case and whatever is added behind must not take a measure away.

#include "input.h"
#include "layout/resize_tag.h"

#include <QString>

using namespace quarvel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = QString::fromUtf8(inputBytes(data, size));
    const ResizeTag tag = readResizeTag(text);
    mustHold(text.startsWith(u'@') || tag == ResizeTag());
    mustHold(readResizeTag(QString::fromUtf8(inputBytes(data, size).toUpper())) == tag);
    const ResizeTag longer = readResizeTag(text + u'w');
    mustHold(longer.width);
    mustHold(longer.left >= tag.left && longer.top >= tag.top && longer.height >= tag.height);
    return 0;
}
