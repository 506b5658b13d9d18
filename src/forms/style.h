#pragma once

#include <QIcon>
#include <QProxyStyle>
#include <map>

class QStyleOptionSlider;

namespace quarvel {

/// How the windows' standard parts are drawn: the toolkit's Fusion, with scroll bars, option buttons and
/// message pictures in the program's own colours and shapes.
class ProgramStyle : public QProxyStyle {
public:
    ProgramStyle();

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                                     const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* answer) const override;

private:
    void drawScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QWidget* widget) const;

    mutable std::map<StandardPixmap, QIcon> boxIcons_; ///< those that have been shown
};

} // namespace quarvel
