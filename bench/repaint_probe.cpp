#include "common_error_handler.h"
#include "frm_main.h"
#include "main_application.h"
#include "main_program.h"
#include "transformer.h"
#include "yes_boxes.h"

#include <QAction>
#include <QElapsedTimer>
#include <QPainter>
#include <QTimer>

#include <cstdio>

namespace {
// Wants to be painted all the time, and keeps the longest time between two paintings.
class Pulse final : public QWidget {
  public:
    Pulse() {
        constexpr int kEveryMs = 5;
        mTimer.setInterval(kEveryMs);
        connect(&mTimer, &QTimer::timeout, this, qOverload<>(&QWidget::update));
        show();
    }
    void start() {
        mLongest = 0;
        mPaints = 0;
        mSinceLast.start();
        mTimer.start();
    }
    // Milliseconds; -1 if it was hardly ever painted.
    double stop() {
        constexpr int kFew = 10;
        mTimer.stop();
        return mPaints < kFew ? -1 : mLongest;
    }

  protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter(this).fillRect(rect(), mPaints % 2 == 0 ? Qt::black : Qt::white);
        mLongest = qMax(mLongest, double(mSinceLast.nsecsElapsed()) / 1e6);
        mSinceLast.start();
        ++mPaints;
    }

  private:
    QTimer mTimer;
    QElapsedTimer mSinceLast;
    double mLongest = 0;
    int mPaints = 0;
};
} // namespace

// kx4600repaintprobe FILE: programs the file into the radio of the first port with the real window and reads it again;
// prints the longest time between two paintings during each.
int main(int argc, char **argv) {
    ErrorReport errors(false);
    const MainApplication application(argc, argv, errors);
    YesBoxes boxes;
    MainProgram program(errors, QApplication::arguments().sliced(1), {.boxes = &boxes});
    if (!program.Start())
        return 1;
    Pulse pulse;
    for (const char *command : {"mnuProgramRadio", "mnuReadRadio"}) {
        auto *action = program.Window().findChild<QAction *>(QLatin1StringView(command));
        if (action == nullptr)
            return 1;
        pulse.start();
        action->trigger();
        std::printf("%s\t%.3f\n", command, pulse.stop());
    }
    return program.Component().GetDataIsDirty() ? 1 : 0;
}
