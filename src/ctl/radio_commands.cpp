#include "command_handlers.h"

#include "interrupt_watch.h"
#include "radio_operations.h"
#include "serial_ports.h"
#include "tool_session.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {
void choosePort(ToolSession &session) {
    const QString port = session.arguments().value(QStringLiteral("--port"));
    if (port.isEmpty() || !SerialPorts().DeviceOf(port))
        throw UsageError(QStringLiteral("name the radio's port with --port DEVICE, a path or COMn"));
    session.transformer().SaveSetting(QStringLiteral("CommPortNumber"), port);
}

bool lastOperationSucceeded(ToolSession &session) {
    const std::optional<RadioReport> &report = session.transformer().radio().lastReport();
    return report && report->succeeded();
}

void printRadio(ToolSession &session) {
    QJsonObject object;
    for (const auto &[label, value] : session.events().radioInfo()) {
        object.insert(label, value);
        if (!session.wantsJson())
            session.console().line(label + QStringLiteral(" = ") + value);
    }
    if (session.wantsJson())
        session.console().json(QJsonDocument(object));
}
} // namespace

int Commands::ports(ToolSession &session) {
    QJsonArray array;
    for (const SerialPortEntry &entry : SerialPorts().List()) {
        array.append(QJsonObject{{QStringLiteral("number"), entry.number},
                                 {QStringLiteral("device"), entry.device},
                                 {QStringLiteral("name"), entry.name}});
        if (!session.wantsJson())
            session.console().line(
                QStringLiteral("COM%1: %2 %3").arg(entry.number).arg(entry.device, entry.name).trimmed());
    }
    if (session.wantsJson())
        session.console().json(QJsonDocument(array));
    return ExitCode::kDone;
}

int Commands::interrogate(ToolSession &session) {
    choosePort(session);
    const InterruptWatch watch([&session] { session.transformer().AbortComms(); });
    session.transformer().InterrogateRadio();
    if (!lastOperationSucceeded(session))
        return ExitCode::kFile;
    printRadio(session);
    return ExitCode::kDone;
}

int Commands::read(ToolSession &session) {
    choosePort(session);
    if (!session.arguments().has(QStringLiteral("-o")))
        throw UsageError(QStringLiteral("name the file to write with -o FILE"));
    const InterruptWatch watch([&session] { session.transformer().AbortComms(); });
    bool done = false;
    session.transformer().ReadRadio(true, done);
    if (!done)
        return ExitCode::kFile;
    session.save(QString());
    return ExitCode::kDone;
}

int Commands::program(ToolSession &session) {
    choosePort(session);
    session.openForRadio(session.arguments().rest().first());
    const InterruptWatch watch([&session] { session.transformer().AbortComms(); });
    session.transformer().ProgramRadio();
    if (!session.transformer().radio().lastReport())
        return ExitCode::kRefused;
    return lastOperationSucceeded(session) ? ExitCode::kDone : ExitCode::kFile;
}
