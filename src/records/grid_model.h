#pragma once

#include "grid_columns.h"

#include <QAbstractTableModel>
#include <QBrush>

#include <functional>

class GridCells;

// The rows of a grid for its view. Refilled whole, with one reset: a cell is only told of when it alone has changed.
class GridModel final : public QAbstractTableModel {
    Q_OBJECT
  public:
    struct Column {
        QString caption; // translated, trimmed
        ColumnType type = ColumnType::kText;
        bool locked = false;
        bool enabled = true; // shown in the enabled styles
    };
    // Writes a text into a cell as an assistive tool asks for it. False: refused.
    using Writer = std::function<bool(GridCell cell, const QString &text)>;

    explicit GridModel(const GridCells &cells) : mCells(cells) {}

    void setWriter(const Writer &writer) { mWriter = writer; }
    void setColumns(const std::vector<Column> &columns);
    [[nodiscard]] const std::vector<Column> &columns() const { return mColumns; }
    void setColumnEnabled(qint32 column, bool enabled);
    // The colours of disabled columns, heads included.
    void setDisabledColours(const QBrush &text, const QBrush &background);
    // Reads the array again.
    void reBind();
    void tellChanged(GridCell cell);

    // Whether the cells of the column can be edited.
    [[nodiscard]] bool isEditable(qint32 column) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

  private:
    [[nodiscard]] const Column &at(int column) const { return mColumns[std::size_t(column)]; }

    const GridCells &mCells;
    std::vector<Column> mColumns;
    Writer mWriter;
    QBrush mDisabledText;
    QBrush mDisabledBackground;
    int mRows = 0; // as last bound; the array may be ahead of it for a moment
};
