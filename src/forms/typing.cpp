#include "forms/typing.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <algorithm>

namespace quarvel {
namespace {

bool isLineBreak(QChar character) {
    return character == u'\n' || character == u'\r' || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

} // namespace

QString filteredKeys(const TextBoxEvents& events, const QString& typed) {
    QString filtered = typed;
    for (QChar& character : filtered) {
        char16_t key = character.unicode();
        events.keyPress.raise(key);
        character = QChar(key);
    }
    return filtered;
}

QKeyEvent filteredKeyPress(const TextBoxEvents& events, const QKeyEvent& event) {
    const bool printable = !event.text().isEmpty() && event.text().front().isPrint();
    // A letter with Alt calls for a button, also where none answers. On some systems AltGr is Control and
    // Alt.
    const bool calls =
        event.modifiers().testFlag(Qt::AltModifier) && !event.modifiers().testFlag(Qt::ControlModifier);
    return {event.type(),
            event.key(),
            event.modifiers(),
            event.nativeScanCode(),
            event.nativeVirtualKey(),
            event.nativeModifiers(),
            !printable ? event.text()
            : calls    ? QString()
                       : filteredKeys(events, event.text()),
            event.isAutoRepeat(),
            static_cast<quint16>(event.count()),
            event.device()};
}

bool isUsedByOffer(const TextBoxEvents& events, const QKeyEvent& event, OwnUndo undo) {
    if (events.offered == Offered::No) return false;
    const bool taken = undo == OwnUndo::Nothing && event.matches(QKeySequence::Undo);
    const bool refused = event.key() == Qt::Key_Escape && event.modifiers() == Qt::NoModifier;
    if (!taken && !refused) return false;
    // A key that is held answers one offer: what it would drop next has not been read.
    if (!event.isAutoRepeat()) (taken ? events.offerTaken : events.offerRefused).raise();
    return true;
}

bool hasWordsFrom(const QString& text, qsizetype place) {
    return std::any_of(text.cbegin() + place, text.cend(),
                       [](QChar character) { return !character.isSpace(); });
}

DropKind dropKind(const QDropEvent& event, bool fits) {
    if (event.proposedAction() != Qt::MoveAction) return DropKind::Whole;
    if (fits && !event.mimeData()->hasUrls()) return DropKind::Whole;
    return event.possibleActions().testFlag(Qt::CopyAction) ? DropKind::Copy : DropKind::Refused;
}

void answerDrop(QDropEvent& event, DropKind kind) {
    if (kind == DropKind::Copy) event.setDropAction(Qt::CopyAction);
    if (kind == DropKind::Refused) event.ignore();
}

qsizetype lineBreaks(const QString& text) { return std::count_if(text.cbegin(), text.cend(), isLineBreak); }

void keepFirstLine(QString& text, qsizetype& cursor) {
    const qsizetype first = std::find_if(text.cbegin(), text.cbegin() + cursor, isLineBreak) - text.cbegin();
    text.remove(first, cursor - first);
    cursor = first;
}

void keepToLength(QString& text, qsizetype& cursor, qsizetype longest) {
    const qsizetype excess = std::min(text.size() - longest, cursor);
    if (excess <= 0) return;
    text.remove(cursor - excess, excess);
    cursor -= excess;
}

} // namespace quarvel
