#include "command_table.h"

#include "product_identity.h"
#include "run_time_error.h"

#include <QGuiApplication>

#include <memory>

namespace {
// A command that measures text needs a platform, though no display.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char *argv[]) {
    const Command *const command = argc < 2 ? nullptr : CommandTable::find(QString::fromLocal8Bit(argv[1]));
    if (command == nullptr || !command->needsFonts)
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

int usageError(Console &console, const QString &text) {
    console.message(QStringLiteral("kx4600ctl: ") + text);
    return ExitCode::kUsage;
}

int runCommand(Console &console, const QStringList &words) {
    const Command *command = CommandTable::find(words.first());
    if (command == nullptr)
        return usageError(console, QStringLiteral("unknown command %1\n%2").arg(words.first(), CommandTable::usage()));
    const QString usage = QStringLiteral("usage: kx4600ctl %1 %2")
                              .arg(QLatin1StringView(command->name), QLatin1StringView(command->usage));
    if (words.contains(QStringLiteral("--help"))) {
        console.line(usage);
        return ExitCode::kDone;
    }
    try {
        const Arguments arguments(words.sliced(1), command->valuedOptions(), command->flagOptions());
        const qsizetype count = arguments.rest().size();
        if (count < command->least || count > command->most)
            throw UsageError(usage);
        ToolSession session(console, arguments);
        return command->run(session);
    } catch (const UsageError &error) {
        return usageError(console, QString::fromStdString(error.what()));
    } catch (const CommandFailed &failed) {
        return failed.exitCode;
    } catch (const RunTimeError &error) {
        console.message(error.Description);
        return ExitCode::kFile;
    }
}
} // namespace

int main(int argc, char *argv[]) {
    const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv);
    QCoreApplication::setApplicationName(ProductIdentity::tag());
    const QStringList words = QCoreApplication::arguments().sliced(1);
    Console console;
    if (words.isEmpty())
        return usageError(console, CommandTable::usage());
    if (words.first() == QStringLiteral("--help")) {
        console.line(CommandTable::usage());
        return ExitCode::kDone;
    }
    return runCommand(console, words);
}
