#pragma once

#include <QDialog>

#include <functional>

// Who and what stands behind the program. A click anywhere, Esc or the close box ends it.
class frmCredits final : public QDialog {
    Q_OBJECT
  public:
    frmCredits(const std::function<QString(const QString &)> &translate, QWidget *parent);

  protected:
    void mousePressEvent(QMouseEvent *event) override;
};
