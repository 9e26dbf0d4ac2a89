#pragma once

#include <QWidget>

#include <functional>

// A plain area that tells of its new size.
class ResizingArea final : public QWidget {
  public:
    using QWidget::QWidget;
    void SetResized(std::function<void()> resized) { mResized = std::move(resized); }

  protected:
    void resizeEvent(QResizeEvent * /*event*/) override {
        if (mResized)
            mResized();
    }

  private:
    std::function<void()> mResized;
};
