#include "common_error_handler.h"
#include "data_form.h"
#include "fake_printers.h"
#include "form_factory.h"
#include "frm_main.h"
#include "frm_print.h"
#include "main_program.h"
#include "test_services.h"
#include "transformer.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QFile>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {
// The forms of the program, made for a report without a tree.
class CatalogueForms final : public ReportShell {
  public:
    explicit CatalogueForms(QStringList keys) : mKeys(std::move(keys)) {}
    [[nodiscard]] std::vector<ReportableForm> Forms() const override {
        std::vector<ReportableForm> forms;
        for (qint32 node = 1; node <= mKeys.size(); ++node)
            forms.push_back({node, u"Form "_s + QString::number(node), true});
        return forms;
    }
    [[nodiscard]] QString FormKey(qint32 node) const override { return mKeys.at(node - 1); }
    InvisibleForm CreateForm(const QString &key, const FieldServices &services, QWidget *parent) override {
        DataForm *const form = mFactory.CreateForm(key, services, parent);
        return {form, form};
    }
    void MouseHourglass() override {}
    void MouseDefault() override {}

  private:
    QStringList mKeys;
    FormFactory mFactory;
};

QString expectation(const QString &name) {
    QFile file(QFINDTESTDATA(u"expected/"_s + name + u".txt"_s));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
} // namespace

// The report of real forms on the real component, in the real program.
class tst_ReportOfForms : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase();
    void textIsAsExpected_data();
    void textIsAsExpected();
    void programPrintsAllFormsAndIsAsBefore();
    void cleanupTestCase() { mProgram.reset(); }

  private:
    QTemporaryDir mHome;
    ErrorReport mErrors{false};
    std::unique_ptr<MainProgram> mProgram;
};

void tst_ReportOfForms::initTestCase() {
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(name, mHome.filePath(QString::fromLatin1(name)).toUtf8());
    mProgram = std::make_unique<MainProgram>(mErrors, QStringList());
    QVERIFY(mProgram->Start());
}

void tst_ReportOfForms::textIsAsExpected_data() {
    QTest::addColumn<QStringList>("forms");
    QTest::addColumn<bool>("french");
    QTest::newRow("economy") << QStringList(u"usrctlEconomyKX4600"_s) << false;
    QTest::newRow("economy-french") << QStringList(u"usrctlEconomyKX4600"_s) << true;
    QTest::newRow("specifications") << QStringList(u"usrctlSpecificationsKX4600"_s) << false;
    QTest::newRow("two-forms") << QStringList({u"usrctlStartupKX4600"_s, u"usrctlRxMonitorKX4600"_s}) << false;
}

void tst_ReportOfForms::textIsAsExpected() {
    QFETCH(QStringList, forms);
    QFETCH(bool, french);
    TestServices translated(&mProgram->Component());
    if (french)
        translated.translate({u"Economy|Économie"_s, u"Economy Timer|Temporisation d'économie"_s, u"Off|Désactivé"_s});
    const FieldServices &own = mProgram->Window().Services();
    const FieldServices services{own.process, translated.translation, own.errors, own.boxes, own.clipboard, own.shell};
    FakePrinters printers;
    CatalogueForms shell(forms);
    frmPrint dialog(services, shell, printers, &mProgram->Window());
    dialog.findChild<QPushButton *>(u"cmdPrint"_s)->click();
    QVERIFY(!printers.pages.empty());
    printers.pages[0].remove(0, 4); // the banner, which has the time
    const QString text = TextPageSink::textOf(printers.pages);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    if (const QString folder = qEnvironmentVariable("KX4600_WRITE_EXPECTED"); !folder.isEmpty()) {
        QFile file(folder + u'/' + name + u".txt"_s);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) >= 0);
    }
    QCOMPARE(text, expectation(name));
}

void tst_ReportOfForms::programPrintsAllFormsAndIsAsBefore() {
    const QString file = mHome.filePath(u"report.pdf"_s);
    qputenv("KX4600_PRINT_FILE", file.toUtf8());
    frmMain &window = mProgram->Window();
    const ProcessValues &process = window.Services().process;
    const QWidget *const form = window.LoadedUsrControl().widget;
    const QWidget *const focus = window.focusWidget();
    QTimer poll;
    connect(&poll, &QTimer::timeout, &window, [&window, &poll] {
        const auto *const dialog = window.findChild<QDialog *>(u"frmPrint"_s);
        if (dialog == nullptr)
            return;
        poll.stop();
        dialog->findChild<QPushButton *>(u"cmdSelectAll"_s)->click();
        dialog->findChild<QCheckBox *>(u"chkPrintAll"_s)->setChecked(true);
        dialog->findChild<QPushButton *>(u"cmdPrint"_s)->click();
    });
    poll.start(5);
    window.findChild<QAction *>(u"mnuPrint"_s)->trigger();
    qunsetenv("KX4600_PRINT_FILE");
    QVERIFY(QFile(file).size() > 1000);
    QVERIFY(!mErrors.HasReported());
    QVERIFY(window.LoadedUsrControl().widget == form && window.focusWidget() == focus);
    QCOMPARE(process.CurrentEnablerKey, u"Main"_s);
    QCOMPARE(process.colEnablers.Count(), 1);
    QVERIFY(!mProgram->Component().GetDataIsDirty() && !mProgram->Component().GetFormIsDirty());
}

QTEST_MAIN(tst_ReportOfForms)
#include "tst_report_of_forms.moc"
