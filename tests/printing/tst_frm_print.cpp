#include "bound_form.h"
#include "fake_printers.h"
#include "frm_print.h"
#include "iusrfrm.h"
#include "report_banner.h"
#include "scripted_sink.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {
const QString kWhile = u"An error has occurred while attempting to print report. The print has been cancelled. "
                       "Please check printer settings."_s;
const QString kWhilst = QString(kWhile).replace(u"while"_s, u"whilst"_s);

// A form of doubles with a widget, made for a report.
class ReportWidget final : public QWidget, public Iusrfrm {
  public:
    ReportWidget(BoundForm &bound, QWidget *parent) : QWidget(parent), mBound(bound) {}
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
    QString keyWhileMade;
    int busy = 0;

    [[nodiscard]] std::vector<ReportableForm> Forms() const override {
        return {{1, u"Start-up"_s, false}, {3, u"Networks - Alerts"_s, true}, {4, u"Networks - PTT"_s, false}};
    }
    [[nodiscard]] QString FormKey(qint32 node) const override { return u"usrctl%1"_s.arg(node); }
    InvisibleForm CreateForm(const QString &key, const FieldServices &services, QWidget *parent) override {
        made << key + u" as "_s + services.shell.LoadedFormTypeName();
        auto *widget = new ReportWidget(mBound, parent);
        onCreate();
        return {widget, widget};
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
    // The first page without the banner.
    [[nodiscard]] QStringList report() const { return printers.pages.at(0).mid(4); }
    [[nodiscard]] bool closed() const { return window->result() == QDialog::Accepted; }
};
} // namespace

class tst_FrmPrint : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void printNeedsACheckedForm();
    void checkedFormsArePrintedInOrder();
    void bannerNamesModelTimeAndFile();
    void formStandsUnderPrintWhileItIsPrinted();
    void storedPositionsAreAsBefore_data();
    void storedPositionsAreAsBefore();
    void failureKeepsTheDialog_data();
    void failureKeepsTheDialog();
    void cancelStopsBetweenTwoForms();
    void pdfIsWrittenFromTheSameWalk();
    void previewShowsThePages();
    void printerSettingsNeedADefaultPrinter();
};

void tst_FrmPrint::printNeedsACheckedForm() {
    const Dialog dialog;
    const auto enabled = [&dialog] {
        return dialog.find<QPushButton>("cmdPrint").isEnabled() && dialog.find<QPushButton>("cmdPreview").isEnabled() &&
               dialog.find<QPushButton>("cmdSavePdf").isEnabled();
    };
    QVERIFY(enabled());
    dialog.check(1, false);
    QVERIFY(!dialog.find<QPushButton>("cmdPrint").isEnabled());
    QVERIFY(!dialog.find<QPushButton>("cmdSavePdf").isEnabled());
    dialog.click("cmdSelectAll");
    QVERIFY(enabled());
}

void tst_FrmPrint::checkedFormsArePrintedInOrder() {
    const Dialog dialog;
    dialog.check(0, true);
    dialog.click("cmdPrint");
    QVERIFY(dialog.closed());
    QCOMPARE(dialog.shell.made, QStringList({u"usrctl1 as usrctl1"_s, u"usrctl3 as usrctl3"_s}));
    QCOMPARE(dialog.report(),
             QStringList({u"Start-up"_s, QString(), u"--------"_s, u"Power: High"_s, u"Networks - Alerts"_s, QString(),
                          u"-----------------"_s, u"Power: High"_s}));
    QCOMPARE(dialog.shell.busy, 0);
}

void tst_FrmPrint::bannerNamesModelTimeAndFile() {
    const QDateTime moment(QDate(2024, 3, 9), QTime(14, 5));
    const QLocale locale = QLocale::system();
    QCOMPARE(reportBanner(u"KX4600"_s, moment, u"/data/fleet.k4p"_s),
             u"KX4600 - %1 %2 - /data/fleet.k4p"_s.arg(locale.toString(moment.date(), QLocale::ShortFormat),
                                                       locale.toString(moment.time(), QLocale::ShortFormat)));
    const Dialog dialog;
    dialog.click("cmdPrint");
    QVERIFY(dialog.printers.pages.at(0).at(1).startsWith(u"KX4600 - "_s));
    QVERIFY(dialog.printers.pages.at(0).at(1).endsWith(u" - /data/fleet.k4p"_s));
}

