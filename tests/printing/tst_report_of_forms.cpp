#include "common_error_handler.h"
#include "data_form.h"
#include "fake_printers.h"
#include "form_factory.h"
#include "frm_main.h"
#include "frm_print.h"
#include "ifield.h"
#include "iusrfrm.h"
#include "main_program.h"
#include "process_values.h"
#include "scripted_message_boxes.h"
#include "system_printers.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QFile>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

using namespace Qt::Literals::StringLiterals;

namespace {
struct TreeForm {
    QString key;
    QString title; // its parent's text, " - " and its own
};

// Forms of the program, made for a report without a tree.
class ChosenForms final : public ReportShell {
  public:
    explicit ChosenForms(std::vector<TreeForm> forms) : mForms(std::move(forms)) {}
    [[nodiscard]] std::vector<ReportableForm> Forms() const override {
        std::vector<ReportableForm> rows;
        for (const TreeForm &form : mForms)
            rows.push_back({qint32(rows.size()), form.title, true});
        return rows;
    }
    [[nodiscard]] QString FormKey(qint32 node) const override { return mForms.at(std::size_t(node)).key; }
    InvisibleForm CreateForm(const QString &key, const FieldServices &services, QWidget *parent) override {
        DataForm *const form = mFactory.CreateForm(key, services, parent);
        return {form, form};
    }
    void MouseHourglass() override {}
    void MouseDefault() override {}

  private:
    std::vector<TreeForm> mForms;
    FormFactory mFactory;
};

QString contentOf(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// What stands behind the banner, which has the time, and its two rules.
QString withoutBanner(const QString &text) {
    const QString rule = QString(78, u'-') + u'\n';
    return text.mid(text.indexOf(rule, rule.size()) + rule.size());
}
} // namespace

// The report of real forms on the real component: from the window and from the command line.
class tst_ReportOfForms : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase();
    void textIsAsExpected_data();
    void textIsAsExpected();
    void toolPrintsWhatTheWindowPrints();
    void everythingIsAsBefore_data();
    void everythingIsAsBefore();
    void cleanupTestCase() { mProgram.reset(); }

  private:
    // All that a report must leave alone.
    [[nodiscard]] QStringList state() const;
    [[nodiscard]] QString windowReport(const std::vector<TreeForm> &forms, bool all, bool french);
    [[nodiscard]] QString toolReport(const QStringList &words) const;
    [[nodiscard]] std::vector<TreeForm> availableForms() const;

    QTemporaryDir mHome{QDir::tempPath() + u"/kx"_s}; // short, so that the banner fits a line
    QString mData = mHome.filePath(u"a.k4p"_s);
    ErrorReport mErrors{false};
    ScriptedMessageBoxes mBoxes;
    std::unique_ptr<MainProgram> mProgram;
};

// The Advanced tier with a scan group of two members, an empty one, a selcall system and three channels.
void tst_ReportOfForms::initTestCase() {
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(name, mHome.filePath(QString::fromLatin1(name)).toUtf8());
    mProgram = std::make_unique<MainProgram>(mErrors, QStringList(), ProgramReplacements{.boxes = &mBoxes});
    QVERIFY(mProgram->Start());
    Transformer &component = mProgram->Component();
    component.SetAccessLevel(80);
    component.ChangeTier(u"Advanced"_s);
    bool ok = false;
    qint32 record = 0;
    for (const QString &guide :
         {u"ChannelID_q7r"_s, u"ChannelID_q7r"_s, u"GroupID_q7r"_s, u"GroupID_q7r"_s, u"SignalSystemId_q7r"_s})
        component.AddRecord(guide, QString(), record, ok);
    component.SetValue(u"CurrentScanGroupNr"_s, 1, 1, true, ok);
    for (int member = 0; member < 2; ++member)
        component.AddRecord(u"FilteredScanGroupChannelMemberID"_s, QString(), record, ok);
    component.SetValue(u"RxFreq_q7r"_s, u"165.0625"_s, 2, true, ok);
    component.SetValue(u"CurrentChannelNr"_s, 1, 1, true, ok);
    component.SaveFile(mData, QString(), 0, ok);
    QVERIFY(ok);
}

