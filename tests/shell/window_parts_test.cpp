#include "busy_pointer.h"
#include "code_page.h"
#include "command_line.h"
#include "field_details.h"
#include "form_tree_delegate.h"
#include "help_file_name.h"
#include "language_setup.h"
#include "message_style.h"
#include "scroll_layout.h"
#include "shell_fixture.h"
#include "status_panels.h"
#include "tier_buttons.h"
#include "tier_drag.h"
#include "user_events.h"
#include "window_input_filter.h"
#include "window_position.h"

#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

// The main window's single parts and their numbers.
class WindowPartsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void hourglassNests();
    void boxShowsTheArrowAndTheHourglassComesBack();
    void disabledWindowDropsInputButKeepsTheFocus();
    void commandLine_data();
    void commandLine();
    void existingPathIsNeverCut();
    void quotes_data();
    void quotes();
    void codePage_data();
    void codePage();
    void language_data();
    void language();
    void unsupportedLanguageFallsBackWithItsName_data();
    void unsupportedLanguageFallsBackWithItsName();
    void scrollLayout_data();
    void scrollLayout();
    void placedWindow_data();
    void placedWindow();
    void splitterKeepsItsDistances();
    void fieldDetails_data();
    void fieldDetails();
    void tierDrag_data();
    void tierDrag();
    void tierDropCopiesFieldsOnly();
    void generalDialogGate_data();
    void generalDialogGate();
    void silentModeAnswersYes();
    void dimTextStaysLegible_data();
    void dimTextStaysLegible();
};

void WindowPartsTest::hourglassNests() {
    BusyPointer pointer;
    pointer.MouseDefault(); // harmless
    pointer.MouseHourglass();
    pointer.MouseHourglass();
    pointer.MouseDefault();
    QCOMPARE(pointer.MouseBusyCount(), 1);
    QVERIFY(QGuiApplication::overrideCursor() != nullptr);
    pointer.MouseDefault();
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void WindowPartsTest::boxShowsTheArrowAndTheHourglassComesBack() {
    BusyPointer pointer;
    const HourglassGuard hourglass(pointer);
    {
        const ArrowGuard arrow(pointer);
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
    }
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
}

void WindowPartsTest::disabledWindowDropsInputButKeepsTheFocus() {
    QWidget window;
    QPushButton button(&window);
    int clicks = 0;
    connect(&button, &QPushButton::clicked, &button, [&clicks] { ++clicks; });
    window.show();
    button.setFocus();
    BusyPointer pointer;
    WindowInputFilter filter(window);
    UserEvents userEvents(pointer, filter);
    {
        const DisabledUserEventsGuard disabled(userEvents);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, button.geometry().center());
        QTest::keyClick(window.windowHandle(), Qt::Key_Space);
        QVERIFY(button.isEnabled() && button.hasFocus());
        QVERIFY(!window.close());
    }
    QCOMPARE(clicks, 0);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, button.geometry().center());
    QCOMPARE(clicks, 1);
}

void WindowPartsTest::commandLine_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<bool>("refused");
    QTest::newRow("nothing") << QStringList() << QString() << false;
    QTest::newRow("blanks") << QStringList(QStringLiteral("   ")) << QString() << false;
    QTest::newRow("name") << QStringList(QStringLiteral("a.k4p")) << QStringLiteral("a.k4p") << false;
    QTest::newRow("name of two words") << QStringList({QStringLiteral("my"), QStringLiteral("a.k4p")})
                                       << QStringLiteral("my a.k4p") << false;
    QTest::newRow("quoted twice") << QStringList(QStringLiteral("\"'a.k4p'\"")) << QStringLiteral("a.k4p") << false;
    QTest::newRow("leading slash") << QStringList(QStringLiteral("/a.k4p")) << QStringLiteral("a.k4p") << false;
    QTest::newRow("two pieces") << QStringList(QStringLiteral("none/a.k4p")) << QStringLiteral("none") << true;
    QTest::newRow("three pieces, one box") << QStringList(QStringLiteral(" x /y/z")) << QStringLiteral("x") << true;
    QTest::newRow("quoted piece") << QStringList(QStringLiteral("/ \" x \" ")) << QStringLiteral("x") << false;
}

void WindowPartsTest::commandLine() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, fileName);
    QFETCH(bool, refused);
    TestServices services(nullptr);
    if (refused)
        services.boxes.expect(QStringLiteral("Invalid Command line parameters"), MessageAnswer::kOk);
    CommandLine line(arguments, services.boxes, services.errors);
    line.GetProgramParameters();
    QCOMPARE(line.FileName(), fileName);
}

