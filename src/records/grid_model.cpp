#include "grid_model.h"

#include "grid_cells.h"
#include "value_text.h"

void GridModel::setColumns(const std::vector<Column> &columns) {
    beginResetModel();
    mColumns = columns;
    mRows = 0;
    endResetModel();
}

void GridModel::setColumnEnabled(qint32 column, bool enabled) {
    if (column < 0 || column >= columnCount() || at(column).enabled == enabled)
        return;
    mColumns[std::size_t(column)].enabled = enabled;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
    if (mRows > 0)
        Q_EMIT dataChanged(index(0, column), index(mRows - 1, column));
}

void GridModel::setDisabledColours(const QBrush &text, const QBrush &background) {
    mDisabledText = text;
    mDisabledBackground = background;
}

void GridModel::reBind() {
    beginResetModel();
    mRows = mCells.rows();
    endResetModel();
}

void GridModel::tellChanged(GridCell cell) {
    if (cell.row >= 0 && cell.row < mRows && cell.column >= 0 && cell.column < columnCount())
        Q_EMIT dataChanged(index(cell.row, cell.column), index(cell.row, cell.column));
}

bool GridModel::isEditable(qint32 column) const {
    return column >= 0 && column < columnCount() && at(column).enabled && !at(column).locked &&
           at(column).type != ColumnType::kDerived;
}

int GridModel::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : mRows; }

int GridModel::columnCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : int(mColumns.size()); }

QVariant GridModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || index.row() >= mRows || index.column() >= columnCount())
        return {};
    const Column &column = at(index.column());
    const GridCell cell{index.row(), index.column()};
    const bool isCheck = column.type == ColumnType::kCheckbox;
    switch (role) {
    case Qt::DisplayRole:
        return isCheck ? QVariant() : QVariant(mCells.displayText(cell));
    case Qt::EditRole:
    case Qt::AccessibleTextRole:
        return mCells.displayText(cell);
    case Qt::AccessibleDescriptionRole:
        return QStringLiteral("%1 %2").arg(column.caption).arg(index.row() + 1);
    case Qt::CheckStateRole:
        if (!isCheck)
            return {};
        return ValueText::toIntegerOr(mCells.displayText(cell), 0) != 0 ? Qt::Checked : Qt::Unchecked;
    case Qt::ForegroundRole:
        return column.enabled ? QVariant() : QVariant(mDisabledText);
    case Qt::BackgroundRole:
        return column.enabled ? QVariant() : QVariant(mDisabledBackground);
    default:
        return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical)
        return role == Qt::DisplayRole ? QVariant(QString::number(section + 1)) : QVariant();
    if (section < 0 || section >= columnCount())
        return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return at(section).caption;
    if (role == Qt::ForegroundRole && !at(section).enabled)
        return mDisabledText;
    return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex &index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags present = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return isEditable(index.column()) ? present | Qt::ItemIsEditable : present;
}

bool GridModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (role != Qt::EditRole || !mWriter || !isEditable(index.column()) || index.row() >= mRows)
        return false;
    return mWriter({index.row(), index.column()}, ValueText::of(value));
}