void tst_ReportOfForms::textIsAsExpected_data() {
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("all");
    QTest::addColumn<bool>("french");
    QTest::newRow("no-navigator") << u"usrctlEconomyKX4600"_s << u"Radio - Economy"_s << false << false;
    QTest::newRow("french") << u"usrctlEconomyKX4600"_s << u"Radio - Economy"_s << false << true;
    QTest::newRow("french-table") << u"usrctlChannelsKX4600"_s << u"Channels"_s << false << true;
    QTest::newRow("unset-field") << u"usrctlSpecificationsKX4600"_s << u"Specifications"_s << false << false;
    QTest::newRow("nested-frames") << u"usrctlKeySettingsKX4600"_s << u"Radio - Key Settings"_s << false << false;
    QTest::newRow("wrapped-cells") << u"usrctlChannelsKX4600"_s << u"Channels"_s << false << false;
    QTest::newRow("all-records") << u"usrctlChannelsKX4600"_s << u"Channels"_s << true << false;
    QTest::newRow("one-column-and-no-rows") << u"usrctlScanGroupsKX4600"_s << u"Scan Groups"_s << true << false;
}

QString tst_ReportOfForms::windowReport(const std::vector<TreeForm> &forms, bool all, bool french) {
    const FieldServices &own = mProgram->Window().Services();
    Translation translation;
    translation.gLanguage = french ? 2 : 1;
    translation.Dictionary().Load(qEnvironmentVariable("KX4600_BIN") + u"/KX4600.mld"_s);
    const FieldServices services{own.process, translation, own.errors, own.boxes, own.clipboard, own.shell};
    FakePrinters printers;
    ChosenForms shell(forms);
    frmPrint dialog(services, shell, printers, &mProgram->Window());
    dialog.findChild<QCheckBox *>(u"chkPrintAll"_s)->setChecked(all);
    dialog.findChild<QPushButton *>(u"cmdPrint"_s)->click();
    return withoutBanner(TextPageSink::textOf(printers.pages));
}

QString tst_ReportOfForms::toolReport(const QStringList &words) const {
    const QString file = mHome.filePath(u"report.txt"_s);
    QProcess tool;
    tool.start(qEnvironmentVariable("KX4600_BIN") + u"/kx4600ctl"_s,
               QStringList{u"report"_s, mData, u"-o"_s, file} + words);
    return tool.waitForFinished() && tool.exitCode() == 0 ? withoutBanner(contentOf(file)) : u"failed"_s;
}

std::vector<TreeForm> tst_ReportOfForms::availableForms() const {
    const auto *const tree = mProgram->Window().findChild<QTreeWidget *>(u"FormTree"_s);
    QStringList lists[4];
    QHash<QString, QString> tips;
    QHash<QString, QVariant> levels;
    QHash<QString, QVariant> networks;
    auto &[tabs, keys, captions, types] = lists;
    mProgram->Component().GetTreeFilterTabs(tabs, tips, keys, captions, levels, networks, types);
    std::vector<TreeForm> forms;
    qsizetype place = 0;
    for (QTreeWidgetItemIterator item(const_cast<QTreeWidget *>(tree)); *item != nullptr; ++item, ++place) {
        const QString parent = (*item)->parent() == nullptr ? QString() : (*item)->parent()->text(0) + u" - "_s;
        const bool available = (*item)->data(0, Qt::AccessibleDescriptionRole).toString().isEmpty();
        if (available && (*item)->childCount() == 0)
            forms.push_back({QString(keys.at(place)).remove(u"->"_s), parent + (*item)->text(0)});
    }
    return forms;
}

void tst_ReportOfForms::textIsAsExpected() {
    QFETCH(QString, form);
    QFETCH(QString, title);
    QFETCH(bool, all);
    QFETCH(bool, french);
    const QString text = windowReport({{form, title}}, all, french);
    const QString name = QString::fromLatin1(QTest::currentDataTag()) + u".txt"_s;
    if (const QString folder = qEnvironmentVariable("KX4600_WRITE_EXPECTED"); !folder.isEmpty()) {
        QFile file(folder + u'/' + name);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) >= 0);
    }
    QCOMPARE(text, contentOf(QFINDTESTDATA(u"expected/"_s + name)));
    if (!french)
        QCOMPARE(toolReport(QStringList{u"--form"_s, form} + QStringList(all ? 1 : 0, u"--all"_s)), text);
}

