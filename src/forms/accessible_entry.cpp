#include "forms/accessible_entry.h"

#include <QAccessibleWidget>
#include <QFontMetrics>
#include <QLineEdit>

namespace quarvel {
namespace {

/// A box of one line as a text that can be read and, unless it is locked, edited.
class EntryInterface : public QAccessibleWidget,
                       public QAccessibleTextInterface,
                       public QAccessibleEditableTextInterface {
public:
    explicit EntryInterface(QLineEdit* edit) : QAccessibleWidget(edit, QAccessible::EditableText) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = !edit().isReadOnly();
        state.readOnly = edit().isReadOnly();
        state.selectable = true;
        state.selected = edit().hasSelectedText();
        state.hasPopup = true;
        return state;
    }
    [[nodiscard]] QString text(QAccessible::Text which) const override {
        return which == QAccessible::Value ? edit().text() : QAccessibleWidget::text(which);
    }
    void setText(QAccessible::Text which, const QString& text) override {
        if (which != QAccessible::Value)
            QAccessibleWidget::setText(which, text);
        else
            replaceText(0, characterCount(), text);
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface)
            return static_cast<QAccessibleEditableTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    void selection(int index, int* start, int* end) const override {
        const bool any = index == 0 && edit().hasSelectedText();
        *start = any ? edit().selectionStart() : 0;
        *end = any ? edit().selectionEnd() : 0;
    }
    [[nodiscard]] int selectionCount() const override { return edit().hasSelectedText() ? 1 : 0; }
    void addSelection(int start, int end) override { edit().setSelection(start, end - start); }
    void setSelection(int /*index*/, int start, int end) override { addSelection(start, end); }
    void removeSelection(int /*index*/) override { edit().deselect(); }
    [[nodiscard]] int cursorPosition() const override { return edit().cursorPosition(); }
    void setCursorPosition(int place) override { edit().setCursorPosition(place); }
    [[nodiscard]] QString text(int start, int end) const override {
        return edit().text().mid(start, end - start);
    }
    [[nodiscard]] int characterCount() const override { return static_cast<int>(edit().text().size()); }
    [[nodiscard]] QRect characterRect(int place) const override {
        // The text is one line: a character stands as far from the cursor as the text between them is wide.
        const QFontMetrics metrics(edit().font());
        const QString all = edit().text();
        const QRect cursor = edit().inputMethodQuery(Qt::ImCursorRectangle).toRect();
        const int left = cursor.center().x() + metrics.horizontalAdvance(all.left(place)) -
                         metrics.horizontalAdvance(all.left(cursorPosition()));
        const QSize size(metrics.horizontalAdvance(all.mid(place, 1)), cursor.height());
        return {edit().mapToGlobal(QPoint(left, cursor.top())), size};
    }
    [[nodiscard]] int offsetAtPoint(const QPoint& point) const override {
        return edit().cursorPositionAt(edit().mapFromGlobal(point));
    }
    void scrollToSubstring(int start, int end) override {
        edit().setCursorPosition(end);
        edit().setCursorPosition(start);
    }
    [[nodiscard]] QString attributes(int place, int* start, int* end) const override {
        *start = *end = place;
        return {};
    }

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int place, const QString& text) override { replaceText(place, place, text); }
    void replaceText(int start, int end, const QString& text) override {
        if (!edit().isReadOnly()) edit().setText(edit().text().replace(start, end - start, text));
    }

private:
    [[nodiscard]] QLineEdit& edit() const { return *static_cast<QLineEdit*>(object()); }
};

QAccessibleInterface* entryInterface(const QString& className, QObject* object) {
    auto* const edit = className == u"QLineEdit" ? qobject_cast<QLineEdit*>(object) : nullptr;
    return edit != nullptr ? new EntryInterface(edit) : nullptr;
}

} // namespace

void tellLockedEntriesTruly() {
    static const bool installed = [] {
        QAccessible::installFactory(entryInterface);
        return true;
    }();
    static_cast<void>(installed);
}

} // namespace quarvel