void WindowPartsTest::existingPathIsNeverCut() {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("my depot.k4p")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    TestServices services(nullptr);
    CommandLine line({QStringLiteral("\"") + file.fileName() + QStringLiteral("\"")}, services.boxes, services.errors);
    line.GetProgramParameters();
    QCOMPARE(line.FileName(), file.fileName());
}

void WindowPartsTest::quotes_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("stripped");
    QTest::newRow("both pairs") << QStringLiteral("\"'x'\"") << QStringLiteral("x");
    QTest::newRow("inner double stays") << QStringLiteral("'\"x\"'") << QStringLiteral("\"x\"");
    QTest::newRow("one pair only") << QStringLiteral("\"\"x\"\"") << QStringLiteral("\"x\"");
    QTest::newRow("one sided") << QStringLiteral("\"x") << QStringLiteral("\"x");
    QTest::newRow("a single quote character") << QStringLiteral("\"") << QStringLiteral("\"");
    QTest::newRow("empty pair") << QStringLiteral("\"\"") << QString();
}

void WindowPartsTest::quotes() {
    QFETCH(QString, text);
    QFETCH(QString, stripped);
    QCOMPARE(CommandLine::StripOutsideQuotesOffString(text), stripped);
}

void WindowPartsTest::codePage_data() {
    QTest::addColumn<QByteArray>("codeset");
    QTest::addColumn<int>("number");
    QTest::newRow("UTF-8") << QByteArray("UTF-8") << 65001;
    QTest::newRow("lower case") << QByteArray("utf-8") << 65001;
    QTest::newRow("Latin 1") << QByteArray("ISO-8859-1") << 1252;
    QTest::newRow("Latin 9") << QByteArray("ISO-8859-15") << 1252;
    QTest::newRow("GB18030") << QByteArray("GB18030") << 936;
    QTest::newRow("plain ASCII") << QByteArray("ANSI_X3.4-1968") << 0;
    QTest::newRow("Latin 2 is another page") << QByteArray("ISO-8859-2") << 0;
}

void WindowPartsTest::codePage() {
    QFETCH(QByteArray, codeset);
    QFETCH(int, number);
    QCOMPARE(CodePage::ofCodeset(codeset), number);
}

void WindowPartsTest::language_data() {
    QTest::addColumn<int>("language");
    QTest::addColumn<int>("codePage");
    QTest::addColumn<bool>("supported");
    QTest::newRow("English anywhere") << 1 << 0 << true;
    QTest::newRow("French") << 2 << 1252 << true;
    QTest::newRow("French on a Chinese system") << 2 << 936 << false;
    QTest::newRow("Chinese") << 3 << 936 << true;
    QTest::newRow("Chinese on UTF-8") << 3 << 65001 << true;
    QTest::newRow("Chinese on a western system") << 3 << 1252 << false;
    QTest::newRow("Spanish unknown page") << 4 << 0 << false;
    QTest::newRow("zero") << 0 << 65001 << false;
    QTest::newRow("five") << 5 << 65001 << false;
}

void WindowPartsTest::language() {
    QFETCH(int, language);
    QFETCH(int, codePage);
    QFETCH(bool, supported);
    QCOMPARE(LanguageSetup::Supported(language, codePage), supported);
}

void WindowPartsTest::unsupportedLanguageFallsBackWithItsName_data() {
    QTest::addColumn<int>("stored");
    QTest::addColumn<QString>("name");
    QTest::newRow("five") << 5 << QString();
    QTest::newRow("zero") << 0 << QString();
    QTest::newRow("Chinese on a western system") << 3 << QStringLiteral("Chinese");
}

void WindowPartsTest::unsupportedLanguageFallsBackWithItsName() {
    QFETCH(int, stored);
    QFETCH(QString, name);
    qputenv("KX4600_ACP", "1252");
    ShellFixture shell;
    shell.transformer.when(QStringLiteral("GetSetting"), QStringLiteral("Language")).answers(stored);
    shell.services.boxes.expect(QStringLiteral("Your selected language of %1 is not supported.  This application will "
                                               "now operate using the English language.")
                                    .arg(name),
                                MessageAnswer::kOk);
    shell.window->Form_Initialize();
    shell.window->Form_Load();
    qunsetenv("KX4600_ACP");
    QCOMPARE(shell.services.translation.gLanguage, 1);
    QVERIFY(shell.log.linesOf(QStringLiteral("SaveSetting")).filter(QStringLiteral("Language")).isEmpty());
}

