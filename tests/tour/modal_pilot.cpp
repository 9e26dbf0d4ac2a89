#include "modal_pilot.h"

#include "tour_report.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>

#include <array>
#include <cstdlib>

namespace {
constexpr int kLookEveryMs = 20;
constexpr qint64 kPatienceMs = 60000;

// Windows that are looked at and then closed by one of their buttons.
struct Answer {
    const char *window;
    const char *button;
};
constexpr std::array kAnswers{Answer{"frmPortChoice", "cmdInterrogate"}, Answer{"frmPreferences", "OKButton"}};
} // namespace

ModalPilot::ModalPilot(TourReport &report) : mReport(report) {
    mTimer.setInterval(kLookEveryMs);
    QObject::connect(&mTimer, &QTimer::timeout, &mTimer, [this] { look(); });
}

void ModalPilot::during(const QString &pictureName, const std::function<void()> &action) {
    mPictureName = pictureName;
    mBoxes.clear();
    mRadioDetails.clear();
    mWindows.clear();
    mProgressPictured = false;
    mWaiting.start();
    mTimer.start();
    action();
    mTimer.stop();
}

void ModalPilot::look() {
    if (mWaiting.elapsed() > kPatienceMs) {
        // The action cannot be left from here: the modal window's loop stands between.
        mReport.line(QStringLiteral("a modal window was not answered: ") + mPictureName);
        std::_Exit(1);
    }
    QWidget *modal = QApplication::activeModalWidget();
    if (modal == nullptr || !modal->isVisible())
        return;
    if (auto *box = qobject_cast<QMessageBox *>(modal))
        answer(*box);
    else if (modal->objectName() == QStringLiteral("frmProgressInfo"))
        follow(*modal);
    else
        close(*modal);
}

void ModalPilot::answer(QMessageBox &box) {
    mBoxes << box.text().trimmed();
    mReport.picture(box, mPictureName + QStringLiteral("-message"));
    QAbstractButton *yes = box.button(QMessageBox::Yes);
    (yes != nullptr ? yes : box.buttons().constFirst())->click();
}

void ModalPilot::follow(QWidget &progressWindow) {
    auto *bar = progressWindow.findChild<QProgressBar *>(QStringLiteral("ProgressBar1"));
    if (!mProgressPictured && bar != nullptr && bar->isVisible() && bar->value() > bar->maximum() / 3) {
        mProgressPictured = true;
        mReport.picture(progressWindow, mPictureName + QStringLiteral("-progress"));
    }
    auto *ok = progressWindow.findChild<QPushButton *>(QStringLiteral("cmdOK"));
    if (ok == nullptr || !ok->isVisible() || !ok->isEnabled())
        return;
    if (auto *radio = progressWindow.findChild<QLabel *>(QStringLiteral("lblRadioTier")))
        mRadioDetails = radio->text();
    mReport.picture(progressWindow, mPictureName);
    ok->click();
}

void ModalPilot::close(QWidget &window) {
    for (const Answer &answer : kAnswers) {
        if (window.objectName() != QLatin1StringView(answer.window))
            continue;
        mWindows << window.objectName();
        mReport.picture(window, mPictureName + u'-' + window.objectName());
        if (auto *button = window.findChild<QPushButton *>(QLatin1StringView(answer.button)))
            button->click();
    }
}
