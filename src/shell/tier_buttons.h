#pragma once

#include "tick_image.h"

#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

class QMimeData;
class QToolButton;

// What a drag over the tiers and a drop on them do.
class TierDrop {
  public:
    virtual ~TierDrop() = default;
    // False: no drop there.
    virtual bool tbrTiers_OLEDragOver(const QMimeData *data, const QPoint &position) = 0;
    virtual void tbrTiers_OLEDragDrop(const QMimeData *data, const QPoint &position) = 0;
};

// The button bar of the tiers, one pressed at a time. Buttons count from 1.
class TierButtons final : public QWidget {
  public:
    explicit TierButtons(QWidget *parent);

    void Clear();
    // The caption as it is shown.
    void Add(const QString &key, const QString &caption);
    void SetToolTip(qint32 index, const QString &toolTip);

    [[nodiscard]] qint32 Count() const { return qint32(mButtons.size()); }
    // These raise error 35600 for an index out of bounds.
    [[nodiscard]] QString Key(qint32 index) const;
    [[nodiscard]] QString Caption(qint32 index) const;
    [[nodiscard]] QRect Place(qint32 index) const;
    [[nodiscard]] TickImage Image(qint32 index) const;
    void SetImage(qint32 index, TickImage image);
    void Press(qint32 index);
    // 0 when none is pressed.
    [[nodiscard]] qint32 Pressed() const;
    // 0 where there is none.
    [[nodiscard]] qint32 IndexOfKey(const QString &key) const;

    // Called with the button's number when the user presses it.
    void SetClicked(std::function<void(qint32)> clicked);
    // Not owned; null: no drops.
    void SetDrop(TierDrop *drop) { mDrop = drop; }

  protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

  private:
    struct Entry {
        QString key;
        QToolButton *button;
        TickImage image;
    };
    [[nodiscard]] const Entry &entry(qint32 index) const;

    std::vector<Entry> mButtons;
    std::function<void(qint32)> mClicked;
    TierDrop *mDrop = nullptr;
};