void WindowPartsTest::scrollLayout_data() {
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("horizontalMax"); // -1: no bar
    QTest::addColumn<int>("verticalMax");
    QTest::newRow("exactly the design size") << 9345 << 6430 << -1 << -1;
    QTest::newRow("larger") << 20000 << 9000 << -1 << -1;
    QTest::newRow("too narrow takes height but leaves enough") << 9000 << 7000 << 345 << -1;
    QTest::newRow("too narrow takes the height too") << 9000 << 6500 << 345 + 255 << 185;
    QTest::newRow("too low leaves enough width") << 12000 << 6000 << -1 << 430;
    QTest::newRow("too low takes the width too") << 9400 << 6000 << 200 << 430 + 255;
    QTest::newRow("both too small") << 5000 << 3000 << 4600 << 3685;
}

void WindowPartsTest::scrollLayout() {
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, horizontalMax);
    QFETCH(int, verticalMax);
    const ScrollLayout layout = ScrollLayout::of({{width}, {height}}, Twips{255});
    const auto check = [](const ScrollRange &range, int max) {
        QCOMPARE(range.shown, max >= 0);
        QCOMPARE(range.max, std::max(max, 0));
        QCOMPARE(range.largeChange, std::max(max, 0) / 2);
        QCOMPARE(range.smallChange, std::max(max, 0) / 5);
    };
    check(layout.horizontal, horizontalMax);
    check(layout.vertical, verticalMax);
    QVERIFY(layout.container.width >= Twips{9345} && layout.container.height >= Twips{6430});
}

void WindowPartsTest::placedWindow_data() {
    QTest::addColumn<QList<int>>("saved"); // left, top, width, height
    QTest::addColumn<int>("startupPosition");
    QTest::addColumn<QPoint>("corner");
    QTest::newRow("centred whatever was saved")
        << QList<int>{1, 2, 9001, 6001} << 0 << QPoint(10000 - 4500, 7500 - 3000);
    QTest::newRow("centred, larger than the screen") << QList<int>{0, 0, 30000, 16000} << 0 << QPoint(0, 0);
    QTest::newRow("as saved") << QList<int>{300, 400, 9000, 6000} << 2 << QPoint(300, 400);
    QTest::newRow("maximised keeps the saved place") << QList<int>{300, 400, 9000, 6000} << 1 << QPoint(300, 400);
    QTest::newRow("on the right edge stays") << QList<int>{20000, 0, 9000, 6000} << 2 << QPoint(20000, 0);
    QTest::newRow("beyond the right edge") << QList<int>{20001, 0, 9000, 6000} << 2 << QPoint(11000, 0);
    QTest::newRow("beyond and wider than the screen") << QList<int>{20001, 0, 24000, 6000} << 2 << QPoint(0, 0);
    QTest::newRow("below the screen") << QList<int>{0, 15001, 9000, 6000} << 2 << QPoint(0, 9000);
    QTest::newRow("above and left") << QList<int>{-5, -500, 9000, 6000} << 2 << QPoint(0, 0);
}

void WindowPartsTest::placedWindow() {
    QFETCH(QList<int>, saved);
    QFETCH(int, startupPosition);
    QFETCH(QPoint, corner);
    const TwipRect place =
        WindowPosition::Placed({{saved[0]}, {saved[1]}, {saved[2]}, {saved[3]}}, startupPosition, {{20000}, {15000}});
    QCOMPARE(QPoint(place.left.count, place.top.count), corner);
    QCOMPARE(place.width.count, saved[2]);
}

void WindowPartsTest::splitterKeepsItsDistances() {
    ShellFixture shell;
    shell.load();
    shell.window->resize(1000, 600);
    shell.window->show();
    auto *splitter = shell.find<QWidget>(QStringLiteral("fraSplitter"));
    auto *tree = shell.find<QWidget>(QStringLiteral("FormTree"));
    auto *pane = shell.find<QWidget>(QStringLiteral("picMainFrame"));
    const int width = tree->width();
    QVERIFY(width > 0);
    QTest::mouseDClick(splitter, Qt::LeftButton);
    QCOMPARE(tree->width(), 0);
    QTest::mouseDClick(splitter, Qt::LeftButton);
    QCOMPARE(tree->width(), width);
    // Far to the right it stays 600 twips inside; far to the left it stops at the tree's edge.
    QTest::mousePress(splitter, Qt::LeftButton);
    QTest::mouseMove(splitter, QPoint(5000, 5));
    QTest::mouseRelease(splitter, Qt::LeftButton);
    QCOMPARE(shell.window->centralWidget()->width() - splitter->x(), 40);
    QTest::mousePress(splitter, Qt::LeftButton);
    QTest::mouseMove(splitter, QPoint(-5000, 5));
    QTest::mouseRelease(splitter, Qt::LeftButton);
    QCOMPARE(splitter->x(), tree->x());
    QCOMPARE(pane->x(), splitter->x() + splitter->width());
    // Too low for a form: it scrolls, and the next layout brings it home.
    auto *form = shell.find<QWidget>(QStringLiteral("currentlyOpenUsrctl"));
    auto *scrollBar = shell.find<QScrollBar>(QStringLiteral("VScroll1"));
    QVERIFY(!scrollBar->isVisible());
    shell.window->resize(1000, 420);
    QVERIFY(scrollBar->isVisible());
    scrollBar->setValue(scrollBar->maximum());
    QVERIFY(std::abs(form->y() + form->height() - form->parentWidget()->height()) <= 1);
    shell.window->Form_Resize();
    QCOMPARE(form->y(), 0);
}

