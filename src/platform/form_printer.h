#pragma once

#include "printing/default_printer.h"

class QWidget;

namespace quarvel {

/// Prints a window as it looks now.
class FormPrinter {
public:
    FormPrinter() = default;
    FormPrinter(const FormPrinter&) = delete;
    FormPrinter& operator=(const FormPrinter&) = delete;
    virtual ~FormPrinter() = default;
    [[nodiscard]] virtual PrintOutcome print(QWidget& window) = 0;
};

/// Prints on the default printer: the window's inside at screen resolution.
class QtFormPrinter : public FormPrinter {
public:
    [[nodiscard]] PrintOutcome print(QWidget& window) override;
};

} // namespace quarvel
