#pragma once

#include <QElapsedTimer>
#include <QString>

class QWidget;

// The pictures and lines that the tour leaves behind. Pictures are numbered in their order.
class TourReport {
  public:
    explicit TourReport(QString folder);

    void beginStep(const QString &name);
    void endStep();
    void picture(QWidget &window, const QString &what);
    void line(const QString &text) const;
    [[nodiscard]] const QString &folder() const { return mFolder; }

  private:
    QString mFolder;
    QString mStep;
    QElapsedTimer mTime;
    int mPictures = 0;
};
