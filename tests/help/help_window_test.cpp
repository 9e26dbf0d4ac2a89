#include "cls_help.h"
#include "data_form.h"
#include "frm_main.h"
#include "help_browser.h"
#include "help_commands.h"
#include "help_file_name.h"
#include "help_viewer.h"
#include "help_web_pages.h"
#include "ifield.h"
#include "message_style.h"
#include "mod_common_help.h"
#include "program_bench.h"
#include "recording_transformer.h"
#include "test_services.h"
#include "transformer.h"
#include "window_input.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <QWhatsThis>
#include <QWindow>

// The help window, what opens it, and what is said when it cannot be opened.
class HelpWindowTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void helpClassTellsWhatItCannotDo();
    void callHelpChoosesByName_data();
    void callHelpChoosesByName();
    void browserFailureIsTold();
    void viewerSearchesByKeyboard();
    void keysLeadToTheFieldOnEachForm();
    void whatsThisModeEndsWithAClick();
    void commandsOpenContentsAndFormPage();

  private:
    static QString binFolder() { return qEnvironmentVariable("KX4600_BIN"); }
    static QWidget *smallWindow();
    static HelpViewer *viewer();
    void askForHelpIn(DataForm &form);
    // With F1 and Shift+F1 on the field that has the focus.
    void askForHelp(QWidget &window, const QString &uiid);

    int mSeen = 0;
    QStringList mWrong;
};

QWidget *HelpWindowTest::smallWindow() {
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("QWhatsThat") && widget->isVisible())
            return widget;
    }
    return nullptr;
}

HelpViewer *HelpWindowTest::viewer() {
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *found = qobject_cast<HelpViewer *>(widget); found != nullptr && found->isVisible())
            return found;
    }
    return nullptr;
}

void HelpWindowTest::helpClassTellsWhatItCannotDo() {
    ScriptedMessageBoxes boxes;
    clsHelp none(boxes, {});
    boxes.expect(QStringLiteral("HTML Help is not installed."), 0);
    none.HHDisplaySearch();

    const QString folder = binFolder() + QStringLiteral("/kx4kp_en");
    clsHelp help(boxes, [](const QString &pages, QWidget *parent) {
        return new HelpViewer(
            pages, [](const QString &text) { return text; }, parent);
    });
    help.CHMFile(folder + QStringLiteral(".chm"));
    boxes.expect(QStringLiteral("No HTML Help window handle to retrieve."), 0);
    QCOMPARE(help.HHWndHandle(), WId(0));
    help.HHShowOnTop(true);
    boxes.expect(QStringLiteral("The HHDisplayContents method was called without a form being specified, while "
                                "HHShowOnTop was set to True."),
                 0);
    help.HHDisplayContents();
    help.HHShowOnTop(false);
    help.HHDisplayContents();
    QVERIFY(help.HHWndHandle() != 0);
    QCOMPARE(help.Viewer()->Place(), QStringLiteral("index.html"));
    help.Viewer()->close();
    boxes.expect(QStringLiteral("The last HTML Help window opened has been closed."), 0);
    QCOMPARE(help.HHWndHandle(), WId(0));
    for (const QString &line : boxes.shown())
        QVERIFY2(line.startsWith(QStringLiteral("HTML Help Class: ")), qPrintable(line));
}

void HelpWindowTest::callHelpChoosesByName_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QVariant>("topic");
    QTest::addColumn<QString>("place"); // "": refused with a message
    const QString bin = qEnvironmentVariable("KX4600_BIN");
    QTest::newRow("number") << bin + QStringLiteral("/kx4kp_en.chm") << QVariant(404000)
                            << QStringLiteral("usrctlChannelsKX4600.html");
    QTest::newRow("other extension, page")
        << bin + QStringLiteral("/KX4KP_EN.hlp") << QVariant(QStringLiteral("keyboard.html")) << QString();
    QTest::newRow("page") << bin + QStringLiteral("/kx4kp_en.hlp") << QVariant(QStringLiteral("keyboard.html"))
                          << QStringLiteral("keyboard.html");
    QTest::newRow("unknown number") << bin + QStringLiteral("/kx4kp_en.chm") << QVariant(7) << QString();
    QTest::newRow("file that is not there") << bin + QStringLiteral("/kx4kc_en.chm") << QVariant(404000) << QString();
    QTest::newRow("foreign name") << bin + QStringLiteral("/other.chm") << QVariant(404000) << QString();
}

