#pragma once

#include "window_services.h"

#include <QObject>
#include <QPoint>

class QDropEvent;
class QMouseEvent;

// What a control tells of itself to its drag.
class DragParty {
  public:
    virtual ~DragParty() = default;
    [[nodiscard]] virtual bool MayDrag() const = 0;
    // Named in the status bar: the UIID of a field, the caption of a frame; and the type name.
    [[nodiscard]] virtual QString DragId() const = 0;
    [[nodiscard]] virtual QString DragTypeName() const = 0;
    [[nodiscard]] virtual QString DragText() = 0;
    // Whether that text may be dropped now.
    [[nodiscard]] virtual bool AcceptsDrag(const QString &text) const = 0;
    virtual void TakeDrop(const QString &text) = 0;
    virtual void DragFinished() {}
};

// Dragging a control's value: a press of one of the buttons on a source arms the drag, a move of more than 180 twips
// starts it (text, copy only). Targets ask the party.
class FieldDrag final : public QObject {
    Q_OBJECT
  public:
    // party owns the drag and outlives its use.
    FieldDrag(DragParty &party, const FieldServices &services, Qt::MouseButtons buttons);

    void addSource(QWidget &widget);
    void addTarget(QWidget &widget);
    [[nodiscard]] bool armed() const { return mArmed; }

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    bool sourceEvent(QWidget &source, QMouseEvent &event);
    bool targetEvent(QEvent &event);
    void start(QWidget &source);
    void finish();

    DragParty &mParty;
    FormShell &mShell;
    ErrorReport &mErrors;
    Qt::MouseButtons mButtons;
    QList<QObject *> mSources;
    QList<QObject *> mTargets;
    QPoint mPressedAt; // pixels, in the source
    bool mArmed = false;
};
