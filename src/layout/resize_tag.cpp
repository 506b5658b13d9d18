#include "layout/resize_tag.h"

namespace quarvel {

ResizeTag readResizeTag(QStringView tag) {
    if (!tag.startsWith(u'@')) return {};
    const auto holds = [tag](QChar letter) { return tag.contains(letter, Qt::CaseInsensitive); };
    return {.left = holds(u'L'), .top = holds(u'T'), .width = holds(u'W'), .height = holds(u'H')};
}

} // namespace quarvel