void WindowPartsTest::fieldDetails_data() {
    QTest::addColumn<double>("step");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QList<int>>("visible"); // panels
    QTest::newRow("no step") << 0.0 << QStringLiteral("ms") << QList<int>{5};
    QTest::newRow("step of one") << 1.0 << QStringLiteral("units") << QList<int>{2, 3};
    QTest::newRow("small step") << 0.0125 << QStringLiteral("MHz") << QList<int>{2, 3, 4, 5};
    QTest::newRow("no unit") << 5.0 << QString() << QList<int>{2, 3, 4};
    QTest::newRow("negative step") << -1.0 << QStringLiteral("Units") << QList<int>{5};
}

void WindowPartsTest::fieldDetails() {
    QFETCH(double, step);
    QFETCH(QString, unit);
    QFETCH(QList<int>, visible);
    TestServices services(nullptr);
    QStatusBar bar;
    StatusPanels panels(bar);
    CallLog log;
    RecordingTransformer transformer(log);
    FieldDetails details(transformer, services.process, services.translation, panels, services.errors);
    details.ShowFieldDetails(-5, 70, Currency::fromDouble(step), unit);
    for (int panel = 2; panel <= 5; ++panel)
        QVERIFY2(panels.Visible(panel) == visible.contains(panel), QByteArray::number(panel));
    QCOMPARE(panels.Text(StatusPanels::kMin), QStringLiteral("Min: -5"));
    QCOMPARE(panels.Text(StatusPanels::kStep), QStringLiteral("Step: ") + Currency::fromDouble(step).toString());
    QCOMPARE(panels.Text(StatusPanels::kUnit), QStringLiteral("Unit: ") + unit);
    details.HideFieldDetails();
    for (int panel = 2; panel <= 5; ++panel)
        QVERIFY(!panels.Visible(panel));
}

void WindowPartsTest::tierDrag_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("button"); // 0: beside all
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("panel");
    const QString field = QStringLiteral("TxPower|fldTextField|5");
    QTest::newRow("other tier") << field << QStringLiteral("Tx Power") << 2 << true
                                << QStringLiteral("copy the Tx Power setting to the Beta & Co radio model");
    QTest::newRow("without a label") << QStringLiteral("Tones|fldFrame") << QString() << 2 << true
                                     << QStringLiteral("copy the Tones details to the Beta & Co radio model");
    QTest::newRow("its own tier") << field << QStringLiteral("Tx Power") << 1 << false << QString();
    QTest::newRow("beside the buttons") << field << QStringLiteral("Tx Power") << 0 << false << QString();
    QTest::newRow("undefined label") << field << QStringLiteral("Undefined") << 2 << false << QString();
    QTest::newRow("no bar") << QStringLiteral("plain text") << QStringLiteral("Tx Power") << 2 << false << QString();
}

void WindowPartsTest::tierDrag() {
    QFETCH(QString, text);
    QFETCH(QString, label);
    QFETCH(int, button);
    QFETCH(bool, accepted);
    QFETCH(QString, panel);
    CallLog log;
    RecordingTransformer transformer(log);
    transformer.when(QStringLiteral("GetLabel")).answers(label);
    TestServices services(&transformer);
    QStatusBar bar;
    StatusPanels panels(bar);
    FieldDetails details(transformer, services.process, services.translation, panels, services.errors);
    TierButtons buttons(nullptr);
    TierDrag drag(transformer, buttons, details, services.errors);
    buttons.Add(QStringLiteral("A"), QStringLiteral("Alpha   "));
    buttons.Add(QStringLiteral("B"), QStringLiteral("Beta & Co   "));
    buttons.Press(1);
    buttons.resize(800, 40);
    buttons.show();
    QMimeData data;
    data.setText(text);
    const QPoint place = button == 0 ? QPoint(790, 20) : buttons.Place(button).center();
    QCOMPARE(drag.tbrTiers_OLEDragOver(&data, place), accepted);
    QCOMPARE(panels.Text(StatusPanels::kDrag), panel);
}

