#include "forms/list_box.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QListView>

namespace quarvel {
namespace {

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
        return role == Qt::DisplayRole && index.isValid() ? QVariant(row_(index.row())) : QVariant();
    }

private:
    int count_ = 0;
    std::function<QString(int)> row_;
};

class RowsView : public QListView {
public:
    ListBox* owner = nullptr;
    RowsModel rows;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool chooses =
            event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
        if (!chooses || !currentIndex().isValid()) {
            QListView::keyPressEvent(event);
            return;
        }
        selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
        owner->clicked.raise();
    }
};

} // namespace

ListBox::ListBox(Container& container, const ControlSpec& spec)
    : WidgetControl(container, spec, new RowsView) {
    auto& rowsView = static_cast<RowsView&>(widget());
    rowsView.owner = this;
    view().setModel(&rowsView.rows);
    view().setUniformItemSizes(true);
    view().setEditTriggers(QAbstractItemView::NoEditTriggers);
    view().setSelectionMode(QAbstractItemView::SingleSelection);
    view().setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    view().setTextElideMode(Qt::ElideRight);
    QObject::connect(&view(), &QAbstractItemView::clicked, &view(), [this] { clicked.raise(); });
}

QListView& ListBox::view() const { return static_cast<QListView&>(widget()); }

void ListBox::setRows(int count, std::function<QString(int)> row) {
    static_cast<RowsView&>(widget()).rows.setRows(count, std::move(row));
}

void ListBox::setItems(const QStringList& items) {
    setRows(static_cast<int>(items.size()), [items](int row) { return items.at(row); });
}

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
    view().selectionModel()->setCurrentIndex(view().model()->index(row, 0),
                                             QItemSelectionModel::ClearAndSelect);
}

} // namespace quarvel
