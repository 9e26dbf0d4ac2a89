#pragma once

#include <QSlider>

// A slider of positions. While its thumb is dragged only sliderMoved is heard; the value changes at the release.
// Writing another value by code is heard as valueChanged like a move of the user. The wheel acts only while it has the
// focus, and a press beside the thumb moves it once.
class NavigatorSlider final : public QSlider {
    Q_OBJECT
  public:
    explicit NavigatorSlider(QWidget *parent);

    // Positions between ticks; 0 draws none. Never heard, even where the new range moves the value.
    void SetRange(int minimum, int maximum, int tickFrequency);

  protected:
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
};
