#include "common_error_handler.h"
#include "main_application.h"
#include "main_program.h"
#include "program_hands.h"
#include "radio_process.h"
#include "tour.h"
#include "tour_dialogs.h"
#include "tour_report.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

namespace {
const QString kSerialNumber = QStringLiteral("19004711");

// Settings, journals and restore points of the tour stay in a folder that goes with it.
void useFolder(const QString &folder) {
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(name, (folder + u'/' + QString::fromLatin1(name)).toUtf8());
}

// As the start script does.
void putFleetIntoRecentFiles(const QString &fleet) {
    require(QFileInfo::exists(fleet), QStringLiteral("there is no file %1").arg(fleet));
    const QString folder = qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/KX4600");
    QFile settings(folder + QStringLiteral("/settings.ini"));
    require(QDir().mkpath(folder) && settings.open(QIODevice::WriteOnly), QStringLiteral("no settings can be written"));
    settings.write("[General]\nMRUNum=1\nMRU1=" + QFileInfo(fleet).canonicalFilePath().toUtf8() + '\n');
}

int walkTour(int &argc, char **argv, const QString &folder, const QTemporaryDir &home) {
    TourReport report(folder);
    const RadioProcess radio(QFileInfo(QString::fromLocal8Bit(argv[0])).absolutePath(), home.path(), kSerialNumber);
    qputenv("KX4600_PORTS", (QStringLiteral("2=") + radio.link() + QStringLiteral("=Simulated radio")).toUtf8());
    putFleetIntoRecentFiles(QFileInfo(QString::fromLocal8Bit(argv[0])).absolutePath() +
                            QStringLiteral("/../demo/harbour_cabs.k4p"));
    ErrorReport errors(false);
    const MainApplication application(argc, argv, errors);
    TourDialogs dialogs;
    const auto makeProgram = [&] {
        return std::make_unique<MainProgram>(errors, QStringList(), ProgramReplacements{.fileDialogs = &dialogs});
    };
    Tour(makeProgram, radio, dialogs, report, kSerialNumber).walk();
    return errors.HasReported() ? 1 : 0;
}
} // namespace

// kx4600tour FOLDER: walks through the program without a display and leaves a picture of each step in the folder.
int main(int argc, char **argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: kx4600tour FOLDER\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir home;
    useFolder(home.path());
    try {
        return walkTour(argc, argv, QDir::current().absoluteFilePath(QString::fromLocal8Bit(argv[1])), home);
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "The tour failed: %s\n", failure.what());
        return 1;
    }
}
