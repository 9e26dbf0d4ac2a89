#include "common_error_handler.h"
#include "frm_main.h"
#include "help_topics.h"
#include "main_application.h"
#include "main_program.h"
#include "transformer.h"
#include "window_input.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {
// Prints the median.
void time(const char *what, const std::function<void()> &search) {
    constexpr int kRuns = 7;
    std::vector<double> times;
    for (int run = 0; run < kRuns; ++run) {
        QElapsedTimer timer;
        timer.start();
        search();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::ranges::nth_element(times, times.begin() + kRuns / 2);
    std::printf("%s\t%.3f\n", what, times[kRuns / 2]);
}

// Both answer with the exit code.
int searches(MainProgram &program) {
    program.Component().ChangeTier(QStringLiteral("Advanced"));
    WindowInput::activate(program.Window());
    WindowInput::key(Qt::Key_F, Qt::ControlModifier);
    const QWidget *const finder = program.Window().findChild<QWidget *>(QStringLiteral("frmFindField"));
    auto *const hits = finder->findChild<QListWidget *>(QStringLiteral("lstOutput"));
    time("find a field over all forms", [&] {
        finder->findChild<QLineEdit *>(QStringLiteral("txtSearch"))->setText(QStringLiteral("timer"));
        finder->findChild<QPushButton *>(QStringLiteral("cmdFindLabel"))->click();
    });
    const HelpTopics topics(QCoreApplication::applicationDirPath() + QStringLiteral("/kx4kp_en"));
    std::size_t found = 0;
    time("search the help for a word", [&] { found = topics.search(QStringLiteral("timer")).size(); });
    return found > 0 && hits->count() > 1 ? 0 : 3;
}

// All records of all forms into the file of KX4600_PRINT_FILE.
int print(MainProgram &program) {
    QTimer poll;
    double seconds = 0;
    QObject::connect(&poll, &QTimer::timeout, &program.Window(), [&] {
        auto *const dialog = program.Window().findChild<QDialog *>(QStringLiteral("frmPrint"));
        if (dialog == nullptr)
            return;
        poll.stop();
        dialog->findChild<QPushButton *>(QStringLiteral("cmdSelectAll"))->click();
        dialog->findChild<QCheckBox *>(QStringLiteral("chkPrintAll"))->setChecked(true);
        QElapsedTimer timer;
        timer.start();
        dialog->findChild<QPushButton *>(QStringLiteral("cmdPrint"))->click();
        seconds = double(timer.nsecsElapsed()) / 1e9;
        dialog->close();
    });
    poll.start(1);
    program.Window().findChild<QAction *>(QStringLiteral("mnuPrint"))->trigger();
    std::printf("%.3f\n", seconds);
    return QFileInfo::exists(qEnvironmentVariable("KX4600_PRINT_FILE")) ? 0 : 3;
}
} // namespace

// kx4600dialogprobe [FILE]: how long the searches take, or, with a data file, the report of the window.
int main(int argc, char **argv) {
    ErrorReport errors(false);
    const MainApplication application(argc, argv, errors);
    const QStringList files = QApplication::arguments().sliced(1);
    MainProgram program(errors, files);
    if (!program.Start())
        return 1;
    const int code = files.isEmpty() ? searches(program) : print(program);
    return errors.HasReported() ? 2 : code;
}
