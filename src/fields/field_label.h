#pragma once

#include <QLabel>

// The caption of a field. A label as any other for access key, buddy and assistive tools; draws itself engraved while
// it is disabled.
class FieldLabel final : public QLabel {
    Q_OBJECT
  public:
    explicit FieldLabel(QWidget *parent);

    // Width of the caption on one line, in pixels, without the marks of its access key.
    [[nodiscard]] int captionWidth() const;
    // Height of the caption, wrapped into that width, in pixels.
    [[nodiscard]] int wrappedHeight(int width) const;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    [[nodiscard]] int textFlags() const;
};
