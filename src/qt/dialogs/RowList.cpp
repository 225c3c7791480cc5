#include "qt/dialogs/RowList.h"

#include <QDrag>
#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>

#include <algorithm>

namespace zantroq {
namespace {

constexpr const char* RowFormat = "application/x-zantroq-row";

} // namespace

void CRowModel::SetColumns(std::vector<sFormColumn> columns)
{
    beginResetModel();
    m_columns = std::move(columns);
    endResetModel();
}

void CRowModel::SetRows(std::vector<FormRow> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

void CRowModel::InsertRow(int before, FormRow row)
{
    beginInsertRows({}, before, before);
    m_rows.insert(m_rows.begin() + before, std::move(row));
    endInsertRows();
}

int CRowModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CRowModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant CRowModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const FormRow& row = m_rows[static_cast<std::size_t>(index.row())];
    const auto column = static_cast<std::size_t>(index.column());
    return column < row.size() ? QString::fromStdString(row[column]) : QString();
}

QVariant CRowModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return QString::fromStdString(m_columns[static_cast<std::size_t>(section)].Title);
}

Qt::ItemFlags CRowModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags drop = Qt::ItemIsDropEnabled;
    return index.isValid() ? QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled : drop;
}

CRowList::CRowList(QWidget* parent) : QTreeView(parent), m_model(new CRowModel(this))
{
    setModel(m_model);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setHeaderHidden(true);
    connect(this, &QAbstractItemView::pressed, this, &CRowList::RowPressed);
}

void CRowList::SetColumns(const std::vector<sFormColumn>& columns)
{
    m_model->SetColumns(columns);
    setHeaderHidden(std::ranges::all_of(columns, [](const sFormColumn& c) { return c.Title.empty(); }));
    for (int number = 0; number < static_cast<int>(columns.size()); ++number) {
        const int width = columns[static_cast<std::size_t>(number)].Width;
        setColumnHidden(number, width == 0);
        if (width > 0)
            setColumnWidth(number, width);
    }
}

std::vector<int> CRowList::SelectedRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    std::ranges::sort(rows);
    return rows;
}

void CRowList::SelectRows(const std::vector<int>& rows)
{
    QItemSelection selection;
    for (const int row : rows)
        selection.select(m_model->index(row, 0), m_model->index(row, m_model->columnCount() - 1));
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (rows.empty())
        return;
    selectionModel()->setCurrentIndex(m_model->index(rows.front(), 0), QItemSelectionModel::NoUpdate);
    scrollTo(m_model->index(rows.front(), 0));
}

void CRowList::SetDragging(bool dragging)
{
    m_dragging = dragging;
    setDragEnabled(dragging);
    setAcceptDrops(dragging);
    setDropIndicatorShown(dragging);
}

int CRowList::DropRow(const QPoint& point) const
{
    const QModelIndex under = indexAt(point);
    if (!under.isValid())
        return m_model->rowCount();
    return under.row() + (point.y() > visualRect(under).center().y() ? 1 : 0);
}

void CRowList::startDrag(Qt::DropActions)
{
    const std::vector<int> rows = SelectedRows();
    if (rows.empty())
        return;
    m_draggedRow = rows.front();
    auto* const carried = new QMimeData;
    carried->setData(RowFormat, {});
    auto* const drag = new QDrag(this);
    drag->setMimeData(carried);
    drag->exec(Qt::MoveAction);
}

CRowList* CRowList::Source(const QDropEvent& event) const
{
    auto* const list = qobject_cast<CRowList*>(event.source());
    const bool ours = list != nullptr && list->window() == window();
    return ours && event.mimeData()->hasFormat(RowFormat) ? list : nullptr;
}

void CRowList::dragEnterEvent(QDragEnterEvent* event)
{
    event->setAccepted(Source(*event) != nullptr);
}

void CRowList::dragMoveEvent(QDragMoveEvent* event)
{
    QTreeView::dragMoveEvent(event); // scrolls at the edges
    event->setAccepted(Source(*event) != nullptr);
}

void CRowList::dropEvent(QDropEvent* event)
{
    CRowList* const source = Source(*event);
    if (source == nullptr)
        return event->ignore();
    event->acceptProposedAction();
    emit RowDropped(source, source->m_draggedRow, DropRow(event->position().toPoint()));
}

} // namespace zantroq
