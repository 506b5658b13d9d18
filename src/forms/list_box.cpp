#include "forms/list_box.h"

#include "forms/command.h"
#include "forms/look.h"
#include "forms/press_key.h"

#include <QAbstractListModel>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QListView>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygonF>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

namespace quarvel {
namespace {

QString inLines(const QString& first, const QString& second) {
    return first.isEmpty() || second.isEmpty() ? first + second : first + u'\n' + second;
}

class RowsModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void setRows(int count, std::function<QString(int)> row) {
        beginResetModel();
        count_ = count;
        row_ = std::move(row);
        endResetModel();
    }

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : count_; }
    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid()) return {};
        if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return row_(index.row());
        return role == Qt::AccessibleDescriptionRole && isSigned(index.row()) ? spokenSign : QVariant();
    }
    void signsChanged() {
        if (count_ > 0) Q_EMIT dataChanged(index(0), index(count_ - 1), {Qt::AccessibleDescriptionRole});
    }
    [[nodiscard]] bool isSigned(int row) const { return bearsSign && bearsSign(row_(row)); }

    std::function<bool(const QString&)> bearsSign;
    QString spokenSign;

private:
    int count_ = 0;
    std::function<QString(int)> row_;
};

/// Rows as wide as the list, whatever their texts; a row's sign at its end, which its text leaves free.
class RowsDelegate : public QStyledItemDelegate {
public:
    explicit RowsDelegate(const RowsModel& rows) : rows_(rows) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return {1, QStyledItemDelegate::sizeHint(option, index).height()};
    }
    /// Pixels that a row's whole text takes, with its sign.
    [[nodiscard]] int wholeWidth(const QStyleOptionViewItem& option, const QModelIndex& index) const {
        const QSize text = QStyledItemDelegate::sizeHint(option, index);
        return text.width() + (rows_.isSigned(index.row()) ? signWidth(text.height()) : 0);
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        if (!rows_.isSigned(index.row())) return QStyledItemDelegate::paint(painter, option, index);
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        const int height = row.rect.height();
        const int free = row.rect.width() - signWidth(height);
        row.text = row.fontMetrics.elidedText(row.text, Qt::ElideRight, free);
        row.widget->style()->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
        drawSign(*painter, QRect(row.rect.left() + free, row.rect.top(), height, height));
    }

private:
    [[nodiscard]] static int signWidth(int rowHeight) { return rowHeight + rowHeight / 2; }

    /// A pencil with an edge that shows on every ground.
    static void drawSign(QPainter& painter, const QRect& place) {
        constexpr double edge = 0.08; // of the sign's height
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(place.topLeft());
        painter.scale(place.width(), place.height());
        painter.setPen(QPen(colour::ink, edge, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
        painter.setBrush(colour::draft);
        painter.drawPolygon(
            QPolygonF({{0.12, 0.88}, {0.2, 0.6}, {0.66, 0.14}, {0.86, 0.34}, {0.4, 0.8}})); // from the tip
        painter.drawLine(QPointF(0.2, 0.6), QPointF(0.4, 0.8));
        painter.restore();
    }

    const RowsModel& rows_;
};

class RowsView : public QListView {
public:
    RowsView() { setItemDelegate(&delegate_); }

    ListBox* owner = nullptr;
    RowsModel rows;
    QString leftToWindow;
    Mark mark = Mark::FollowsKeys;

protected:
    /// Every pointer action on a row selects it, whatever keys are held; one beside the rows selects nothing
    /// else.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override {
        const bool byPointer = event != nullptr && event->isPointerEvent();
        const bool marks = index.isValid() && (byPointer ? pressedOnRow_ : mark == Mark::FollowsKeys);
        return marks ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
    }
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        pressedOnRow_ = indexAt(event->position().toPoint()).isValid();
        QListView::mousePressEvent(event);
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        // What did not begin on a row chooses none when it ends, and so marks none on its way.
        if (event->buttons() == Qt::NoButton || pressedOnRow_) QListView::mouseMoveEvent(event);
    }
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        QListView::mouseReleaseEvent(event);
        if (std::exchange(pressedOnRow_, false) && selectionModel()->hasSelection())
            command(*this, owner->clicked);
    }
    void focusInEvent(QFocusEvent* event) override {
        // Whoever comes by keyboard finds a row to begin with.
        const Qt::FocusReason reason = event->reason();
        const bool byKeyboard = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                                reason == Qt::OtherFocusReason;
        if (byKeyboard && !currentIndex().isValid()) setCurrentIndex(rows.index(0));
        QListView::focusInEvent(event);
    }
    void focusOutEvent(QFocusEvent* event) override {
        QListView::focusOutEvent(event);
        if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
            owner->lostFocus.raise();
    }
    void keyPressEvent(QKeyEvent* event) override {
        // The toolkit would look for a row that begins with the sign of Escape.
        const bool left = !event->text().isEmpty() && leftToWindow.contains(event->text());
        if (left || event->key() == Qt::Key_Escape) {
            event->ignore();
            return;
        }
        if (!isPressKey(*event) || !currentIndex().isValid()) {
            QListView::keyPressEvent(event);
            // At its end, too, a list keeps the keys that look through it.
            const auto keys = {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
            if (currentIndex().isValid() && std::find(keys.begin(), keys.end(), event->key()) != keys.end())
                event->accept();
            return;
        }
        selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
        command(*this, owner->clicked);
    }

    bool viewportEvent(QEvent* event) override {
        if (event->type() == QEvent::ToolTip && !isCut(indexAt(static_cast<QHelpEvent*>(event)->pos()))) {
            // The list's own tip, past the view, which would look for the row's.
            // NOLINTNEXTLINE(bugprone-parent-virtual-call)
            return QAbstractScrollArea::viewportEvent(event);
        }
        return QListView::viewportEvent(event);
    }
    void paintEvent(QPaintEvent* event) override {
        QListView::paintEvent(event);
        const QModelIndex place = currentIndex();
        if (!hasFocus() || !place.isValid() || selectionModel()->isSelected(place)) return;
        QPainter painter(viewport()); // the keyboard's place, which is not the marked row
        painter.setPen(QPen(palette().color(QPalette::Text), 1, Qt::DashLine));
        painter.drawRect(visualRect(place).adjusted(0, 0, -1, -1));
    }

private:
    [[nodiscard]] bool isCut(const QModelIndex& index) const {
        if (!index.isValid()) return false;
        QStyleOptionViewItem option;
        initViewItemOption(&option);
        return delegate_.wholeWidth(option, index) > visualRect(index).width();
    }

    RowsDelegate delegate_{rows};
    bool pressedOnRow_ = false;
};

} // namespace