void WindowPartsTest::tierDropCopiesFieldsOnly() {
    CallLog log;
    RecordingTransformer transformer(log);
    TestServices services(&transformer);
    QStatusBar bar;
    StatusPanels panels(bar);
    FieldDetails details(transformer, services.process, services.translation, panels, services.errors);
    TierButtons buttons(nullptr);
    TierDrag drag(transformer, buttons, details, services.errors);
    buttons.Add(QStringLiteral("A"), QStringLiteral("Alpha   "));
    buttons.resize(800, 40);
    buttons.show();
    QMimeData data;
    data.setText(QStringLiteral("Tones|fldFrame~Lead|fldTextField|a~broken~Tail|fldComboField|2"));
    // Only the horizontal place counts on a drop.
    drag.tbrTiers_OLEDragDrop(&data, QPoint(buttons.Place(1).center().x(), 500));
    QCOMPARE(log.linesOf(QStringLiteral("CopyFieldToTier")),
             QStringList({QStringLiteral("CopyFieldToTier(Lead, A)"), QStringLiteral("CopyFieldToTier(Tail, A)")}));
}

void WindowPartsTest::generalDialogGate_data() {
    QTest::addColumn<QVariant>("setting");
    QTest::addColumn<bool>("shown");
    QTest::newRow("on") << QVariant(1) << true;
    QTest::newRow("on as text") << QVariant(QStringLiteral("1")) << true;
    QTest::newRow("off") << QVariant(0) << false;
    QTest::newRow("other number") << QVariant(2) << false;
    QTest::newRow("damaged counts as the default") << QVariant(QStringLiteral("yes")) << true;
}

void WindowPartsTest::generalDialogGate() {
    QFETCH(QVariant, setting);
    QFETCH(bool, shown);
    ShellFixture shell;
    shell.transformer.when(QStringLiteral("GetSetting"), QStringLiteral("GeneralDialogs")).answers(setting);
    if (shown)
        shell.services.boxes.expect(QStringLiteral("Sure?"), MessageAnswer::kNo);
    shell.window->SilentMode(true); // gates the component's messages, not these
    qint32 answer = 0;
    shell.window->TransformerEvents_GeneralDialog(QStringLiteral("Sure?"), MessageStyle::kYesNo, QString(), answer,
                                                  QString());
    QCOMPARE(answer, shown ? MessageAnswer::kNo : MessageAnswer::kYes);
}

void WindowPartsTest::silentModeAnswersYes() {
    ShellFixture shell;
    qint32 answer = 0;
    shell.window->SilentMode(true);
    shell.window->TransformerEvents_MsgBox(QStringLiteral("Sure?"), MessageStyle::kYesNo, QStringLiteral("T"), answer,
                                           QString());
    QCOMPARE(answer, MessageAnswer::kYes);
    shell.window->SilentMode(false);
    shell.services.boxes.expect(QStringLiteral("Sure?"), MessageAnswer::kCancel);
    shell.window->TransformerEvents_MsgBox(QStringLiteral("Sure?"), MessageStyle::kYesNo, QStringLiteral("Range"),
                                           answer, QString());
    QCOMPARE(answer, MessageAnswer::kCancel);
    QCOMPARE(shell.services.boxes.shown().last(), QStringLiteral("KX4600 Programming Application Range: Sure? [4]"));
}

void WindowPartsTest::dimTextStaysLegible_data() {
    QTest::addColumn<QColor>("wish");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("ground");
    QTest::newRow("light") << QColor(0xa0, 0xa0, 0xa0) << QColor(Qt::black) << QColor(Qt::white);
    QTest::newRow("dark ink on a dark ground")
        << QColor(0x20, 0x20, 0x20) << QColor(Qt::white) << QColor(0x1e, 0x1e, 0x1e);
}

void WindowPartsTest::dimTextStaysLegible() {
    QFETCH(QColor, wish);
    QFETCH(QColor, text);
    QFETCH(QColor, ground);
    const QColor dim = FormTreeDelegate::legible(wish, text, ground, 4.5);
    const QColor refused = FormTreeDelegate::legible(wish, text, ground, 2.4);
    const auto distance = [&ground](const QColor &colour) { return std::abs(colour.lightness() - ground.lightness()); };
    QVERIFY(distance(dim) > distance(refused));
    QVERIFY(distance(refused) > 40);
    QVERIFY(distance(text) > distance(dim));
}

QTEST_MAIN(WindowPartsTest)
#include "window_parts_test.moc"
