#pragma once

#include "type_ahead.h"

#include <QFrame>
#include <QStringList>

class QListWidget;

// The list of the current cell, open below it: as wide as its column; below 11 items all of them and no scroll bar,
// from 11 on ten rows and a vertical bar. Typed letters choose by the first match.
class TDBDropDown final : public QFrame {
    Q_OBJECT
  public:
    static constexpr int kMostRows = 10;

    explicit TDBDropDown(QWidget *parent);

    // As shown, translated.
    void setItems(const QStringList &items);
    [[nodiscard]] const QStringList &items() const { return mItems; }
    // From 0; -1 for none.
    [[nodiscard]] int bookmark() const;
    void setBookmark(int row);
    // Width of the list and height of its rows, in pixels.
    void SetDropdownSize(int width, int rowHeight);
    [[nodiscard]] int shownRows() const;
    // Opens under the cell, above it where the screen ends. The cell is in the coordinates of its surface.
    void open(const QWidget &surface, const QRect &cell);

  Q_SIGNALS:
    void chosen(const QString &text);
    // The list closed, with or without a choice before. Tab, +1 or -1, is to be carried out where it ended the list.
    void closed(int tab);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

  private:
    bool takeKey(const QKeyEvent &key);
    void choose();

    QListWidget *mList; // owned by this widget
    QStringList mItems;
    TypeAhead mTypeAhead;
    int mTab = 0;
};
