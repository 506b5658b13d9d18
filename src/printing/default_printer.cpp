#include "printing/default_printer.h"

#include <QImage>
#include <QLibrary>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

using namespace Qt::StringLiterals;
using quarvel::PrintOutcome;

extern "C" Q_DECL_EXPORT PrintOutcome quarvelPrintOnDefaultPrinter(const QImage& picture,
                                                                   const QString& title,
                                                                   const std::function<bool()>& mayBegin);

namespace {

/// Why there is no default printer: the toolkit says the same of a service without one and of none at all.
/// The service's library knows, thread by thread, how its last question ended (RFC 8011, 4.1.8: the codes
/// from server-error-internal-error on).
PrintOutcome whyNoPrinter() {
    constexpr int firstServerError = 0x0500;
    using LastError = int (*)();
    const auto lastError = reinterpret_cast<LastError>(QLibrary::resolve(u"cups"_s, 2, "cupsLastError"));
    const bool unanswered = lastError != nullptr && lastError() >= firstServerError;
    return unanswered ? PrintOutcome::NoAnswer : PrintOutcome::NoPrinter;
}

} // namespace

PrintOutcome quarvelPrintOnDefaultPrinter(const QImage& picture, const QString& title,
                                          const std::function<bool()>& mayBegin) {
    // Without a printer a QPrinter still calls itself valid: the printer is asked for first.
    const QPrinterInfo defaultPrinter = QPrinterInfo::defaultPrinter();
    if (defaultPrinter.isNull()) return whyNoPrinter();
    QPrinter printer(defaultPrinter, QPrinter::HighResolution);
    printer.setColorMode(QPrinter::Color); // a queue without a driver does not say that it can
    printer.setDocName(title);
    const QSizeF size = picture.deviceIndependentSize();
    printer.setPageOrientation(size.width() > size.height() ? QPageLayout::Landscape : QPageLayout::Portrait);

    if (!mayBegin()) return PrintOutcome::Failed;
    QPainter painter;
    if (!painter.begin(&printer)) return PrintOutcome::Failed;
    const QRectF page(QPointF(0, 0), QSizeF(printer.pageRect(QPrinter::DevicePixel).size()));
    QRectF place(QPointF(0, 0), size.scaled(page.size(), Qt::KeepAspectRatio));
    place.moveLeft((page.width() - place.width()) / 2);
    painter.drawImage(place, picture, QRectF(picture.rect()));
    const bool finished = painter.end();
    return finished && printer.printerState() != QPrinter::Error ? PrintOutcome::Printed
                                                                 : PrintOutcome::Failed;
}
