#include "command_table.h"

#include "product_identity.h"
#include "run_time_error.h"

#include <QCoreApplication>

namespace {
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
    const QCoreApplication application(argc, argv);
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
