#include "frm_main.h"
#include "ifield.h"
#include "iusrfrm.h"
#include "process_values.h"
#include "program_bench.h"
#include "system_printers.h"
#include "transformer.h"
#include "value_text.h"
#include "window_input.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <csignal>
#include <functional>
#include <optional>
#include <utility>

#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

namespace {
QString contentOf(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// What stands behind the banner, which has the time, and its two rules.
QString withoutBanner(const QString &text) {
    const QString rule = QString(80, u'-') + u'\n';
    return text.mid(text.indexOf(rule, rule.size()) + rule.size());
}

// Runs the window's Print command and acts on the report dialog as soon as it is there.
void runReportDialog(QWidget &window, const std::function<void(QDialog &)> &act) {
    QTimer poll;
    bool found = false;
    QObject::connect(&poll, &QTimer::timeout, &window, [&] {
        auto *const dialog = window.findChild<QDialog *>(u"frmPrint"_s);
        if (dialog == nullptr || std::exchange(found, true))
            return;
        act(*dialog);
        dialog->close();
    });
    poll.start(5);
    auto *const command = window.findChild<QAction *>(u"mnuPrint"_s);
    QVERIFY(command->isEnabled());
    command->trigger();
    QVERIFY(found);
}

// Ticks that form of the list, or all where it is empty, and clicks Print.
void print(const QDialog &dialog, const QString &form, bool all) {
    auto &list = *dialog.findChild<QListWidget *>(u"lstForms"_s);
    for (int row = 0; row < list.count(); ++row) {
        const bool chosen = form.isEmpty() || list.item(row)->text() == form;
        list.item(row)->setCheckState(chosen ? Qt::Checked : Qt::Unchecked);
    }
    dialog.findChild<QCheckBox *>(u"chkPrintAll"_s)->setChecked(all);
    dialog.findChild<QPushButton *>(u"cmdPrint"_s)->click();
}
// No file grows beyond a page while it stands; a write fails then as on a full disk.
class FullDisk {
  public:
    FullDisk() {
        ::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &mBefore);
        const rlimit limit{4096, mBefore.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &mBefore); }
    Q_DISABLE_COPY_MOVE(FullDisk)

  private:
    rlimit mBefore{};
};
} // namespace

// The report of real forms on the real component: from the window and from the command line.
class tst_ReportOfForms : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase();
    void cleanup() { qunsetenv("KX4600_PRINT_FILE"); }
    void textIsAsExpected_data();
    void textIsAsExpected();
    void toolPrintsWhatTheWindowPrints_data();
    void toolPrintsWhatTheWindowPrints();
    void everythingIsAsBefore_data();
    void everythingIsAsBefore();
    void openFormIsPrintedWithWhatIsBeingTyped();
    void cleanupTestCase() { mProgram.reset(); }

  private:
    void start(qint32 language);
    // All that a report must leave alone.
    [[nodiscard]] QStringList state() const;
    [[nodiscard]] QString windowReport(const QString &form, bool all) const;
    [[nodiscard]] QString toolReport(const QStringList &words) const;

    QTemporaryDir mFolder{QDir::tempPath() + u"/kx"_s}; // short, so that the banner fits a line
    QString mData = mFolder.filePath(u"a.k4p"_s);
    qint32 mLanguage = 0;
    std::unique_ptr<ProgramBench> mProgram;
};

// A program with the data, in a language as the settings count them.
void tst_ReportOfForms::start(qint32 language) {
    if (std::exchange(mLanguage, language) == language)
        return;
    mProgram.reset();
    mProgram = std::make_unique<ProgramBench>(language);
    if (QFile::exists(mData))
        mProgram->component().ReadFile(mData, 0, 0, false);
}

// The Advanced tier with a scan group of two members, a network, a selcall system and two channels more.
void tst_ReportOfForms::initTestCase() {
    start(1);
    mProgram->chooseTier(u"Advanced"_s);
    Transformer &component = mProgram->component();
    bool ok = false;
    qint32 record = 0;
    for (const QString &guide :
         {u"ChannelID_q7r"_s, u"ChannelID_q7r"_s, u"GroupID_q7r"_s, u"NetworkID"_s, u"SignalSystemId_q7r"_s})
        component.AddRecord(guide, QString(), record, ok);
    mProgram->setValue(u"CurrentScanGroupNr"_s, 1, 1);
    for (int member = 0; member < 2; ++member)
        component.AddRecord(u"FilteredScanGroupChannelMemberID"_s, QString(), record, ok);
    mProgram->setValue(u"RxFreq_q7r"_s, 2, u"165.0625"_s);
    mProgram->setValue(u"ANISuppressionTime_q7r"_s, 2, 30);
    mProgram->setValue(u"CurrentChannelNr"_s, 1, 1);
    component.SaveFile(mData, QString(), 0, ok);
    QVERIFY(ok);
}

