#include "pictures/painter.h"

#include "pictures/axis.h"
#include "pictures/ink_row.h"

#include <algorithm>
#include <cmath>

namespace quarvel {
namespace {

constexpr std::uint32_t white = 0xFFFFFFFF;

/// Kept from one painting to the next, so that scrolling does not ask for memory.
struct Scratch {
    Axis across;
    Axis down;
    InkRow row;
};

void copyRow(const Picture& picture, const Scratch& scratch, int y, std::uint32_t* line) {
    const std::uint32_t* const palette = picture.palette().data();
    const Axis& across = scratch.across;
    const std::uint8_t* const from = picture.row(scratch.down.first(y)) + across.first(across.begin());
    std::uint32_t* const to = line + across.begin();
    const int count = across.end() - across.begin();
    for (int x = 0; x < count; ++x) to[x] = palette[from[x]];
}

void filterRow(const Picture& picture, Scratch& scratch, int y, std::uint32_t* line) {
    const Axis& across = scratch.across;
    const Axis& down = scratch.down;
    std::fill(line + across.begin(), line + across.end(), scratch.row.groundColour());
    const float* shares = down.shares(y);
    for (int k = 0; k < down.taps(); ++k) {
        if (shares[k] == 0.0f) continue;
        scratch.row.add(picture.row(down.first(y) + k) + scratch.row.firstColumn(), shares[k]);
    }
    scratch.row.pour(across, line);
}

void paintRows(const Picture& picture, Scratch& scratch, QImage& target) {
    const Axis& across = scratch.across;
    const Axis& down = scratch.down;
    const bool natural = across.isNatural() && down.isNatural();
    if (!natural) {
        scratch.row.setColours(picture.palette(), picture.ground());
        scratch.row.arrange(across);
    }
    for (int y = 0; y < target.height(); ++y) {
        auto* line = reinterpret_cast<std::uint32_t*>(target.scanLine(y));
        if (y < down.begin() || y >= down.end()) {
            std::fill_n(line, target.width(), white);
            continue;
        }
        std::fill(line, line + across.begin(), white);
        if (natural)
            copyRow(picture, scratch, y, line);
        else
            filterRow(picture, scratch, y, line);
        std::fill(line + across.end(), line + target.width(), white);
    }
}

bool isLength(double length) { return std::isfinite(length) && length > 0; }

} // namespace

void paintPicture(const Picture& picture, QSizeF stretched, QRect part, QImage& target) {
    Q_ASSERT(target.format() == QImage::Format_RGB32 && target.size() == part.size());
    if (part.isEmpty()) return;
    if (picture.isNull() || !isLength(stretched.width()) || !isLength(stretched.height())) {
        target.fill(white);
        return;
    }
    thread_local Scratch scratch;
    scratch.across.plan(picture.size().width(), stretched.width(), part.x(), part.width());
    scratch.down.plan(picture.size().height(), stretched.height(), part.y(), part.height());
    if (scratch.across.isEmpty() || scratch.down.isEmpty())
        target.fill(white);
    else
        paintRows(picture, scratch, target);
}

} // namespace quarvel
