#include "platform/form_printer.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>
#include <QPixmap>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

/// The library that prints lies beside the program or, installed, in ../lib/quarvel. It is opened now and not
/// linked: what printing brings along would lengthen every start. Null when it is not there.
PrintOnDefaultPrinter openPrinting() {
    const QString folder = QCoreApplication::applicationDirPath();
    for (const QString& place : {folder, folder + u"/../lib/quarvel"_s}) {
        const QString file = place + u"/quarvel-printing.so"_s;
        if (!QFileInfo::exists(file)) continue;
        if (const QFunctionPointer print = QLibrary::resolve(file, printOnDefaultPrinterName))
            return reinterpret_cast<PrintOnDefaultPrinter>(print);
    }
    return nullptr;
}

} // namespace

PrintOutcome QtFormPrinter::print(QWidget& window) {
    static const PrintOnDefaultPrinter printPicture = openPrinting();
    return printPicture == nullptr ? PrintOutcome::Failed : printPicture(window.grab(), window.windowTitle());
}

} // namespace quarvel
