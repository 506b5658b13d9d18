#include "platform/form_printer.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>
#include <QPixmap>
#include <QWidget>
#include <utility>

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

PrintOutcome printPicture(const QImage& picture, const QString& title,
                          const std::function<bool()>& mayBegin) {
    static const PrintOnDefaultPrinter print = openPrinting();
    return print == nullptr ? PrintOutcome::Failed : print(picture, title, mayBegin);
}

} // namespace

QtFormPrinter::QtFormPrinter() : queue_(printPicture) {}

void QtFormPrinter::print(QWidget& window, std::function<void(PrintOutcome)> done) {
    queue_.add({window.grab().toImage(), window.windowTitle()}, std::move(done));
}

} // namespace quarvel
