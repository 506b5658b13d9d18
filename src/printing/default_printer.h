#pragma once

#include <functional>

class QImage;
class QString;

namespace quarvel {

enum class PrintOutcome {
    Printed,
    NoPrinter,  ///< the printing service answers, and no printer is the default one
    Failed,     ///< nothing was printed
    NoAnswer,   ///< the printing service does not answer; nothing was printed and nothing will be
    Unconfirmed ///< the page was being handed over when the service stopped answering
};

/// The name under which the library quarvel-printing.so offers printOnDefaultPrinter().
constexpr char printOnDefaultPrinterName[] = "quarvelPrintOnDefaultPrinter";

/// Prints a picture on the default printer, without a dialog: as large as the page allows with its
/// proportions kept, at the top of the page, in the orientation that suits it. `title` names the print job.
/// Waits for the printing service, for minutes if need be: not for the user-interface thread. Just before
/// the page goes to the service it asks `mayBegin`; when that is false, nothing is printed (Failed).
using PrintOnDefaultPrinter = PrintOutcome (*)(const QImage& picture, const QString& title,
                                               const std::function<bool()>& mayBegin);

} // namespace quarvel
