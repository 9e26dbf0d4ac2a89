#pragma once

#include "cls_format_edit.h"
#include "type_ahead.h"
#include "width_limit.h"

#include <QObject>
#include <QStringList>

class QKeyEvent;
class QLineEdit;

// The text box over the current cell while it is edited. In a cell with a list every text is one of its items: letters
// choose by the first match, Up and Down step through the items, Delete empties.
class CellEditor final : public QObject {
    Q_OBJECT
  public:
    // The box is a child of surface.
    CellEditor(QWidget &surface, ErrorReport &errors);

    [[nodiscard]] QLineEdit &box() const { return *mBox; }
    // The characters that may be typed ("" for all), the most characters (0 or less: any number), an input mask.
    void setRules(const QString &validation, qint32 width, const QString &inputMask);
    [[nodiscard]] const clsFormatEdit &formatEdit() const { return mFormatEdit; }
    // Empty: free text.
    void setItems(const QStringList &items) { mItems = items; }

    // Shows the text, all selected, and takes the focus.
    void open(const QString &text, const QString &accessibleName);
    // The focus goes to heir first: hidden with it, the box would hand it on to whatever comes next in the window.
    void close(QWidget &heir);
    [[nodiscard]] bool active() const { return mActive; }
    // The user has changed the text since it was last written into the array.
    [[nodiscard]] bool changed() const { return mChanged; }
    void setChanged(bool changed) { mChanged = changed; }
    [[nodiscard]] QString text() const;
    // As from code: no event.
    void setText(const QString &text);
    // As from the user's hand.
    void replaceText(const QString &text);
    // A key that was pressed while the box was not there.
    void forward(QKeyEvent &key);

  Q_SIGNALS:
    void edited();

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    bool listKey(const QKeyEvent &key);
    bool typeAhead(const QKeyEvent &key);
    void chooseTyped(qsizetype item);
    void choose(qsizetype item);
    void noteEdit();

    QLineEdit *mBox; // owned by surface
    clsFormatEdit mFormatEdit;
    WidthLimit mWidthLimit;
    ErrorReport &mErrors;
    TypeAhead mTypeAhead;
    QStringList mItems;
    QString mInputMask;
    bool mActive = false;
    bool mChanged = false;
};
