#pragma once

#include "pictures/gif_maker.h"

#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QRandomGenerator>
#include <QSize>

namespace quarvel::bench {

/// A GIF of a chart with the density of a procedure chart: routes, circles and words in small print, smoothed
/// where there are more than two shades from white to black; another one for each seed. Needs a
/// QGuiApplication for the letters.
inline QByteArray drawnChart(QSize size, int shades, quint32 seed = 7) {
    QImage page(size, QImage::Format_Grayscale8);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.setRenderHint(QPainter::Antialiasing, shades > 2);
    painter.setPen(QPen(Qt::black, 3));
    QRandomGenerator random(seed);
    const auto point = [&] { return QPoint(random.bounded(size.width()), random.bounded(size.height())); };
    for (int i = 0; i < 150; ++i) painter.drawLine(point(), point());
    for (int i = 0; i < 60; ++i) painter.drawEllipse(point(), 20 + i * 8, 20 + i * 8);
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(34);
    painter.setFont(font);
    for (int i = 0; i < 900; ++i)
        painter.drawText(point(), QStringLiteral("D%1 FL%2").arg(i).arg(60 + i % 200));
    painter.end();

    GifRecipe recipe{.screen = size, .place = QRect(QPoint(0, 0), size), .pixels = {}, .colours = {}};
    for (int shade = 0; shade < shades; ++shade)
        recipe.colours.push_back(static_cast<std::uint32_t>(255 * shade / (shades - 1)) * 0x010101);
    for (int y = 0; y < size.height(); ++y)
        for (const uchar *at = page.constScanLine(y), *end = at + size.width(); at != end; ++at)
            recipe.pixels.push_back(static_cast<std::uint8_t>((*at * (shades - 1) + 127) / 255));
    return makeGif(recipe);
}

} // namespace quarvel::bench
