#include "bound_form.h"
#include "fake_printers.h"
#include "frm_print.h"
#include "iusrfrm.h"
#include "report_banner.h"
#include "scripted_sink.h"

#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {
const QString kWhile = u"An error has occurred while attempting to print report. The print has been cancelled. "
                       "Please check printer settings."_s;
const QString kWhilst = QString(kWhile).replace(u"while"_s, u"whilst"_s);

// A form of doubles, made for a report.
class ReportedForm final : public Iusrfrm {
  public:
    explicit ReportedForm(BoundForm &bound) : mBound(bound) {}
    std::shared_ptr<Ienabler> Iusrfrm_Enabler() override { return mBound.enabler; }
    void Iusrfrm_Terminate() override { mBound.log.add(u"Terminate"_s); }
    const HostControls &Iusrfrm_Controls() override { return mBound.controls; }
    HostControl *Iusrfrm_ActiveControl() override { return nullptr; }

  private:
    BoundForm &mBound;
};

// Three forms of a main window that exists no further; each is the same form of doubles.
class FakeReportShell final : public ReportShell {
  public:
    explicit FakeReportShell(BoundForm &bound) : mBound(bound) {}
    std::function<void()> onCreate = [] {};
    QStringList made;
    int busy = 0;

    [[nodiscard]] std::vector<ReportableForm> Forms() const override {
        return {{1, u"Start-up"_s, false}, {3, u"Networks - Alerts"_s, true}, {4, u"Networks - PTT"_s, false}};
    }
    [[nodiscard]] QString FormKey(qint32 node) const override { return u"usrctl%1"_s.arg(node); }
    std::unique_ptr<Iusrfrm> CreateForm(const QString &key, const FieldServices &services) override {
        made << key + u" as "_s + services.shell.LoadedFormTypeName();
        onCreate();
        return std::make_unique<ReportedForm>(mBound);
    }
    void MouseHourglass() override { ++busy; }
    void MouseDefault() override { --busy; }

  private:
    BoundForm &mBound;
};

struct Dialog {
    BoundForm bound;
    FakePrinters printers;
    FakeReportShell shell{bound};
    std::unique_ptr<frmPrint> window;

    Dialog() {
        bound.services.process.CurrentEnablerKey = u"Main"_s;
        bound.component.when(u"GetRadioModel"_s).answers(u"KX4600"_s);
        bound.component.when(u"GetFileName"_s).answers(u"/data/fleet.k4p"_s);
        bound.component.when(u"GetLabel"_s).answers(u"Power"_s);
        bound.component.when(u"GetValue"_s, u"Power"_s).answers(u"High"_s);
        bound.addText(u"txtPower"_s);
        window = std::make_unique<frmPrint>(bound.services.fieldServices(), shell, printers, nullptr);
    }
    template <class Widget>
    [[nodiscard]] Widget &find(const char *name) const {
        return *window->findChild<Widget *>(QString::fromLatin1(name));
    }
    void click(const char *button) const { find<QPushButton>(button).click(); }
    void check(int row, bool checked) const {
        find<QListWidget>("lstForms").item(row)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    }
    [[nodiscard]] bool closed() const { return window->result() == QDialog::Accepted; }
};
} // namespace

class tst_FrmPrint : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void printNeedsACheckedForm();
    void bannerNamesModelTimeAndFile();
    void formStandsUnderPrintWhileItIsPrinted();
    void failureKeepsTheDialog_data();
    void failureKeepsTheDialog();
    void cancelStopsBetweenTwoForms();
    void pdfIsWrittenFromTheSameWalk_data();
    void pdfIsWrittenFromTheSameWalk();
    void previewShowsThePages();
    void printerSettingsNeedADefaultPrinter();
};

void tst_FrmPrint::printNeedsACheckedForm() {
    const Dialog dialog;
    const auto enabled = [&dialog] {
        QStringList buttons;
        for (const char *button : {"cmdPrint", "cmdPreview", "cmdSavePdf"})
            buttons << (dialog.find<QPushButton>(button).isEnabled() ? u"yes"_s : u"no"_s);
        return buttons.join(u' ');
    };
    QCOMPARE(enabled(), u"yes yes yes"_s);
    dialog.check(1, false);
    QCOMPARE(enabled(), u"no no no"_s);
    dialog.click("cmdSelectAll");
    QCOMPARE(enabled(), u"yes yes yes"_s);
}

void tst_FrmPrint::bannerNamesModelTimeAndFile() {
    QCOMPARE(reportBanner(u"KX4600"_s, QDateTime(QDate(2024, 3, 9), QTime(14, 5)), u"/data/fleet.k4p"_s),
             u"KX4600 - 9 Mar 2024 14:05:00 - /data/fleet.k4p"_s);
    const Dialog dialog;
    dialog.click("cmdPrint");
    const QString &banner = dialog.printers.pages.at(0).at(1);
    QVERIFY(banner.startsWith(u"KX4600 - "_s) && banner.endsWith(u" - /data/fleet.k4p"_s));
}

void tst_FrmPrint::formStandsUnderPrintWhileItIsPrinted() {
    Dialog dialog;
    const ProcessValues &process = dialog.bound.services.process;
    QString during;
    dialog.bound.component.when(u"GetValue"_s, u"Power"_s).runs([&] {
        during = process.CurrentEnablerKey;
        during += process.colEnablers.Item(u"Print"_s) != nullptr ? u" found"_s : u" missing"_s;
    });
    dialog.click("cmdPrint");
    QCOMPARE(during, u"Print found"_s);
    QCOMPARE(process.CurrentEnablerKey, u"Main"_s);
    QVERIFY(process.colEnablers.Item(u"Print"_s) == nullptr);
    QCOMPARE(dialog.bound.log.linesOf(u"Terminate"_s).size(), 1);
}