void HelpWindowTest::callHelpChoosesByName() {
    QFETCH(const QString, file);
    QFETCH(const QVariant, topic);
    QFETCH(const QString, place);
    TestServices services(nullptr);
    clsHelp help(services.boxes, [](const QString &pages, QWidget *parent) {
        return new HelpViewer(
            pages, [](const QString &text) { return text; }, parent);
    });
    modCommonHelp common(services.translation, services.boxes, help, binFolder());
    if (place.isEmpty())
        services.boxes.expect(QStringLiteral("Help File not defined"), 0);
    QCOMPARE(common.CallHelp(file, HelpCommand::kTopic, topic, nullptr), !place.isEmpty());
    if (!place.isEmpty())
        QCOMPARE(help.Viewer()->Place(), place);
}

void HelpWindowTest::browserFailureIsTold() {
    CallLog log;
    RecordingTransformer transformer(log);
    TestServices services(&transformer);
    transformer.when(QStringLiteral("GetSetting")).answers(QStringLiteral("https://fleet.example"));
    QStringList opened;
    HelpWebPages pages(transformer, services.boxes, services.errors, [&opened](const QString &address) {
        opened << address;
        return opened.size() == 1;
    });
    pages.mnuHomePage_Click();
    services.boxes.expect(QStringLiteral("Unable to launch the default Browser."), 0);
    pages.mnuMobilesSupport_Click();
    QCOMPARE(opened.constFirst(), QStringLiteral("https://fleet.example"));
    QVERIFY(services.boxes.shown().constFirst().startsWith(QStringLiteral("Error: ")));
}

