#pragma once

#include "tool_session.h"

#include <QStringList>

#include <span>

// One command of the program. Results go to standard output, messages to standard error; the answer is the exit code.
struct Command {
    const char *name;
    const char *usage;  // what follows the name
    const char *valued; // options with a value, separated by blanks
    const char *flags;  // options without one, beside --json and --yes
    int least;          // further arguments
    int most;
    int (*run)(ToolSession &session);
    bool needsFonts = false;

    [[nodiscard]] QStringList valuedOptions() const;
    [[nodiscard]] QStringList flagOptions() const;
};

namespace CommandTable {
[[nodiscard]] std::span<const Command> commands();
// Null for an unknown name.
[[nodiscard]] const Command *find(const QString &name);
[[nodiscard]] QString usage();
} // namespace CommandTable
