#include "cls_print.h"
#include "fake_printers.h"
#include "report_file.h"
#include "scripted_sink.h"
#include "test_services.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {
const QString kCancelled = u"An error has occurred whilst attempting to print report. The print has been cancelled. "
                           "Please check printer settings."_s;
const QString kNoCommunication = u"An error has occurred attempting to communicate with the printer."_s;

struct Printing {
    TestServices services{nullptr};
    FakePrinters printers;
    ScriptedSink::Script script;
    clsPrint print{printers, services.boxes, services.errors};

    void useScript() {
        printers.makeSink = [this] { return std::make_unique<ScriptedSink>(script); };
    }
    bool line(const QString &text) { return print.PrintLine(text, false, false, false); }
};
} // namespace

class tst_ClsPrint : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void documentThatCannotStartIsTold_data();
    void documentThatCannotStartIsTold();
    void fontIsChosenByExactName_data();
    void fontIsChosenByExactName();
    void printerThatFailsInTheMiddleEndsTheReport();
    void faultOfTheProgramIsReported();
    void choiceSurvivesFromOneReportToTheNext();
    void dialogWithoutAChoiceChangesNothing();
    void fileAppearsWholeOrNotAtAll_data();
    void fileAppearsWholeOrNotAtAll();
};

void tst_ClsPrint::documentThatCannotStartIsTold_data() {
    QTest::addColumn<ScriptedSink::Faults>("faults");
    QTest::addColumn<bool>("isThere");
    QTest::addColumn<QString>("message");
    const QString noPrinters = u"There are no printers installed."_s;
    const auto row = [](const char *name, const ScriptedSink::Faults &faults, bool isThere, const QString &message) {
        QTest::newRow(name) << faults << isThere << message;
    };
    row("no printer", {}, false, noPrinters);
    row("printer is gone", {.measuring = 482}, true, noPrinters);
    row("not set up", {.measuring = 484}, true, u"The printer is set up incorrectly."_s);
    row("any other error of the printer", {.measuring = 5}, true, kCancelled);
    row("file or queue cannot be opened", {.beginning = true}, true, kCancelled);
}

void tst_ClsPrint::documentThatCannotStartIsTold() {
    QFETCH(bool, isThere);
    QFETCH(QString, message);
    Printing printing;
    QFETCH(ScriptedSink::Faults, faults);
    printing.script.faults = faults;
    printing.useScript();
    if (!isThere)
        printing.printers.makeSink = [] { return nullptr; };
    printing.services.boxes.expect(message, 1);
    QVERIFY(!printing.print.NewDocument());
    QVERIFY(printing.services.boxes.shown().first().startsWith(u"Print Error: "_s));
    QVERIFY(!printing.line(u"lost"_s));
}

void tst_ClsPrint::fontIsChosenByExactName_data() {
    QTest::addColumn<QStringList>("fonts");
    QTest::addColumn<bool>("chinese");
    QTest::addColumn<QString>("chosen");
    const QStringList all{u"COURIER"_s, u"courier new"_s, u"MS Mincho"_s};
    QTest::newRow("first choice") << all << false << u"Courier"_s;
    QTest::newRow("first choice in China") << all << true << u"MS Mincho"_s;
    QTest::newRow("second choice") << QStringList({u"Courier 10 Pitch"_s, u"Courier New"_s}) << false
                                   << u"Courier New"_s;
    QTest::newRow("second choice in China")
        << QStringList({u"Courier"_s, u"Courier New"_s}) << true << u"Courier New"_s;
    QTest::newRow("the window's") << QStringList({u"Courier 10 Pitch"_s, u"Courier New Bold"_s}) << false
                                  << u"Window Sans"_s;
}

void tst_ClsPrint::fontIsChosenByExactName() {
    QFETCH(QStringList, fonts);
    QFETCH(bool, chinese);
    QFETCH(QString, chosen);
    Printing printing;
    printing.script.fonts = fonts;
    printing.printers.chinese = chinese;
    printing.useScript();
    QVERIFY(printing.print.NewDocument());
    printing.print.PrintLine(u"x"_s, true, false, false);
    QCOMPARE(printing.script.calls, QStringList({u"font "_s + chosen, u"font "_s + chosen + u" bold"_s, u"x"_s}));
}

