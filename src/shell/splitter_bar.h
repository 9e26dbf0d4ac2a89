#pragma once

#include <QWidget>

// What the splitter's pointer events do. x is the pointer's place in twips from the splitter's left edge.
class SplitterHandler {
  public:
    virtual ~SplitterHandler() = default;
    virtual void fraSplitter_MouseDown() = 0;
    virtual void fraSplitter_MouseMove(qint32 x) = 0;
    virtual void fraSplitter_MouseUp() = 0;
    virtual void fraSplitter_DblClick() = 0;
};

// The bar between the tree and the form.
class SplitterBar final : public QWidget {
  public:
    explicit SplitterBar(QWidget *parent);
    // Not owned.
    void SetHandler(SplitterHandler *handler) { mHandler = handler; }

  protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    void moveTo(int pixels);

    SplitterHandler *mHandler = nullptr;
};