void tst_FrmPrint::failureKeepsTheDialog_data() {
    QTest::addColumn<ScriptedSink::Faults>("faults");
    QTest::addColumn<int>("formsMade");
    QTest::addColumn<QString>("message");
    QTest::newRow("start") << ScriptedSink::Faults{.beginning = true} << 0 << kWhilst;
    QTest::newRow("in the middle") << ScriptedSink::Faults{.newPage = true} << 1 << kWhile;
    QTest::newRow("end") << ScriptedSink::Faults{.end = true} << 2 << kWhilst;
}

void tst_FrmPrint::failureKeepsTheDialog() {
    QFETCH(ScriptedSink::Faults, faults);
    QFETCH(int, formsMade);
    QFETCH(QString, message);
    Dialog dialog;
    ScriptedSink::Script script{.fonts = {}, .faults = faults, .calls = {}};
    dialog.printers.makeSink = [&script] { return std::make_unique<ScriptedSink>(script); };
    for (int field = 0; field < 60; ++field) // more than a page
        dialog.bound.addText(u"txtPower"_s);
    dialog.check(2, true);
    dialog.bound.services.boxes.expect(message, 1);
    dialog.click("cmdPrint");
    QVERIFY(!dialog.closed());
    QCOMPARE(dialog.shell.made.size(), formsMade);
    QCOMPARE(script.calls.contains(u"cancel"_s), script.faults.newPage);
    QVERIFY(dialog.find<QPushButton>("cmdPrint").isEnabled());
    QCOMPARE(dialog.shell.busy, 0);
    QVERIFY(!dialog.bound.services.errors.HasReported());
    QCOMPARE(dialog.bound.services.process.CurrentEnablerKey, u"Main"_s);
}

void tst_FrmPrint::cancelStopsBetweenTwoForms() {
    Dialog dialog;
    dialog.click("cmdSelectAll");
    QString progress;
    dialog.shell.onCreate = [&dialog, &progress] {
        progress = dialog.find<QLabel>("lblProgress").text();
        QVERIFY(!dialog.find<QPushButton>("cmdPrint").isEnabled());
        QVERIFY(dialog.find<QPushButton>("cmdCancel").isEnabled());
        dialog.click("cmdCancel");
    };
    dialog.click("cmdPrint");
    QCOMPARE(dialog.shell.made.size(), 1);
    QCOMPARE(progress, u"Form 1 of 3: Start-up"_s);
    QVERIFY(dialog.printers.pages.empty());
    QVERIFY(!dialog.closed());
    QCOMPARE(dialog.find<QLabel>("lblProgress").text(), u"The report was cancelled."_s);
}

void tst_FrmPrint::pdfIsWrittenFromTheSameWalk_data() {
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("message");
    QTest::newRow("cancelled") << QString() << QString() << QString();
    QTest::newRow("folder that does not exist") << u"missing/report.pdf"_s << QString() << kWhilst;
    QTest::newRow("written") << u"report.pdf"_s << u"report.pdf"_s << QString();
}

void tst_FrmPrint::pdfIsWrittenFromTheSameWalk() {
    QFETCH(QString, answer);
    QFETCH(QString, written);
    QFETCH(QString, message);
    Dialog dialog;
    const QTemporaryDir folder;
    QString proposed;
    dialog.window->SetFileNameQuestion([&](QWidget *, const QString &proposal) {
        proposed = proposal;
        return answer.isEmpty() ? answer : folder.filePath(answer);
    });
    if (!message.isEmpty())
        dialog.bound.services.boxes.expect(message, 1);
    dialog.click("cmdSavePdf");
    QCOMPARE(proposed, u"/data/fleet.pdf"_s);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).join(u'|'), written);
    QCOMPARE(dialog.shell.made.isEmpty(), written.isEmpty());
    QCOMPARE(dialog.closed(), !written.isEmpty());
    QVERIFY(dialog.printers.pages.empty());
}

void tst_FrmPrint::previewShowsThePages() {
    const Dialog dialog;
    QStringList shown;
    QTimer closer;
    connect(&closer, &QTimer::timeout, dialog.window.get(), [&shown] {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->objectName() == u"frmPrintPreview") {
                shown << window->windowTitle();
                window->close();
            }
        }
    });
    closer.start(10);
    dialog.click("cmdPreview");
    QCOMPARE(shown, QStringList(u"Print"_s));
    QCOMPARE(dialog.shell.made.size(), 1); // not once for each time the preview paints
    QVERIFY(!dialog.closed());
}

void tst_FrmPrint::printerSettingsNeedADefaultPrinter() {
    Dialog dialog;
    dialog.printers.defaultPrinter.clear();
    dialog.bound.services.boxes.expect(u"A default printer does not exist."_s, 1);
    dialog.click("cmdPrinterSettings");
    QVERIFY(dialog.printers.calls.isEmpty());
    dialog.printers.defaultPrinter = u"Office"_s;
    dialog.click("cmdPrinterSettings");
    QCOMPARE(dialog.printers.calls, QStringList(u"PrintDlg 1048580 "_s));
}

QTEST_MAIN(tst_FrmPrint)
#include "tst_frm_print.moc"
