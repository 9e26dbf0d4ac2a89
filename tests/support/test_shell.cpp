#include "test_shell.h"

void TestShell::ShowWhatsThisHelp(qint32 HelpContextID) {
    told << QStringLiteral("ShowWhatsThisHelp(%1)").arg(HelpContextID);
}

void TestShell::StartDrag(const QString &id, const QString &typeName) {
    told << QStringLiteral("StartDrag(%1, %2)").arg(id, typeName);
}

void TestShell::FinishedDrag() { told << QStringLiteral("FinishedDrag()"); }

void TestShell::SilentMode(bool silent) {
    told << QStringLiteral("SilentMode(%1)").arg(silent ? QStringLiteral("true") : QStringLiteral("false"));
}
