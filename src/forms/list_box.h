#pragma once

#include "forms/event.h"
#include "forms/hint.h"
#include "forms/widget_control.h"

#include <QString>
#include <QStringList>
#include <functional>

class QListView;

namespace quarvel {

/// A list of texts. Rows are made when they come into view, so that a list of 50,000 costs what its window
/// shows.
class ListBox : public WidgetControl {
public:
    ListBox(Container& container, const ControlSpec& spec);

    /// Empties the list and fills it with `count` rows, whose texts `row` gives when they are asked for.
    void setRows(int count, std::function<QString(int)> row);
    void setItems(const QStringList& items);

    /// What the list says while it has no rows; an empty text says nothing.
    void setHint(const QString& text);
    [[nodiscard]] bool hasHint() const { return !hintText_.isEmpty(); }

    [[nodiscard]] int count() const;
    [[nodiscard]] QString item(int row) const;
    /// The text of the selected row; empty when none is.
    [[nodiscard]] QString selectedText() const;
    /// The selected row; -1 when none is.
    [[nodiscard]] int selectedRow() const;
    /// Selects a row, or none for -1, without a click.
    void select(int row);

    /// Characters that look for no row but are the window's keys.
    void leaveToWindow(const QString& characters);

    /// A row was clicked, the selected one included, or chosen with Return or the space bar.
    Event<> clicked;
    Event<> lostFocus; ///< the focus went to another control of the window

private:
    void showHint();
    [[nodiscard]] QListView& view() const;

    Hint hint_;
    QString hintText_;
};

} // namespace quarvel