void HelpWindowTest::viewerSearchesByKeyboard() {
    HelpViewer window(
        binFolder() + QStringLiteral("/kx4kp_en"), [](const QString &text) { return text; }, nullptr);
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.ShowContents();
    WindowInput::activate(window);
    ProgramBench::picture(window, QStringLiteral("help-contents"));
    WindowInput::key(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("txtHelpSearch"));
    WindowInput::type(QStringLiteral("tone period"));
    QCOMPARE(window.findChild<QLineEdit *>()->text(), QStringLiteral("tone period"));
    const auto *hits = window.findChild<QListWidget *>(QStringLiteral("lstHelpHits"));
    QVERIFY(hits->isVisible());
    QVERIFY(hits->count() > 1);
    WindowInput::key(Qt::Key_Return);
    QCOMPARE(window.Place(), QStringLiteral("usrctlSelcallToneSettings.html#TonePeriod"));
    ProgramBench::picture(window, QStringLiteral("help-form"));
    WindowInput::key(Qt::Key_Down);
    WindowInput::key(Qt::Key_Down);
    QCOMPARE(window.Place(), hits->item(1)->data(Qt::UserRole).toString());
    WindowInput::key(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(window.Place(), QStringLiteral("usrctlSelcallToneSettings.html#TonePeriod"));
    WindowInput::key(Qt::Key_Escape);
    QVERIFY(!window.isVisible());
}

// Three fields of each page, every column of the grids, and three fields of each sub-form.
void HelpWindowTest::keysLeadToTheFieldOnEachForm() {
    ProgramBench bench(QStringLiteral("Advanced"));
    bench.addRecords();
    for (const ProgramBench::Form &form : bench.forms()) {
        bench.open(form);
        auto *tabs = bench.form()->findChild<QTabWidget *>(QStringLiteral("SSTab1"));
        const int before = mSeen;
        for (int page = 0; page < (tabs == nullptr ? 1 : tabs->count()); ++page) {
            if (tabs != nullptr)
                tabs->setCurrentIndex(page);
            askForHelpIn(*bench.form());
        }
        // One form holds nothing but call-ups.
        QVERIFY2(mSeen > before || form.typeName == u"usrctlFreeFormatKX4600", qPrintable(form.caption));
    }
    QVERIFY(bench.openForm(QStringLiteral("Free Format Bursts")));
    const int before = mSeen;
    QTimer waits;
    connect(&waits, &QTimer::timeout, this, [&] {
        QWidget *const window = QApplication::activeModalWidget();
        if (window == nullptr || window != QApplication::activeWindow())
            return;
        waits.stop();
        askForHelpIn(*window->findChild<DataForm *>());
        window->close();
    });
    waits.start(10);
    WindowInput::click(*bench.form()->findChild<QPushButton *>(QStringLiteral("cmdCallUp")));
    QCOMPARE(mSeen, before + 3);
    QVERIFY2(mWrong.isEmpty(), qPrintable(mWrong.join(u'\n')));
    qInfo("%d fields and columns", mSeen);
}

void HelpWindowTest::askForHelpIn(DataForm &form) {
    int fields = 0;
    for (HostControl *control : form.Iusrfrm_Controls()) {
        const auto *widget = dynamic_cast<QWidget *>(control->object());
        const bool takesFocus = widget != nullptr && widget->isVisible() && control->Enabled();
        auto *table = control->TypeName() == u"fldGridField" ? widget->findChild<QTableView *>() : nullptr;
        const bool isValue = ProgramBench::isValue(control->TypeName());
        if (!takesFocus || (table == nullptr && (!isValue || ++fields > 3)))
            continue;
        WindowInput::activate(*form.window());
        control->SetFocus();
        const bool hasCells = table != nullptr && table->model()->rowCount() > 0;
        for (int column = 0; column < (hasCells ? table->model()->columnCount() : 1); ++column) {
            if (hasCells)
                table->setCurrentIndex(table->model()->index(0, column));
            askForHelp(*form.window(), control->object()->Ifield_GetUIID());
        }
    }
}

void HelpWindowTest::askForHelp(QWidget &window, const QString &uiid) {
    WindowInput::activate(window);
    WindowInput::key(Qt::Key_F1, Qt::ShiftModifier);
    if (smallWindow() == nullptr)
        mWrong << uiid + QStringLiteral(": Shift+F1 shows nothing");
    QWhatsThis::hideText();
    window.windowHandle()->requestActivate(); // the small window took it along
    WindowInput::activate(window);
    WindowInput::key(Qt::Key_F1);
    const QString place = viewer() == nullptr ? QString() : viewer()->Place();
    if (!place.endsWith(u'#' + uiid))
        mWrong << uiid + QStringLiteral(": F1 leads to ") + place;
    ++mSeen;
    if (viewer() != nullptr)
        viewer()->close();
}

void HelpWindowTest::whatsThisModeEndsWithAClick() {
    const ProgramBench bench(QStringLiteral("Advanced"));
    bench.open({QStringLiteral("usrctlEconomyKX4600"), QStringLiteral("Economy")});
    auto *field = dynamic_cast<QWidget *>(bench.usableFields().front());
    bool shown = false;
    QTimer click;
    connect(&click, &QTimer::timeout, field, [&] {
        if (!QWhatsThis::inWhatsThisMode())
            return;
        QTest::mouseClick(field->findChild<QLineEdit *>(), Qt::LeftButton);
        shown = smallWindow() != nullptr;
        if (shown)
            ProgramBench::picture(*smallWindow(), QStringLiteral("help-whats-this"));
        QWhatsThis::leaveWhatsThisMode();
        click.stop();
    });
    click.start(10);
    bench.window().findChild<QAction *>(QStringLiteral("mnuWhatsThisHelp"))->trigger();
    QVERIFY(shown);
    QVERIFY(!QWhatsThis::inWhatsThisMode());
    QVERIFY(QApplication::focusWidget() == bench.window().findChild<QTreeWidget *>());
    QWhatsThis::hideText();
}

void HelpWindowTest::commandsOpenContentsAndFormPage() {
    const ProgramBench bench(QStringLiteral("Advanced"));
    QCOMPARE(bench.component().GetSetting(QStringLiteral("HelpFile"), QString()).toString(),
             QStringLiteral("kx4kp_en.chm"));
    bench.open({QStringLiteral("usrctlStartupKX4600"), QStringLiteral("Start-up")});
    bench.window().findChild<QAction *>(QStringLiteral("mnuContents"))->trigger();
    QCOMPARE(viewer()->Place(), QStringLiteral("index.html"));
    bench.window().findChild<QAction *>(QStringLiteral("Help"))->trigger();
    QCOMPARE(viewer()->Place(), QStringLiteral("usrctlStartupKX4600.html"));
    WindowInput::activate(bench.window());
    bench.window().findChild<QTreeWidget *>()->setFocus();
    viewer()->ShowContents();
    WindowInput::key(Qt::Key_F1);
    QCOMPARE(viewer()->Place(), QStringLiteral("usrctlStartupKX4600.html"));
}

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    HelpWindowTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "help_window_test.moc"