void tst_ReportOfForms::textIsAsExpected_data() {
    QTest::addColumn<QString>("form");
    QTest::addColumn<bool>("all");
    QTest::addColumn<QString>("tier");
    QTest::addColumn<qint32>("language");
    const auto row = [](const char *name, const char *form, bool all = false, const char *tier = "Advanced",
                        qint32 language = 1) {
        QTest::newRow(name) << QString::fromUtf8(form) << all << QString::fromLatin1(tier) << language;
    };
    row("no-navigator", "Radio - Economy");
    row("unset-field", "Specifications");
    row("nested-frames", "Radio - Key Settings");
    row("wrapped-cells", "Channels");
    row("one-column", "Scan Groups");
    row("no-rows", "Selcall - Control Status");
    row("all-records", "Networks - Network PTT", true);
    row("tier-without-fields", "Networks - Network PTT", true, "Basic");
    row("french", "Radio - Économie", false, "Advanced", 2);
    row("french-table", "Canaux", false, "Advanced", 2);
}

QString tst_ReportOfForms::windowReport(const QString &form, bool all) const {
    const QString file = mFolder.filePath(u"window.txt"_s);
    QFile::remove(file);
    qputenv("KX4600_PRINT_FILE", file.toUtf8());
    runReportDialog(mProgram->window(), [&](const QDialog &dialog) { print(dialog, form, all); });
    return withoutBanner(contentOf(file));
}

QString tst_ReportOfForms::toolReport(const QStringList &words) const {
    const QString file = mFolder.filePath(u"tool.txt"_s);
    QProcess tool;
    tool.start(qEnvironmentVariable("KX4600_BIN") + u"/kx4600ctl"_s,
               QStringList{u"report"_s, mData, u"-o"_s, file} + words);
    return tool.waitForFinished() && tool.exitCode() == 0 ? withoutBanner(contentOf(file)) : u"failed"_s;
}

// An expectation that ends in "..." is the report's beginning.
void tst_ReportOfForms::textIsAsExpected() {
    QFETCH(QString, form);
    QFETCH(bool, all);
    QFETCH(QString, tier);
    QFETCH(qint32, language);
    start(language);
    mProgram->chooseTier(tier);
    const QString text = windowReport(form, all);
    const QString name = QString::fromLatin1(QTest::currentDataTag()) + u".txt"_s;
    if (const QString folder = qEnvironmentVariable("KX4600_WRITE_EXPECTED"); !folder.isEmpty()) {
        QFile file(folder + u'/' + name);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) >= 0);
    }
    QString expected = contentOf(QFINDTESTDATA(u"expected/"_s + name));
    const bool isBeginning = expected.endsWith(u"...\n"_s);
    expected.chop(isBeginning ? 4 : 0);
    QCOMPARE(isBeginning ? text.left(expected.size()) : text, expected);
}

void tst_ReportOfForms::toolPrintsWhatTheWindowPrints_data() {
    QTest::addColumn<QString>("tier");
    QTest::addColumn<bool>("all");
    for (const char *tier : {"Basic", "Standard", "Advanced"}) {
        for (const bool all : {false, true})
            QTest::addRow("%s, %s", tier, all ? "all records" : "current records") << QString::fromLatin1(tier) << all;
    }
}

// Each form of the tier, with nothing in front of it and behind it that the other way does not have.
void tst_ReportOfForms::toolPrintsWhatTheWindowPrints() {
    QFETCH(QString, tier);
    QFETCH(bool, all);
    start(1);
    mProgram->chooseTier(tier);
    const QStringList window = windowReport({}, all).split(u'\n');
    const QStringList tool =
        toolReport(QStringList{u"--tier"_s, tier} + QStringList(all ? 1 : 0, u"--all"_s)).split(u'\n');
    QVERIFY(window.size() > 200);
    for (qsizetype line = 0; line < std::min(window.size(), tool.size()); ++line)
        QVERIFY2(window.at(line) == tool.at(line),
                 qPrintable(u"%1: %2 / %3"_s.arg(line).arg(window.at(line), tool.at(line))));
    QCOMPARE(tool.size(), window.size());
}