// Each form of the tier, with nothing in front of it and behind it that the other way does not have.
void tst_ReportOfForms::toolPrintsWhatTheWindowPrints() {
    const std::vector<TreeForm> forms = availableForms();
    QVERIFY(forms.size() > 15);
    for (const bool all : {false, true}) {
        const QStringList window = windowReport(forms, all, false).split(u'\n');
        const QStringList tool = toolReport(QStringList(all ? 1 : 0, u"--all"_s)).split(u'\n');
        for (qsizetype line = 0; line < std::min(window.size(), tool.size()); ++line)
            QVERIFY2(window.at(line) == tool.at(line),
                     qPrintable(u"%1: %2 / %3"_s.arg(line).arg(window.at(line), tool.at(line))));
        QCOMPARE(tool.size(), window.size());
    }
}

QStringList tst_ReportOfForms::state() const {
    const frmMain &window = mProgram->Window();
    const ProcessValues &process = window.Services().process;
    Transformer &component = mProgram->Component();
    const auto address = [](const QObject *object) { return QString::number(quintptr(object), 16); };
    QStringList state{address(window.LoadedUsrControl().widget),
                      address(window.focusWidget()),
                      process.CurrentEnablerKey,
                      QString::number(process.colEnablers.Count()),
                      component.GetDataIsDirty() ? u"data is dirty"_s : u"data is clean"_s,
                      component.GetFormIsDirty() ? u"form is dirty"_s : u"form is clean"_s};
    for (const char *position : {"CurrentChannelNr", "CurrentNetworkNr"})
        state << ValueText::of(component.GetValue(QString::fromLatin1(position), 1));
    for (HostControl *control : window.LoadedUsrControl().form->Iusrfrm_Controls()) {
        if (Ifield *const field = control->object())
            state << control->Name() + u' ' + QString::number(field->Ifield_GetRecordNr()) + u' ' +
                         ValueText::of(field->Ifield_GetValue());
    }
    return state;
}

void tst_ReportOfForms::everythingIsAsBefore_data() {
    QTest::addColumn<QString>("file"); // "": there is no printer
    QTest::addColumn<bool>("cancelled");
    QTest::addColumn<QString>("message");
    QTest::newRow("printed") << u"report.pdf"_s << false << QString();
    QTest::newRow("cancelled") << u"report.pdf"_s << true << QString();
    QTest::newRow("file that cannot be written")
        << u"no/such/report.pdf"_s << false
        << u"An error has occurred whilst attempting to print report. The print has been cancelled. "
           "Please check printer settings."_s;
    QTest::newRow("no printer") << QString() << false << u"There are no printers installed."_s;
}

void tst_ReportOfForms::everythingIsAsBefore() {
    QFETCH(QString, file);
    QFETCH(bool, cancelled);
    QFETCH(QString, message);
    if (file.isEmpty() && !SystemPrinters().Printers().isEmpty())
        QSKIP("this system has a printer");
    frmMain &window = mProgram->Window();
    bool ok = false;
    mProgram->Component().SetValue(u"CurrentChannelNr"_s, 2, 1, true, ok);
    QVERIFY(window.OpenForm(u"usrctlChannelsKX4600"_s, u"Channels"_s, true));
    mProgram->Component().SetValue(u"RxFreq_q7r"_s, u"165.075"_s, 3, true, ok);
    const QStringList before = state();
    const QString path = file.isEmpty() ? QString() : mHome.filePath(file);
    QFile::remove(path);
    if (!file.isEmpty())
        qputenv("KX4600_PRINT_FILE", path.toUtf8());
    if (!message.isEmpty())
        mBoxes.expect(message, 1);
    QTimer poll;
    connect(&poll, &QTimer::timeout, &window, [&] {
        auto *const dialog = window.findChild<QDialog *>(u"frmPrint"_s);
        if (dialog == nullptr)
            return;
        poll.stop();
        dialog->findChild<QPushButton *>(u"cmdSelectAll"_s)->click();
        dialog->findChild<QCheckBox *>(u"chkPrintAll"_s)->setChecked(true);
        if (cancelled)
            QTimer::singleShot(0, dialog->findChild<QPushButton *>(u"cmdCancel"_s), &QPushButton::click);
        dialog->findChild<QPushButton *>(u"cmdPrint"_s)->click();
        dialog->close();
    });
    poll.start(5);
    window.findChild<QAction *>(u"mnuPrint"_s)->trigger();
    qunsetenv("KX4600_PRINT_FILE");
    QCOMPARE(state(), before);
    QCOMPARE(QFile::exists(path), message.isEmpty() && !cancelled);
    QVERIFY(!mErrors.HasReported());
}

QTEST_MAIN(tst_ReportOfForms)
#include "tst_report_of_forms.moc"
