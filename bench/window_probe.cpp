#include "common_error_handler.h"
#include "frm_main.h"
#include "ifield.h"
#include "main_application.h"
#include "main_program.h"
#include "transformer.h"
#include "window_input.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QSet>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {
// Sees which widgets are painted.
class PaintWatch final : public QObject {
  public:
    explicit PaintWatch(QObject &application) { application.installEventFilter(this); }

    void begin() { mPainted.clear(); }
    // Lets events run until one of the widgets has been painted since begin(); false if that does not happen.
    bool waitForPaint(const QList<QWidget *> &widgets) {
        constexpr int kPatience = 5000;
        constexpr int kTurn = 20;
        const auto isPainted = [this](const QWidget *widget) { return mPainted.contains(widget); };
        QElapsedTimer timer;
        timer.start();
        while (std::ranges::none_of(widgets, isPainted) && timer.elapsed() < kPatience)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, kTurn);
        return std::ranges::any_of(widgets, isPainted);
    }
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Paint)
            mPainted.insert(watched);
        return false;
    }

  private:
    QSet<const QObject *> mPainted;
};

// Of the open form.
QList<QWidget *> visibleFields(const QWidget &window) {
    QList<QWidget *> fields;
    for (QWidget *widget : window.findChildren<QWidget *>())
        if (widget->isVisible() && dynamic_cast<Ifield *>(widget) != nullptr)
            fields.append(widget);
    return fields;
}

// Nobody is there to answer; a box is counted and answered with Yes, one without a choice with OK.
class CountingBoxes final : public MessageBoxes {
  public:
    qint32 MsgBox(const QString &Text, qint32 Buttons, const QString & /*Title*/) override {
        constexpr qint32 kButtonBits = 7;
        std::fprintf(stderr, "box: %s\n", qUtf8Printable(Text));
        ++count;
        return (Buttons & kButtonBits) == 0 ? 1 : 6;
    }
    qint32 TranslateMsgBox(const QString &Prompt, qint32 Buttons, const QString &Title,
                           const QString & /*Parameters*/) override {
        return MsgBox(Prompt, Buttons, Title);
    }

    int count = 0;
};

void say(const char *what, const QString &name, double value) {
    std::printf("%s\t%s\t%.3f\n", what, qUtf8Printable(name), value);
    std::fflush(stdout);
}

double milliseconds(const QElapsedTimer &timer) { return double(timer.nsecsElapsed()) / 1e6; }

double peakMebibytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    return 0;
}

// Each node of the tree that has a form, in order; a form that asks or refuses is named instead.
void openForms(MainProgram &program, PaintWatch &watch, const CountingBoxes &boxes) {
    auto *tree = program.Window().findChild<QTreeWidget *>(QStringLiteral("FormTree"));
    int nodes = 0;
    for (QTreeWidgetItemIterator item(tree); *item != nullptr; ++item)
        ++nodes;
    for (int node = 1; node <= nodes; ++node) {
        const QString before = program.Component().GetCurrentFormName();
        const int boxesBefore = boxes.count;
        watch.begin();
        QElapsedTimer timer;
        timer.start();
        program.Window().TransformerEvents_ChangeToForm(QString::number(node));
        const QString name = program.Component().GetCurrentFormName();
        if (name != before && boxes.count == boxesBefore && watch.waitForPaint(visibleFields(program.Window())))
            say("form", name, milliseconds(timer));
        else if (boxes.count != boxesBefore)
            say("refused", name, node);
    }
}

void pressKeys(MainProgram &program, PaintWatch &watch) {
    constexpr int kKeys = 21;
    QLineEdit *editor = nullptr;
    for (QWidget *widget : visibleFields(program.Window()))
        if (dynamic_cast<const Ifield &>(*widget).Ifield_GetUIID() == QStringLiteral("EconomyTimer"))
            editor = widget->findChild<QLineEdit *>();
    if (editor == nullptr)
        return;
    WindowInput::activate(program.Window());
    WindowInput::click(*editor);
    std::vector<double> times;
    times.reserve(kKeys);
    for (int key = 0; key < kKeys; ++key) {
        watch.begin();
        QElapsedTimer timer;
        timer.start();
        WindowInput::key(key % 2 == 0 ? Qt::Key_9 : Qt::Key_Backspace);
        if (!watch.waitForPaint({editor}))
            return;
        times.push_back(milliseconds(timer));
    }
    std::ranges::nth_element(times, times.begin() + kKeys / 2);
    say("key", QStringLiteral("EconomyTimer"), times[kKeys / 2]);
}
} // namespace

// kx4600windowprobe start|forms [FILE]: what kx4600bench asks of a window, a process for each start.
int main(int argc, char **argv) {
    QElapsedTimer timer;
    timer.start();
    ErrorReport errors(false);
    const MainApplication application(argc, argv, errors);
    PaintWatch watch(*qApp);
    CountingBoxes boxes;
    const QStringList words = QApplication::arguments().sliced(1);
    MainProgram program(errors, words.sliced(qMin<qsizetype>(1, words.size())), {.boxes = &boxes});
    if (!program.Start() || !watch.waitForPaint(visibleFields(program.Window())))
        return 1;
    say("shown", program.Component().GetCurrentFormName(), milliseconds(timer));
    say("memory", QString(), peakMebibytes());
    if (words.value(0) != QStringLiteral("forms"))
        return 0;
    openForms(program, watch, boxes);
    program.Window().TransformerEvents_ChangeToForm(QStringLiteral("usrctlEconomyKX4600"));
    pressKeys(program, watch);
    say("memory", QStringLiteral("all forms"), peakMebibytes());
    return 0;
}
