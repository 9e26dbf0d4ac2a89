#include "shell_fixture.h"
#include "system_printers.h"

#include <QAction>
#include <QDialog>
#include <QFile>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {
// Runs the command and acts on the report dialog as soon as it shows.
void runPrint(const ShellFixture &shell, const std::function<void(QDialog &)> &act) {
    QTimer poll;
    bool found = false;
    QObject::connect(&poll, &QTimer::timeout, shell.window.get(), [&] {
        auto *const dialog = shell.window->findChild<QDialog *>(u"frmPrint"_s);
        if (dialog == nullptr || std::exchange(found, true))
            return;
        act(*dialog);
        dialog->close();
    });
    poll.start(5);
    auto *const command = shell.find<QAction>(u"mnuPrint"_s);
    QVERIFY(command->isEnabled());
    command->trigger();
    QVERIFY(found);
}

QStringList itemsOf(const QDialog &dialog) {
    QStringList items;
    const auto *const list = dialog.findChild<QListWidget *>(u"lstForms"_s);
    for (int row = 0; row < list->count(); ++row)
        items << list->item(row)->text() + (list->item(row)->checkState() == Qt::Checked ? u" x"_s : QString());
    return items;
}
} // namespace

class tst_PrintCommand : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void cleanup() { qunsetenv("KX4600_PRINT_FILE"); }
    void formsOfTheTreeAreOffered();
    void pendingEditIsTakenBeforeTheOpenFormIsPrinted();
    void withoutPrintersThereIsAMessage();
};

void tst_PrintCommand::formsOfTheTreeAreOffered() {
    ShellFixture shell;
    shell.forms.missing = u"usrctlChannels"_s;
    shell.load();
    shell.transformer.raise(
        [](TransformerEvents &events) { events.TransformerEvents_EnableDisableFormItem(u"DTMF Patch"_s, false); });
    QStringList items;
    runPrint(shell, [&items](QDialog &dialog) { items = itemsOf(dialog); });
    // Groups, the unavailable form and the one that cannot be made are not there; one above the access level is.
    QCOMPARE(items, QStringList({u"Specifications x"_s, u"Networks - Basic Settings"_s, u"Networks - Alerts"_s}));
}

void tst_PrintCommand::pendingEditIsTakenBeforeTheOpenFormIsPrinted() {
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"report.pdf"_s);
    qputenv("KX4600_PRINT_FILE", file.toUtf8());
    ShellFixture shell;
    shell.load();
    runPrint(shell, [](QDialog &dialog) { dialog.findChild<QPushButton *>(u"cmdPrint"_s)->click(); });
    QStringList calls;
    for (const QString &line : shell.log.take()) {
        if (line.startsWith(u"Enabler."_s) || line.startsWith(u"CreateForm"_s) || line.startsWith(u"Form."_s))
            calls << line;
    }
    QCOMPARE(calls, QStringList({u"Enabler.ForceSaveToCurrentField()"_s, u"CreateForm(usrctlSpec)"_s,
                                 u"Enabler.InitialiseFields(-1)"_s, u"Enabler.PrintForm(Specifications, false)"_s,
                                 u"Form.Terminate()"_s}));
    QVERIFY(QFile::exists(file));
    QCOMPARE(shell.services.process.CurrentEnablerKey, u"Main"_s);
}

void tst_PrintCommand::withoutPrintersThereIsAMessage() {
    if (!SystemPrinters().Printers().isEmpty())
        QSKIP("this system has a printer");
    ShellFixture shell;
    shell.load();
    shell.services.boxes.expect(u"There are no printers installed."_s, 1);
    runPrint(shell, [](QDialog &dialog) { dialog.findChild<QPushButton *>(u"cmdPrint"_s)->click(); });
    shell.services.boxes.expect(u"An error has occurred attempting to communicate with the printer."_s, 1);
    shell.find<QAction>(u"mnuPrinterSettings"_s)->trigger();
}

QTEST_MAIN(tst_PrintCommand)
#include "tst_print_command.moc"
