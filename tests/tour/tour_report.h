#pragma once

#include <QElapsedTimer>
#include <QString>

#include <stdexcept>

class QWidget;

// A step of the tour that did not show what it should.
class TourFailure : public std::runtime_error {
  public:
    explicit TourFailure(const QString &what) : std::runtime_error(what.toStdString()) {}
};

inline void require(bool held, const QString &what) {
    if (!held)
        throw TourFailure(what);
}

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
