#pragma once

#include "grid_columns.h"
#include "grid_surface.h"
#include "window_services.h"

#include <QHash>

#include <map>

// The lists behind a grid's cells: the items of Combo and ID Tracker columns, and the ways between stored values,
// positions and item texts. Lists are asked for anew each time; they may differ from record to record.
class GridLists {
  public:
    GridLists(GridSurface &grid, const FieldServices &services) : mGrid(grid), mServices(services) {}

    // The items of a Combo cell, texts in column 0; empty where there is no list.
    [[nodiscard]] XArrayDB comboItems(const QString &uiid, qint32 record) const;
    // The items of an ID Tracker cell with the value in front where the list does not hold it: an ID that is no longer
    // legal stays in sight. Also sets the names that nameOf reads.
    [[nodiscard]] XArrayDB idItems(const QString &uiid, qint32 record, const QString &value);
    // The untranslated text of an item of the last idItems; none for an unknown one.
    [[nodiscard]] std::optional<QString> sourceOfName(const QString &translated) const;

    // The row whose text in column 0 this is; -1 when there is none.
    [[nodiscard]] static qint32 find(const XArrayDB &items, const QString &text);
    // The first column, as shown.
    [[nodiscard]] QStringList shownTexts(const XArrayDB &items) const;
    // The stored value of the Combo item with this text, as shown or not; "" when the list does not have it.
    [[nodiscard]] QVariant comboValue(const QString &uiid, const XArrayDB &items, const QString &text) const;
    // The position of the item that a Combo cell's value means, by its value list if it has one. -1 for none.
    [[nodiscard]] qint32 comboPosition(const QString &uiid, const QVariant &value) const;

    // Replaces the stored values of Combo columns by item texts; "Undefined" where no item is meant. Row 0 is record 1.
    void ConvertEntriesToUI(XArrayDB &array, const GridColumns &columns);
    // The items of a Combo column, shown texts, as the last conversion has got them; empty before there was a row.
    [[nodiscard]] XArrayDB convertedItems(qint32 column) const;

  private:
    void askForComboItems(const QString &uiid, qint32 record, XArrayDB &items, qint32 &scope) const;
    void convertColumn(XArrayDB &array, qint32 column, const QString &uiid);

    GridSurface &mGrid;
    FieldServices mServices;
    QHash<QString, QString> mTranslatedNames; // by the translated text
    std::map<qint32, XArrayDB> mConverted;    // by column
};
