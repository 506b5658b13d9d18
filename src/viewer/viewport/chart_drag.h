#pragma once

#include <QPointF>

namespace quarvel {

/// A chart dragged by the pointer: the point of it that was grabbed stays under the pointer, also after the
/// pointer has been where the chart could not follow. Points and places in pixels, of whatever origin.
class ChartDrag {
public:
    /// Grabs a chart whose corner stands at `place`.
    ChartDrag(QPointF pointer, QPointF place) : pointer_(pointer), place_(place), grabbed_(pointer - place) {}

    /// Where the chart's corner should stand now; `place` is where it stands. A chart that another hand has
    /// moved in between, by a zoom, is grabbed anew where the pointer was.
    [[nodiscard]] QPointF moved(QPointF pointer, QPointF place) {
        if (place != place_) grabbed_ = pointer_ - place;
        pointer_ = pointer;
        return pointer - grabbed_;
    }
    /// Where the chart has come to stand.
    void standsAt(QPointF place) { place_ = place; }

private:
    QPointF pointer_;
    QPointF place_;
    QPointF grabbed_;
};

} // namespace quarvel
