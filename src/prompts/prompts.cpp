#include "prompts/prompts.h"

#include "files/system_name.h"
#include "forms/hint.h"
#include "prompts/own_messages.h"

#include <QApplication>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

QString numberOf(Task task) { return u"%1"_s.arg(static_cast<int>(task), 4, 10, QChar(u'0')); }

/// What was being done, when it was done in part.
const QString partlySaved = u"0174"_s;
const QString otherNames = u"0175"_s;

/// What is told late may come when its window is hidden or gone.
QWidget* parentFor(const Form& form) {
    QWidget* const window = form.window();
    QWidget* const front = QApplication::activeWindow();
    return front == nullptr || (window != nullptr && window->isVisible()) ? window : front;
}

} // namespace

Prompts::Prompts(modLanguageSupport& language, MessageBoxes& boxes) : language_(language), boxes_(boxes) {}

QString Prompts::text(const QString& number) { return ownText(language_, number); }

ButtonCaptions Prompts::captions() {
    return {text(u"0102"_s), text(u"0103"_s), text(u"0104"_s), text(u"0105"_s), {}};
}

Answer Prompts::ask(Form& form, const QString& prompt, const QString& title, Buttons buttons, BoxIcon icon,
                    const QString& detail) {
    return show(form, {language_.MLSGetString(prompt), language_.MLSGetString(title), buttons, icon, detail});
}

Answer Prompts::askOwn(Form& form, const QString& prompt) {
    return show(form, {text(prompt), text(u"0101"_s), Buttons::YesNo, BoxIcon::Question});
}

QString Prompts::textOn(const QString& number, const QString& path) {
    return filledIn(text(number), breakablePath(path));
}

Answer Prompts::show(Form& form, const MessageBox& box) {
    const Form::OwnBox own(form);
    return boxes_.show(parentFor(form), box, captions());
}

Answer Prompts::askAboutUnseen(Form& form, const QStringList& paths) {
    const MessageBox box{filledIn(text(u"0189"_s), readableName(paths.join(u'\n'))), text(u"0101"_s),
                         Buttons::OkAgainCancel, BoxIcon::Exclamation};
    ButtonCaptions named = captions();
    named.ok = text(u"0190"_s);
    named.again = text(u"0191"_s);
    const Form::OwnBox own(form);
    return boxes_.show(form.window(), box, named);
}

void Prompts::showFixed(Form& form, const QString& text) {
    const Form::OwnBox own(form);
    // A lookup would make a language current: a fixed text has fixed buttons.
    static_cast<void>(boxes_.show(form.window(), {text, QCoreApplication::applicationName()},
                                  {builtInText(u"0102"_s), {}, {}, {}, {}}));
}

void Prompts::tell(Form& form, Task task, const Failure& failure) {
    const bool partly = failure.fault == Fault::PartlyReplaced;
    showOwn(form, text(partly ? partlySaved : numberOf(task)) + u"\n\n"_s +
                      readableName(reasonText(language_, failure)));
}

void Prompts::tellOf(Form& form, const Written& written) {
    if (!written.separated.isEmpty())
        showOwn(form, filledIn(text(otherNames), readableName(written.separated.join(u'\n'))));
}

void Prompts::tell(Form& form, Task task, const QString& path) {
    showOwn(form, filledIn(text(numberOf(task)), readableName(path)));
}

void Prompts::tell(Form& form, Task task) { showOwn(form, text(numberOf(task))); }

void Prompts::tellSoon(Form& form, Task task) {
    form.queueMessage([this, &form, task] { tell(form, task); });
}

void Prompts::printWindow(Form& form, FormPrinter& printer) {
    printer.print(*form.window(), [this, &form, life = QPointer<QObject>(&life_)](PrintOutcome outcome) {
        if (life != nullptr) tellPrinted(form, outcome);
    });
}

void Prompts::tellPrinted(Form& form, PrintOutcome outcome) {
    switch (outcome) {
    case PrintOutcome::Printed: break;
    case PrintOutcome::NoPrinter: tell(form, Task::FindPrinter); break;
    case PrintOutcome::Failed: tell(form, Task::Print); break;
    case PrintOutcome::NoAnswer: tell(form, Task::AskPrintingService); break;
    case PrintOutcome::Unconfirmed: tell(form, Task::ConfirmPrint); break;
    }
}

void Prompts::showOwn(Form& form, const QString& text) {
    static_cast<void>(show(form, {text, this->text(u"0101"_s), Buttons::Ok, BoxIcon::Exclamation}));
}

} // namespace quarvel