ListBox::ListBox(Container& container, const ControlSpec& spec)
    : WidgetControl(container, spec, new RowsView), hint_(*view().viewport()) {
    auto& rowsView = static_cast<RowsView&>(widget());
    rowsView.owner = this;
    view().setModel(&rowsView.rows);
    view().setUniformItemSizes(true);
    view().setEditTriggers(QAbstractItemView::NoEditTriggers);
    view().setSelectionMode(QAbstractItemView::SingleSelection);
    view().setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    view().setTextElideMode(Qt::ElideRight);
    view().setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    toolTip_ = view().toolTip();
}

void ListBox::setMark(Mark mark) { static_cast<RowsView&>(widget()).mark = mark; }

void ListBox::leaveToWindow(const QString& characters) {
    static_cast<RowsView&>(widget()).leftToWindow = characters;
}

QListView& ListBox::view() const { return static_cast<QListView&>(widget()); }

void ListBox::setRows(int count, std::function<QString(int)> row) {
    static_cast<RowsView&>(widget()).rows.setRows(count, std::move(row));
    showHint();
}

void ListBox::setItems(const QStringList& items) {
    setRows(static_cast<int>(items.size()), [items](int row) { return items.at(row); });
}

void ListBox::setHint(const QString& text) {
    hintText_ = text;
    showHint();
}

void ListBox::showHint() {
    const QString text = count() == 0 ? hintText_ : QString();
    hint_.showText(text.isEmpty() ? text : inLines(text, remark_));
    widget().setToolTip(inLines(toolTip_, remark_));
    widget().setAccessibleDescription(inLines(QString(text).remove(u'\u200B'), remark_));
}

void ListBox::setRemark(const QString& text) {
    remark_ = text;
    showHint();
}

Setting ListBox::setToolTip(const QString& text) {
    toolTip_ = text;
    showHint();
    return Setting::Done;
}

void ListBox::setSigns(std::function<bool(const QString&)> bearsSign, const QString& spoken) {
    auto& rows = static_cast<RowsView&>(widget()).rows;
    rows.bearsSign = std::move(bearsSign);
    rows.spokenSign = spoken;
    signsChanged();
}

void ListBox::signsChanged() { static_cast<RowsView&>(widget()).rows.signsChanged(); }

int ListBox::count() const { return view().model()->rowCount(); }

QString ListBox::item(int row) const { return view().model()->index(row, 0).data().toString(); }

QString ListBox::selectedText() const {
    const int row = selectedRow();
    return row < 0 ? QString() : item(row);
}

int ListBox::selectedRow() const {
    const QModelIndexList selected = view().selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

void ListBox::select(int row) {
    row < 0
        ? view().clearSelection()
        : view().selectionModel()->select(view().model()->index(row, 0), QItemSelectionModel::ClearAndSelect);
}

} // namespace quarvel
