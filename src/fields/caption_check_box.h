#pragma once

#include <QCheckBox>

// A check box whose box stands at the right end and whose caption fills the space before it, so that boxes align with
// the editing parts of other fields. A disabled caption is engraved.
class CaptionCheckBox final : public QCheckBox {
    Q_OBJECT
  public:
    explicit CaptionCheckBox(QWidget *parent);

    void setCaptionAlignment(Qt::Alignment alignment);
    // Width of the caption on one line, in pixels.
    [[nodiscard]] int captionWidth() const;
    // Height of the caption, wrapped into the space that a control of that width leaves it, in pixels.
    [[nodiscard]] int wrappedHeight(int width) const;

  protected:
    void paintEvent(QPaintEvent *event) override;
    [[nodiscard]] bool hitButton(const QPoint &pos) const override;

  private:
    [[nodiscard]] QRect boxRect() const;
    [[nodiscard]] int boxSpace() const;

    Qt::Alignment mCaptionAlignment = Qt::AlignLeft;
};
