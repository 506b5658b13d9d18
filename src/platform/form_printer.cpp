#include "platform/form_printer.h"

#include <QPainter>
#include <QPixmap>
#include <QPrinter>
#include <QPrinterInfo>
#include <QWidget>

namespace quarvel {

PrintOutcome QtFormPrinter::print(QWidget& window) {
    const QPixmap image = window.grab();
    // Without a printer a QPrinter still calls itself valid: the printer is asked for first.
    const QPrinterInfo defaultPrinter = QPrinterInfo::defaultPrinter();
    if (defaultPrinter.isNull()) return PrintOutcome::NoPrinter;
    QPrinter printer(defaultPrinter, QPrinter::HighResolution);
    printer.setColorMode(QPrinter::Color); // a queue without a driver does not say that it can
    printer.setDocName(window.windowTitle());
    const QSizeF size = image.deviceIndependentSize();
    printer.setPageOrientation(size.width() > size.height() ? QPageLayout::Landscape : QPageLayout::Portrait);

    QPainter painter;
    if (!painter.begin(&printer)) return PrintOutcome::Failed;
    const QRectF page(QPointF(0, 0), QSizeF(printer.pageRect(QPrinter::DevicePixel).size()));
    QRectF place(QPointF(0, 0), size.scaled(page.size(), Qt::KeepAspectRatio));
    place.moveLeft((page.width() - place.width()) / 2);
    painter.drawPixmap(place, image, QRectF(image.rect()));
    const bool finished = painter.end();
    return finished && printer.printerState() != QPrinter::Error ? PrintOutcome::Printed
                                                                 : PrintOutcome::Failed;
}

} // namespace quarvel
