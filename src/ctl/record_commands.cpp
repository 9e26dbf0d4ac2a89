#include "command_handlers.h"

#include "tool_session.h"

#include <functional>

namespace {
// Opens the file, makes the parent of GUIDE(N) the current one, runs the operation on the number that counts below it,
// and saves.
int change(ToolSession &session, bool needsNumber,
           const std::function<void(const QString &guide, qint32 number, bool &ok)> &operation) {
    const QStringList words = session.arguments().rest();
    const Address address = Address::parse(words[1]);
    const RecordStructure &structure = session.structure(address.uiid);
    if (needsNumber && address.record == 0)
        throw UsageError(QStringLiteral("write the record's number: %1(N)").arg(address.uiid));
    session.open(words.first());
    RecordAddress record{address.parent, address.record};
    if (structure.isScoped() && address.parent == 0)
        record = session.state().current().recordByTotal(structure.index, qMax(1, address.record));
    session.selectParent(structure.index, record);
    bool ok = false;
    operation(structure.guide, record.number, ok);
    if (!ok)
        return ExitCode::kRefused;
    session.save(words.first());
    return ExitCode::kDone;
}
} // namespace

int Commands::add(ToolSession &session) {
    return change(session, false, [&session](const QString &guide, qint32 /*number*/, bool &ok) {
        qint32 added = 0;
        session.transformer().AddRecord(guide, QString(), added, ok);
        if (ok)
            session.console().line(QString::number(added));
    });
}

int Commands::insert(ToolSession &session) {
    return change(session, true, [&session](const QString &guide, qint32 number, bool &ok) {
        session.transformer().InsertRecord(guide, number, QString(), ok);
    });
}

int Commands::repeat(ToolSession &session) {
    return change(session, true, [&session](const QString &guide, qint32 number, bool &ok) {
        session.transformer().RepeatRecord(guide, number, QString(), ok);
    });
}

int Commands::remove(ToolSession &session) {
    return change(session, true, [&session](const QString &guide, qint32 number, bool &ok) {
        session.transformer().DeleteRecord(guide, number, ok);
    });
}
