#pragma once

#include <Qt>
#include <QtGlobal>

class QKeyEvent;

// What the table tells of the user's doing, in the midst of it. Rows and columns count from 0; -1 for none.
class TableEvents {
  public:
    virtual ~TableEvents() = default;

    // An edit is about to be written into the array. Cancel true: it is not.
    virtual void BeforeColUpdate(qint32 column, bool &Cancel) = 0;
    virtual void AfterColUpdate(qint32 column) = 0;
    // The cursor is about to leave its cell. Cancel true: it stays.
    virtual void BeforeRowColChange(bool &Cancel) = 0;
    virtual void RowColChange(qint32 lastRow, qint32 lastColumn) = 0;
    // The current cell is about to be edited.
    virtual void BeforeEdit() = 0;
    // The text in the editor has changed by the user's hand.
    virtual void Change() = 0;
    virtual void HeadClick(qint32 column) = 0;
    // The corner above the row heads.
    virtual void CornerClick() = 0;
    // A key at the table or its editor, before they act on it. True: it was swallowed.
    virtual bool KeyDown(QKeyEvent &key) = 0;
    virtual void DropDownOpen() = 0;
    virtual void DropDownClose() = 0;
    // A new choice for a check box cell.
    virtual void Toggle() = 0;
    virtual void GotFocus(Qt::FocusReason reason) = 0;
};
