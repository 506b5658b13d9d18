#include "platform/message_boxes.h"

#include "text/strings.h"

#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace quarvel {
namespace {

QMessageBox::Icon iconOf(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::Critical: return QMessageBox::Critical;
    case BoxIcon::Question: return QMessageBox::Question;
    case BoxIcon::Exclamation: return QMessageBox::Warning;
    case BoxIcon::Information: return QMessageBox::Information;
    case BoxIcon::None: break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons buttonsOf(Buttons buttons) {
    switch (buttons) {
    case Buttons::OkCancel: return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo: return QMessageBox::Yes | QMessageBox::No;
    case Buttons::OkAgainCancel: return QMessageBox::Ok | QMessageBox::Retry | QMessageBox::Cancel;
    case Buttons::Ok: break;
    }
    return QMessageBox::Ok;
}

void nameButton(QMessageBox& box, QMessageBox::StandardButton which, const QString& caption) {
    if (QAbstractButton* button = box.button(which); button != nullptr && !caption.isEmpty())
        button->setText(caption);
}

Answer answerOf(int button) {
    switch (button) {
    case QMessageBox::Ok: return Answer::Ok;
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    case QMessageBox::Retry: return Answer::Again;
    default: return Answer::Cancel;
    }
}

} // namespace

Answer QtMessageBoxes::show(QWidget* parent, const MessageBox& box, const ButtonCaptions& captions) {
    // The window may go while the box is open, and takes it along.
    const QPointer<QMessageBox> shown(
        new QMessageBox(iconOf(box.icon), toolkitTitle(box.title), box.text, buttonsOf(box.buttons), parent));
    shown->setInformativeText(box.detail);
    // Neither text is markup, whatever a path or a language file may hold.
    for (QLabel* label : shown->findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
    // A box is answered, not minimised.
    shown->setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    // Of a window above all others, a box must be so too: the window may be hidden, or lie below it.
    if (parent != nullptr && parent->windowFlags().testFlag(Qt::WindowStaysOnTopHint))
        shown->setWindowFlag(Qt::WindowStaysOnTopHint);
    nameButton(*shown, QMessageBox::Ok, captions.ok);
    nameButton(*shown, QMessageBox::Cancel, captions.cancel);
    nameButton(*shown, QMessageBox::Yes, captions.yes);
    nameButton(*shown, QMessageBox::No, captions.no);
    nameButton(*shown, QMessageBox::Retry, captions.again);
    // Where there is more than yes or no, Return by habit chooses what changes nothing.
    if (box.buttons == Buttons::OkAgainCancel) shown->setDefaultButton(QMessageBox::Cancel);
    const Answer answer = answerOf(shown->exec());
    delete shown.data();
    return answer;
}

} // namespace quarvel
