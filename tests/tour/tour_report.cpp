#include "tour_report.h"

#include "program_hands.h"

#include <QDir>
#include <QPixmap>
#include <QWidget>

#include <cstdio>
#include <utility>

TourReport::TourReport(QString folder) : mFolder(std::move(folder)) {
    require(QDir().mkpath(mFolder), QStringLiteral("the folder %1 cannot be made").arg(mFolder));
    QDir directory(mFolder);
    for (const QString &old : directory.entryList({QStringLiteral("*.png")}, QDir::Files))
        directory.remove(old);
}

void TourReport::beginStep(const QString &name) {
    mStep = name;
    mTime.start();
}

void TourReport::endStep() { line(QStringLiteral("%1 ms  %2").arg(mTime.elapsed(), 6).arg(mStep)); }

void TourReport::picture(QWidget &window, const QString &what) {
    ++mPictures;
    const QString name = QStringLiteral("%1/%2-%3.png").arg(mFolder).arg(mPictures, 2, 10, QLatin1Char('0')).arg(what);
    require(window.grab().save(name), QStringLiteral("the picture %1 cannot be written").arg(name));
}

void TourReport::line(const QString &text) const {
    std::printf("%s\n", qUtf8Printable(text));
    std::fflush(stdout);
}
