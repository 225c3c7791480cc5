// A list of rows and columns for very many rows: nothing is created for a row before it is displayed. Rows
// can be dragged to lists of the same dialog if dragging is on. Chart window's thread.
#pragma once

#include "platform/Form.h"

#include <QAbstractTableModel>
#include <QTreeView>

namespace zantroq {

class CRowModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetColumns(std::vector<sFormColumn> columns);
    void SetRows(std::vector<FormRow> rows);
    void InsertRow(int before, FormRow row);
    const std::vector<FormRow>& Rows() const { return m_rows; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    std::vector<sFormColumn> m_columns{{"", 1}};
    std::vector<FormRow> m_rows;
};

class CRowList : public QTreeView
{
    Q_OBJECT
    Q_PROPERTY(bool dragging READ Dragging WRITE SetDragging)

public:
    explicit CRowList(QWidget* parent = nullptr);

    CRowModel& Model() { return *m_model; }
    const CRowModel& Model() const { return *m_model; }
    void SetColumns(const std::vector<sFormColumn>& columns);
    std::vector<int> SelectedRows() const;
    void SelectRows(const std::vector<int>& rows);

    bool Dragging() const { return m_dragging; }
    void SetDragging(bool dragging);

    // The row before which a row dropped at this point is inserted; the row count for the end.
    int DropRow(const QPoint& point) const;

signals:
    void RowPressed();
    void RowDropped(zantroq::CRowList* from, int row, int to);

protected:
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    CRowList* Source(const QDropEvent& event) const; // null if it is not a row of this dialog

    CRowModel* m_model;
    bool m_dragging = false;
    int m_draggedRow = -1;
};

} // namespace zantroq
