#include "command_table.h"

#include "command_handlers.h"

#include <algorithm>
#include <array>

namespace {
constexpr int kMany = 100000;

constexpr std::array kCommands = {
    Command{"new", "[--tier KEY] [--version 1|2] -o FILE", "--tier --version -o", "", 0, 0, Commands::newFile},
    Command{"info", "FILE", "", "", 1, 1, Commands::info},
    Command{"check", "FILE", "", "", 1, 1, Commands::check},
    Command{"get", "FILE [--tier KEY] [--raw] ADDRESS ...", "--tier", "--raw", 2, kMany, Commands::get},
    Command{"set", "FILE [--tier KEY] [-o OUT] ADDRESS=VALUE ...", "--tier -o", "", 2, kMany, Commands::set},
    Command{"add", "FILE [--tier KEY] [-o OUT] GUIDE(N)", "--tier -o", "", 2, 2, Commands::add},
    Command{"insert", "FILE [--tier KEY] [-o OUT] GUIDE(N)", "--tier -o", "", 2, 2, Commands::insert},
    Command{"repeat", "FILE [--tier KEY] [-o OUT] GUIDE(N)", "--tier -o", "", 2, 2, Commands::repeat},
    Command{"delete", "FILE [--tier KEY] [-o OUT] GUIDE(N)", "--tier -o", "", 2, 2, Commands::remove},
    Command{"diff", "A B", "", "", 2, 2, Commands::diff},
    Command{"export", "FILE [--tier KEY] --record GUIDE", "--tier --record", "", 1, 1, Commands::exportRecords},
    Command{"import", "FILE [--tier KEY] [-o OUT] --record GUIDE [--partial] CSV", "--tier --record -o", "--partial", 2,
            2, Commands::importRecords},
    Command{"squirt", "FILE -o FILE.sqt", "--tier -o", "", 1, 1, Commands::squirt},
    Command{"report", "FILE [--tier KEY] [--form NAME ...] [--all] -o FILE.pdf|FILE.txt", "--tier --form -o", "--all",
            1, kMany, Commands::report, true},
    Command{"replay", "SCRIPT.tst [--tier KEY] [-o FILE] [--reference FILE]", "--tier -o --reference", "", 1, 1,
            Commands::replay},
    Command{"restore-points", "[SERIAL]", "", "", 0, 1, Commands::restorePoints},
    Command{"fields", "", "", "", 0, 0, Commands::fields},
    Command{"forms", "", "", "", 0, 0, Commands::forms},
    Command{"ports", "", "", "", 0, 0, Commands::ports},
    Command{"interrogate", "--port DEVICE", "--port", "", 0, 0, Commands::interrogate},
    Command{"read", "--port DEVICE -o FILE", "--port -o", "", 0, 0, Commands::read},
    Command{"program", "--port DEVICE [--tier KEY] FILE|FILE.sqt", "--port --tier", "", 1, 1, Commands::program},
};
} // namespace

QStringList Command::valuedOptions() const { return QString::fromLatin1(valued).split(u' ', Qt::SkipEmptyParts); }

QStringList Command::flagOptions() const {
    return QString::fromLatin1(flags).split(u' ', Qt::SkipEmptyParts) +
           QStringList{QStringLiteral("--json"), QStringLiteral("--yes")};
}

namespace CommandTable {
std::span<const Command> commands() { return kCommands; }

const Command *find(const QString &name) {
    const auto found = std::ranges::find_if(
        kCommands, [&name](const Command &command) { return name == QLatin1StringView(command.name); });
    return found == kCommands.end() ? nullptr : &*found;
}

QString usage() {
    QString text = QStringLiteral("usage: kx4600ctl COMMAND ... [--json] [--yes]\n");
    for (const Command &command : kCommands)
        text += QStringLiteral("  kx4600ctl %1 %2\n")
                    .arg(QLatin1StringView(command.name), QLatin1StringView(command.usage));
    return text.chopped(1);
}
} // namespace CommandTable
