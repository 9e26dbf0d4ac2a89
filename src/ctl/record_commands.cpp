#include "command_handlers.h"

#include "tool_session.h"

#include <functional>

namespace {
using RecordChange = std::function<void(const QString &guide, qint32 number, bool &ok)>;

Address guideAddress(const ToolSession &session) {
    Address address = Address::parse(session.arguments().rest()[1]);
    if (address.parent > 0 && !session.structure(address.uiid).parent.isValid())
        throw UsageError(QStringLiteral("%1 has no parent record: write %1(N)").arg(address.uiid));
    return address;
}

// Opens the file, makes the record's parent the current one, runs the operation on the number that counts below it, and
// saves.
int change(ToolSession &session, const Address &address, const RecordChange &operation) {
    const RecordStructure &structure = session.structure(address.uiid);
    const QString file = session.arguments().rest().first();
    session.open(file);
    const RecordAddress record = session.recordOf(structure, address);
    session.selectParent(structure.index, record);
    bool ok = false;
    operation(structure.guide, record.number, ok);
    if (!ok)
        return ExitCode::kRefused;
    session.save(file);
    return ExitCode::kDone;
}

int changeRecord(ToolSession &session, const RecordChange &operation) {
    const Address address = guideAddress(session);
    if (address.record == 0)
        throw UsageError(QStringLiteral("write the record's number: %1(N)").arg(address.uiid));
    return change(session, address, operation);
}
} // namespace

int Commands::add(ToolSession &session) {
    Address address = guideAddress(session);
    address.record = qMax(1, address.record);
    return change(session, address, [&session](const QString &guide, qint32 /*number*/, bool &ok) {
        qint32 added = 0;
        session.transformer().AddRecord(guide, QString(), added, ok);
        if (ok)
            session.console().line(QString::number(added));
    });
}

int Commands::insert(ToolSession &session) {
    return changeRecord(session, [&session](const QString &guide, qint32 number, bool &ok) {
        session.transformer().InsertRecord(guide, number, QString(), ok);
    });
}

int Commands::repeat(ToolSession &session) {
    return changeRecord(session, [&session](const QString &guide, qint32 number, bool &ok) {
        session.transformer().RepeatRecord(guide, number, QString(), ok);
    });
}

int Commands::remove(ToolSession &session) {
    return changeRecord(session, [&session](const QString &guide, qint32 number, bool &ok) {
        session.transformer().DeleteRecord(guide, number, ok);
    });
}
