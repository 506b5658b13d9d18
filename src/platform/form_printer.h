#pragma once

#include "platform/print_queue.h"

class QWidget;

namespace quarvel {

/// Prints a window as it looks now.
class FormPrinter {
public:
    FormPrinter() = default;
    FormPrinter(const FormPrinter&) = delete;
    FormPrinter& operator=(const FormPrinter&) = delete;
    virtual ~FormPrinter() = default;
    /// Takes the window's picture and returns: the page is printed behind. `done` hears what became of it,
    /// from the event loop.
    virtual void print(QWidget& window, std::function<void(PrintOutcome)> done) = 0;
};

/// Prints on the default printer: the window's inside at screen resolution.
class QtFormPrinter : public FormPrinter {
public:
    QtFormPrinter();
    void print(QWidget& window, std::function<void(PrintOutcome)> done) override;
    /// Before the process ends: see PrintQueue::finish().
    void finish() { queue_.finish(); }

private:
    PrintQueue queue_;
};

} // namespace quarvel
