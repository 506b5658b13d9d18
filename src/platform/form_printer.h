#pragma once

class QWidget;

namespace quarvel {

enum class PrintOutcome { Printed, NoPrinter, Failed };

/// Prints a window as it looks now.
class FormPrinter {
public:
    FormPrinter() = default;
    FormPrinter(const FormPrinter&) = delete;
    FormPrinter& operator=(const FormPrinter&) = delete;
    virtual ~FormPrinter() = default;
    [[nodiscard]] virtual PrintOutcome print(QWidget& window) = 0;
};

/// Prints on the default printer, without a dialog: the window's inside at screen resolution, as large as the
/// page allows with its proportions kept, at the top of the page.
class QtFormPrinter : public FormPrinter {
public:
    [[nodiscard]] PrintOutcome print(QWidget& window) override;
};

} // namespace quarvel