QStringList tst_ReportOfForms::state() const {
    const frmMain &window = mProgram->window();
    const ProcessValues &process = window.Services().process;
    Transformer &component = mProgram->component();
    const auto address = [](const QObject *object) { return QString::number(quintptr(object), 16); };
    QStringList state{address(window.LoadedUsrControl().widget),
                      address(window.focusWidget()),
                      process.CurrentEnablerKey,
                      QString::number(process.colEnablers.Count()),
                      component.GetDataIsDirty() ? u"data is dirty"_s : u"data is clean"_s,
                      component.GetFormIsDirty() ? u"form is dirty"_s : u"form is clean"_s};
    for (const char *position : {"CurrentChannelNr", "CurrentNetworkNr", "CurrentScanGroupNr"})
        state << mProgram->value(QString::fromLatin1(position));
    for (HostControl *control : window.LoadedUsrControl().form->Iusrfrm_Controls()) {
        if (Ifield *const field = control->object())
            state << control->Name() + u' ' + QString::number(field->Ifield_GetRecordNr()) + u' ' +
                         ValueText::of(field->Ifield_GetValue());
    }
    return state;
}

void tst_ReportOfForms::everythingIsAsBefore_data() {
    QTest::addColumn<QString>("file"); // "": there is no printer
    QTest::addColumn<QString>("happens");
    QTest::addColumn<QString>("message");
    const QString whilst = u"An error has occurred whilst attempting to print report. The print has been cancelled. "
                           "Please check printer settings."_s;
    QTest::newRow("printed") << u"report.pdf"_s << u"edit"_s << QString();
    QTest::newRow("printed from clean data") << u"report.pdf"_s << QString() << QString();
    QTest::newRow("cancelled") << u"report.pdf"_s << u"edit and cancel"_s << QString();
    QTest::newRow("file that cannot be written") << u"no/such/report.pdf"_s << u"edit"_s << whilst;
    QTest::newRow("disk that becomes full")
        << u"report.pdf"_s << u"edit, full disk"_s << QString(whilst).replace(u"whilst"_s, u"while"_s);
    QTest::newRow("no printer") << QString() << u"edit"_s << u"There are no printers installed."_s;
}

void tst_ReportOfForms::everythingIsAsBefore() {
    QFETCH(QString, file);
    QFETCH(QString, happens);
    QFETCH(QString, message);
    if (file.isEmpty() && !SystemPrinters().Printers().isEmpty())
        QSKIP("this system has a printer");
    start(1);
    mProgram->component().ReadFile(mData, 0, 0, false);
    mProgram->chooseTier(u"Advanced"_s);
    mProgram->setValue(u"CurrentChannelNr"_s, 1, 2);
    QVERIFY(mProgram->openForm(u"Channels"_s));
    if (happens.contains(u"edit"_s))
        mProgram->setValue(u"RxFreq_q7r"_s, 3, u"165.075"_s);
    const QStringList before = state();
    const QString path = file.isEmpty() ? QString() : mFolder.filePath(file);
    if (QFile::exists(path))
        QFile::remove(path);
    qputenv("KX4600_PRINT_FILE", path.toUtf8());
    if (file.isEmpty()) {
        mProgram->boxes.expect(u"An error has occurred attempting to communicate with the printer."_s, 1);
        mProgram->window().findChild<QAction *>(u"mnuPrinterSettings"_s)->trigger();
    }
    if (!message.isEmpty())
        mProgram->boxes.expect(message, 1);
    runReportDialog(mProgram->window(), [&](const QDialog &dialog) {
        std::optional<FullDisk> disk;
        if (happens.contains(u"full"_s))
            disk.emplace();
        if (happens.contains(u"cancel"_s))
            QTimer::singleShot(0, dialog.findChild<QPushButton *>(u"cmdCancel"_s), &QPushButton::click);
        print(dialog, {}, true);
    });
    QCOMPARE(state(), before);
    QCOMPARE(QFile::exists(path), message.isEmpty() && !happens.contains(u"cancel"_s));
    QVERIFY(!mProgram->errors.HasReported());
}

// The form that is open is the one that is ticked.
void tst_ReportOfForms::openFormIsPrintedWithWhatIsBeingTyped() {
    start(1);
    QVERIFY(mProgram->openForm(u"Economy"_s));
    WindowInput::activate(mProgram->window());
    auto &editor = mProgram->part<QLineEdit>(u"EconomyTimer"_s, "Text1");
    WindowInput::click(editor);
    editor.selectAll();
    WindowInput::type(u"25"_s);
    const QString file = mFolder.filePath(u"window.txt"_s);
    qputenv("KX4600_PRINT_FILE", file.toUtf8());
    runReportDialog(mProgram->window(),
                    [](const QDialog &dialog) { dialog.findChild<QPushButton *>(u"cmdPrint"_s)->click(); });
    QCOMPARE(withoutBanner(contentOf(file)),
             u"Radio - Economy\n\n---------------\nEconomy\n    Economy Timer: 25\n    Duty Cycle: 1:4\n\n"_s);
}

QTEST_MAIN(tst_ReportOfForms)
#include "tst_report_of_forms.moc"
