#pragma once

#include "forms/event.h"
#include "forms/hint.h"
#include "forms/widget_control.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

class QListView;

namespace quarvel {

/// What the marked row of a list is.
enum class Mark {
    FollowsKeys,  ///< where the user is, by pointer or by keys
    StaysOnChosen ///< the row last chosen; keys that look around move a frame of their own
};

/// A list of texts. Rows are made when they come into view, so that a list of 50,000 costs what its window
/// shows. A text wider than the list is cut and is its row's tip.
class ListBox : public WidgetControl {
public:
    ListBox(Container& container, const ControlSpec& spec);

    /// Empties the list and fills it with `count` rows, whose texts `row` gives when they are asked for.
    void setRows(int count, std::function<QString(int)> row);
    void setItems(const QStringList& items);

    /// What the list says while it has no rows; an empty text says nothing.
    void setHint(const QString& text);
    [[nodiscard]] bool hasHint() const { return !hintText_.isEmpty(); }

    /// What is to be known of the list beside its rows: added to its tip, to its hint, and for assistive
    /// tools.
    void setRemark(const QString& text);
    [[nodiscard]] std::optional<QString> toolTip() const override { return toolTip_; }
    Setting setToolTip(const QString& text) override;

    [[nodiscard]] int count() const;
    [[nodiscard]] QString item(int row) const;
    /// The text of the selected row; empty when none is.
    [[nodiscard]] QString selectedText() const;
    /// The selected row; -1 when none is.
    [[nodiscard]] int selectedRow() const;
    /// Marks a row, or none for -1, without a click; the keyboard's place stays.
    void select(int row);
    void setMark(Mark mark);

    /// Which rows bear a sign, by their texts, and what assistive tools say of these.
    void setSigns(std::function<bool(const QString&)> bearsSign, const QString& spoken);
    /// Asks again.
    void signsChanged();

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
    QString toolTip_; ///< without the remark
    QString remark_;
};

} // namespace quarvel
