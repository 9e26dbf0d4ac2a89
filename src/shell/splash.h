#pragma once

#include <QPixmap>
#include <QSplashScreen>

// The window shown while the component starts: the program's picture, title and version.
class frmSplash final : public QSplashScreen {
    Q_OBJECT
  public:
    explicit frmSplash(const QPixmap &picture);

  protected:
    void drawContents(QPainter *painter) override;
};
