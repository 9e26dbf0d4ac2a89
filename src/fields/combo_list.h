#pragma once

#include <QComboBox>
#include <QStringList>

// A drop-down list without free text. Its open list is as wide as its widest item, and a chosen text that does not fit
// its box stands in the tool tip. The wheel acts only while it has the focus.
class ComboList final : public QComboBox {
    Q_OBJECT
  public:
    explicit ComboList(QWidget *parent);

    void showPopup() override;
    [[nodiscard]] QStringList items() const;

  Q_SIGNALS:
    // Before the list opens, by mouse or key; items may still be changed.
    void aboutToDropDown();

  protected:
    void wheelEvent(QWheelEvent *event) override;
    bool event(QEvent *event) override;
};
