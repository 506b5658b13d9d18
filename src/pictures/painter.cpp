#include "pictures/painter.h"

#include "pictures/axis.h"
#include "pictures/grey_row.h"
#include "pictures/ink_row.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace quarvel {
namespace {

constexpr std::uint32_t white = 0xFFFFFFFF;

/// Kept from one painting to the next, so that scrolling does not ask for memory.
struct Scratch {
    Axis across;
    Axis down;
    GreyRow grey;
    InkRow ink;
};

void copyRow(const Picture& picture, const Scratch& scratch, int y, std::uint32_t* line) {
    const std::uint32_t* const palette = picture.palette().data();
    const Axis& across = scratch.across;
    const std::uint8_t* const row = picture.row(scratch.down.first(y));
    if (!across.isNatural()) {
        for (int x = across.begin(); x < across.end(); ++x) line[x] = palette[row[across.first(x)]];
        return;
    }
    const std::uint8_t* const from = row + across.first(across.begin());
    std::uint32_t* const to = line + across.begin();
    const int count = across.end() - across.begin();
    for (int x = 0; x < count; ++x) to[x] = palette[from[x]];
}

/// Calls `paintRow` for each row of the target that shows some of the picture; everything beside it is white.
template <class PaintRow>
void paintRows(const Scratch& scratch, QImage& target, const PaintRow& paintRow) {
    const Axis& across = scratch.across;
    const Axis& down = scratch.down;
    for (int y = 0; y < target.height(); ++y) {
        auto* line = reinterpret_cast<std::uint32_t*>(target.scanLine(y));
        if (y < down.begin() || y >= down.end()) {
            std::fill_n(line, target.width(), white);
            continue;
        }
        std::fill(line, line + across.begin(), white);
        paintRow(y, line);
        std::fill(line + across.end(), line + target.width(), white);
    }
}

void paintDots(const Picture& picture, const Scratch& scratch, QImage& target) {
    const Axis& down = scratch.down;
    const Axis& across = scratch.across;
    paintRows(scratch, target, [&](int y, std::uint32_t* line) {
        if (y == down.begin() || down.first(y) != down.first(y - 1)) {
            copyRow(picture, scratch, y, line);
            return;
        }
        const auto* above = reinterpret_cast<const std::uint32_t*>(target.constScanLine(y - 1));
        std::copy(above + across.begin(), above + across.end(), line + across.begin());
    });
}

void paintGrey(const Picture& picture, Scratch& scratch, QImage& target) {
    const Axis& down = scratch.down;
    GreyRow& row = scratch.grey;
    row.arrange(scratch.across);
    const auto stride = static_cast<std::size_t>(picture.size().width());
    paintRows(scratch, target, [&](int y, std::uint32_t* line) {
        row.add(picture.row(down.first(y)) + row.firstColumn(), stride, down.shares(y), down.taps());
        row.pour(line + scratch.across.begin());
    });
}

void paintColours(const Picture& picture, Scratch& scratch, QImage& target) {
    const Axis& across = scratch.across;
    const Axis& down = scratch.down;
    InkRow& row = scratch.ink;
    row.setColours(picture.palette(), picture.ground());
    row.arrange(across);
    paintRows(scratch, target, [&](int y, std::uint32_t* line) {
        std::fill(line + across.begin(), line + across.end(), row.groundColour());
        const float* shares = down.shares(y);
        for (int k = 0; k < down.taps(); ++k)
            if (shares[k] > 0) row.add(picture.row(down.first(y) + k) + row.firstColumn(), shares[k]);
        row.pour(across, line);
    });
}

void paintPart(const Picture& picture, Scratch& scratch, QImage& target) {
    if (scratch.across.isWhole() && scratch.down.isWhole())
        paintDots(picture, scratch, target);
    else if (picture.isGrey() && scratch.down.isSmaller()) // enlarged, passing over blank paper is worth more
        paintGrey(picture, scratch, target);
    else
        paintColours(picture, scratch, target);
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
        paintPart(picture, scratch, target);
}

} // namespace quarvel
