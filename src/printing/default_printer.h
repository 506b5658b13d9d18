#pragma once

class QPixmap;
class QString;

namespace quarvel {

enum class PrintOutcome { Printed, NoPrinter, Failed };

/// The name under which the library quarvel-printing.so offers printOnDefaultPrinter().
constexpr char printOnDefaultPrinterName[] = "quarvelPrintOnDefaultPrinter";

/// Prints a picture on the default printer, without a dialog: as large as the page allows with its
/// proportions kept, at the top of the page, in the orientation that suits it. `title` names the print job.
using PrintOnDefaultPrinter = PrintOutcome (*)(const QPixmap& picture, const QString& title);

} // namespace quarvel
