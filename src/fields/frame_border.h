#pragma once

#include <QWidget>

// The border of a frame with its caption in the upper edge, on the window's own colour.
class FrameBorder final : public QWidget {
    Q_OBJECT
  public:
    explicit FrameBorder(QWidget *parent);
    void setCaption(const QString &caption);
    [[nodiscard]] const QString &caption() const { return mCaption; }

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    QString mCaption;
};
