#include "printing/default_printer.h"

#include <QPainter>
#include <QPixmap>
#include <QPrinter>
#include <QPrinterInfo>

extern "C" Q_DECL_EXPORT quarvel::PrintOutcome quarvelPrintOnDefaultPrinter(const QPixmap& picture,
                                                                            const QString& title);

quarvel::PrintOutcome quarvelPrintOnDefaultPrinter(const QPixmap& picture, const QString& title) {
    // Without a printer a QPrinter still calls itself valid: the printer is asked for first.
    const QPrinterInfo defaultPrinter = QPrinterInfo::defaultPrinter();
    if (defaultPrinter.isNull()) return quarvel::PrintOutcome::NoPrinter;
    QPrinter printer(defaultPrinter, QPrinter::HighResolution);
    printer.setColorMode(QPrinter::Color); // a queue without a driver does not say that it can
    printer.setDocName(title);
    const QSizeF size = picture.deviceIndependentSize();
    printer.setPageOrientation(size.width() > size.height() ? QPageLayout::Landscape : QPageLayout::Portrait);

    QPainter painter;
    if (!painter.begin(&printer)) return quarvel::PrintOutcome::Failed;
    const QRectF page(QPointF(0, 0), QSizeF(printer.pageRect(QPrinter::DevicePixel).size()));
    QRectF place(QPointF(0, 0), size.scaled(page.size(), Qt::KeepAspectRatio));
    place.moveLeft((page.width() - place.width()) / 2);
    painter.drawPixmap(place, picture, QRectF(picture.rect()));
    const bool finished = painter.end();
    return finished && printer.printerState() != QPrinter::Error ? quarvel::PrintOutcome::Printed
                                                                 : quarvel::PrintOutcome::Failed;
}
