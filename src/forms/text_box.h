#pragma once

#include "forms/event.h"
#include "forms/widget_control.h"

#include <QString>

class QLineEdit;
class QPlainTextEdit;

namespace quarvel {

enum class Editing { Free, Locked };
enum class Offered { No, Yes }; ///< whether the user may take a draft with a key

/// What a text box of either kind tells its window.
struct TextBoxEvents {
    Event<char16_t&> keyPress; ///< a character was typed; the handler may change it
    Event<int> keyUp;          ///< a key (Qt::Key) was released, whichever; not the repeats of a held one
    Event<> lostFocus;         ///< the focus went to another control of the window
    Event<> cut;               ///< words of what was pasted or dropped did not fit into the box
    Event<> entered;           ///< Return was pressed in a box of one line
    Event<> edited;            ///< the user has changed the text
    Event<> offerTaken;        ///< Ctrl+Z, where the box has nothing of its own to undo
    Event<> offerRefused;      ///< Escape
    Offered offered = Offered::No;
};

/// A text box of one line; its text is centred.
class TextBox : public WidgetControl {
public:
    TextBox(Container& container, const ControlSpec& spec);

    [[nodiscard]] QString text() const;
    /// Shows a text whole, also one longer than can be typed.
    void setText(const QString& text);
    /// Limits typing and pasting to this many characters; 0 for no limit.
    void setLongestTyped(int characters);
    void setEditing(Editing editing);
    [[nodiscard]] bool isLocked() const;
    /// Where the next character is typed, 0 for the beginning.
    [[nodiscard]] int cursor() const;
    void placeCursor(int place);
    void setOffered(Offered offered) { events.offered = offered; }

    TextBoxEvents events;

private:
    [[nodiscard]] QLineEdit& edit() const;
};

/// A text box of many lines with a vertical scroll bar. Lines end in a single line feed.
class MultiLineTextBox : public WidgetControl {
public:
    MultiLineTextBox(Container& container, const ControlSpec& spec);

    [[nodiscard]] QString text() const;
    void setText(const QString& text);
    void setLongestTyped(int characters);
    void setEditing(Editing editing);
    [[nodiscard]] bool isLocked() const;
    /// Changes the text as the user would, who can undo it.
    void replaceText(const QString& text);
    /// Whether the user has changed anything that can be undone.
    [[nodiscard]] bool hasOwnUndo() const;

    /// How a draft is offered: with words that fill an empty box, or on a strip below what a box holds.
    struct Offer {
        QString hint;
        QString strip;
    };
    void showOffer(const Offer& offer);
    void hideOffer() { showOffer({}); }

    TextBoxEvents events;

private:
    [[nodiscard]] QPlainTextEdit& edit() const;
};

} // namespace quarvel
