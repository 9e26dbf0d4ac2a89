#pragma once

#include <QObject>

class QWidget;

// Drops mouse, key, wheel, shortcut and close events of one window while set. The window's widgets keep their enabled
// state and the focus: disabling the window itself would take the focus away and so validate the active field.
// Other windows, such as message boxes, are not touched.
class WindowInputFilter final : public QObject {
  public:
    // Filters the whole application's events for as long as it lives.
    explicit WindowInputFilter(QWidget &window);

    void SetDisabled(bool disabled) { mDisabled = disabled; }
    [[nodiscard]] bool Disabled() const { return mDisabled; }

  protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;

  private:
    [[nodiscard]] bool isOfWindow(const QObject *receiver) const;

    QWidget &mWindow;
    bool mDisabled = false;
};