void tst_FrmPrint::formStandsUnderPrintWhileItIsPrinted() {
    Dialog dialog;
    const ProcessValues &process = dialog.bound.services.process;
    QString during;
    dialog.bound.component.when(u"GetValue"_s, u"Power"_s).runs([&] {
        during =
            process.CurrentEnablerKey + (process.colEnablers.Item(u"Print"_s) != nullptr ? u" found"_s : QString());
        const auto *const form = dialog.window->findChild<QWidget *>(u"usrfrmPrint"_s);
        during += form != nullptr && !form->isVisible() ? u" invisible"_s : QString();
    });
    dialog.click("cmdPrint");
    QCOMPARE(during, u"Print found invisible"_s);
    QCOMPARE(process.CurrentEnablerKey, u"Main"_s);
    QVERIFY(process.colEnablers.Item(u"Print"_s) == nullptr);
    QVERIFY(dialog.window->findChild<QWidget *>(u"usrfrmPrint"_s) == nullptr);
    QCOMPARE(dialog.bound.log.linesOf(u"Terminate"_s).size(), 1);
}

void tst_FrmPrint::storedPositionsAreAsBefore_data() {
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QString>("lastWrite");
    QTest::newRow("moved") << QVariant(2) << u"SetValue(Pos, 2, 1, true)"_s;
    QTest::newRow("the record that is printed last") << QVariant(3) << u"SetValue(Pos, 3, 1, true)"_s;
    // Writing it back would be refused, with a message.
    QTest::newRow("stood on no record") << QVariant(0) << u"SetValue(Pos, 3, 1, true)"_s;
}

void tst_FrmPrint::storedPositionsAreAsBefore() {
    QFETCH(QVariant, before);
    Dialog dialog;
    auto &navigator = dialog.bound.add<FakeNavigator>(u"navGuide"_s);
    navigator.stream = 1;
    navigator.storageUIID = u"Pos"_s;
    RecordingTransformer &component = dialog.bound.component;
    component.when(u"GetNumberOfRecords"_s).answers(3);
    component.when(u"GetValue"_s, u"Pos"_s).answers(before);
    dialog.bound.enabler->AccessControls();
    dialog.find<QCheckBox>("chkPrintAll").setChecked(true);
    // The double keeps no values: while the records are printed the last of them counts as stored.
    component.when(u"GetValue"_s, u"Power"_s).runs([&component] {
        component.when(u"GetValue"_s, u"Pos"_s).answers(3);
    });
    dialog.click("cmdPrint");
    QTEST(dialog.bound.log.linesOf(u"SetValue"_s).last(), "lastWrite");
}

void tst_FrmPrint::failureKeepsTheDialog_data() {
    QTest::addColumn<bool>("failsToBegin");
    QTest::addColumn<bool>("failsAtNewPage");
    QTest::addColumn<bool>("failsToEnd");
    QTest::addColumn<QString>("message");
    QTest::newRow("start") << true << false << false << kWhilst;
    QTest::newRow("in the middle") << false << true << false << kWhile;
    QTest::newRow("end") << false << false << true << kWhilst;
}

void tst_FrmPrint::failureKeepsTheDialog() {
    QFETCH(bool, failsToBegin);
    QFETCH(bool, failsAtNewPage);
    QFETCH(bool, failsToEnd);
    QFETCH(QString, message);
    Dialog dialog;
    ScriptedSink::Script script;
    script.failsToBegin = failsToBegin;
    script.failsAtNewPage = failsAtNewPage;
    script.failsToEnd = failsToEnd;
    dialog.printers.makeSink = [&script] { return std::make_unique<ScriptedSink>(script); };
    for (int field = 0; field < 60; ++field) // more than a page
        dialog.bound.addText(u"txtPower"_s);
    dialog.check(2, true);
    dialog.bound.services.boxes.expect(message, 1);
    dialog.click("cmdPrint");
    QVERIFY(!dialog.closed());
    QCOMPARE(dialog.shell.made.size(), failsToBegin ? 0 : failsAtNewPage ? 1 : 2);
    QCOMPARE(script.calls.contains(u"cancel"_s), failsAtNewPage);
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

void tst_FrmPrint::pdfIsWrittenFromTheSameWalk() {
    Dialog dialog;
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"report.pdf"_s);
    QString proposed;
    QString answer;
    dialog.window->SetFileNameQuestion([&](QWidget *, const QString &proposal) {
        proposed = proposal;
        return answer;
    });
    dialog.click("cmdSavePdf");
    QCOMPARE(proposed, u"/data/fleet.pdf"_s);
    QVERIFY(dialog.shell.made.isEmpty() && !dialog.closed());

    answer = folder.filePath(u"missing/report.pdf"_s);
    dialog.bound.services.boxes.expect(kWhilst, 1);
    dialog.click("cmdSavePdf");
    QVERIFY(dialog.shell.made.isEmpty() && !dialog.closed());

    answer = file;
    dialog.click("cmdSavePdf");
    QVERIFY(dialog.closed());
    QVERIFY(QFile::exists(file));
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