void tst_ClsPrint::printerThatFailsInTheMiddleEndsTheReport() {
    Printing printing;
    printing.useScript();
    printing.script.faults.newPage = true;
    QVERIFY(printing.print.NewDocument());
    int printed = 0;
    while (printed < 1000 && printing.line(u"line"_s))
        ++printed;
    QVERIFY(printed > 1 && printed < 100);
    QVERIFY(!printing.services.errors.HasReported()); // who prints tells it, and the program goes on
    printing.print.CancelDocument();
    QCOMPARE(printing.script.calls.last(), u"cancel"_s);
    printing.script.faults.newPage = false;
    QVERIFY(printing.print.NewDocument());
    QVERIFY(printing.line(u"again"_s));
}

void tst_ClsPrint::faultOfTheProgramIsReported() {
    Printing printing;
    printing.useScript();
    printing.script.faults.printing = ErrorNumber::kBadArgument;
    QVERIFY(printing.print.NewDocument());
    printing.services.errorSink.expectReport();
    QVERIFY(!printing.line(u"x"_s));
    QCOMPARE(printing.services.errorSink.reports().size(), 1);
}

void tst_ClsPrint::choiceSurvivesFromOneReportToTheNext() {
    Printing printing;
    printing.printers.answerDialog = [](PrinterChoice &choice) {
        choice.DeviceName = u"Depot"_s;
        choice.Copies = 3;
        choice.PaperSize = 9;
        return true;
    };
    QVERIFY(printing.print.NewDocument()); // without a choice nothing is set
    QVERIFY(printing.printers.calls.isEmpty());
    QVERIFY(printing.print.PrintDialog(nullptr, 0));
    QVERIFY(printing.print.NewDocument());
    QVERIFY(printing.print.EndDocument());
    QVERIFY(printing.print.NewDocument());
    QCOMPARE(printing.printers.calls,
             QStringList({u"PrintDlg 12 "_s, u"MakeCurrent Depot 2"_s, u"Apply 3 copies, paper 9"_s,
                          u"MakeCurrent Depot 2"_s, u"Apply 3 copies, paper 9"_s}));
    printing.print.PrintDialog(nullptr, 1048580);
    QCOMPARE(printing.printers.calls.last(), u"PrintDlg 1048580 DEPOT"_s);
}

void tst_ClsPrint::dialogWithoutAChoiceChangesNothing() {
    Printing printing;
    printing.printers.answerDialog = [](PrinterChoice &choice) {
        choice.DeviceName = u"Depot"_s;
        return false;
    };
    QVERIFY(!printing.print.PrintDialog(nullptr, 0));
    printing.printers.answerDialog = [](PrinterChoice &) -> bool { throw RunTimeError(482, {}, {}); };
    printing.services.boxes.expect(kNoCommunication, 1);
    QVERIFY(!printing.print.PrintDialog(nullptr, 0));
    QVERIFY(printing.print.NewDocument());
    QCOMPARE(printing.printers.calls, QStringList({u"PrintDlg 12 "_s, u"PrintDlg 12 "_s}));
}

void tst_ClsPrint::fileAppearsWholeOrNotAtAll_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("PDF") << u"report.pdf"_s << QByteArray("%PDF-");
    QTest::newRow("text") << u"report.TXT"_s << QByteArray("second\n");
}

void tst_ClsPrint::fileAppearsWholeOrNotAtAll() {
    QFETCH(QString, name);
    QFETCH(QByteArray, start);
    Printing printing;
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    QVERIFY(printing.print.NewDocument(reportFile(path)));
    QVERIFY(printing.line(u"first"_s));
    printing.print.CancelDocument();
    QVERIFY(!QFile::exists(path));

    QVERIFY(printing.print.NewDocument(reportFile(path)));
    QVERIFY(printing.line(u"second"_s));
    QVERIFY(!QFile::exists(path));
    QVERIFY(printing.print.EndDocument());
    QFile written(path);
    QVERIFY(written.open(QIODevice::ReadOnly));
    QVERIFY(written.readAll().startsWith(start));

    printing.services.boxes.expect(kCancelled, 1);
    QVERIFY(!printing.print.NewDocument(reportFile(folder.filePath(u"missing/"_s + name))) ||
            !printing.print.EndDocument());
}

QTEST_MAIN(tst_ClsPrint)
#include "tst_cls_print.moc"
