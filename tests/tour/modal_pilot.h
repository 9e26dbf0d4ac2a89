#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>

class QMessageBox;
class TourReport;

// The user's hands while a modal window has taken over: answers message boxes, the progress window where its OK
// button has come alive, and the windows that it knows a button of. What it met is kept for the step to look at.
class ModalPilot {
  public:
    explicit ModalPilot(TourReport &report);

    // Runs an action that may open modal windows, and returns when they have all closed. Each is pictured before it is
    // answered, under the given name. Fails when a window stays unanswered for a minute.
    void during(const QString &pictureName, const std::function<void()> &action);
    // Texts of the message boxes of the last action, in their order.
    [[nodiscard]] const QStringList &boxes() const { return mBoxes; }
    // The radio's details that the progress window of the last action showed.
    [[nodiscard]] const QString &radioDetails() const { return mRadioDetails; }

    // Names of the other windows that the last action opened, in their order.
    [[nodiscard]] const QStringList &windows() const { return mWindows; }

  private:
    void look();
    void answer(QMessageBox &box);
    void follow(QWidget &progressWindow);
    void close(QWidget &window);

    TourReport &mReport;
    QTimer mTimer;
    QElapsedTimer mWaiting;
    QString mPictureName;
    QStringList mBoxes;
    QStringList mWindows;
    QString mRadioDetails;
    bool mProgressPictured = false;
};
