#include "busy_pointer.h"
#include "field_details.h"
#include "form_tree_delegate.h"
#include "help_file_name.h"
#include "message_style.h"
#include "shell_fixture.h"
#include "status_panels.h"
#include "tier_buttons.h"
#include "tier_drag.h"
#include "user_events.h"
#include "window_input_filter.h"

#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTest>
#include <QTreeWidget>

namespace {
// The status bar's panels and tier buttons "A" and "B", the first one pressed.
struct Bars {
    explicit Bars(const QString &label = {}) {
        transformer.when(QStringLiteral("GetLabel")).answers(label);
        buttons.Add(QStringLiteral("A"), QStringLiteral("Alpha   "));
        buttons.Add(QStringLiteral("B"), QStringLiteral("Beta & Co   "));
        buttons.Press(1);
        buttons.resize(800, 40);
        buttons.show();
    }
    CallLog log;
    RecordingTransformer transformer{log};
    TestServices services{&transformer};
    QStatusBar bar;
    StatusPanels panels{bar};
    FieldDetails details{transformer, services.process, services.translation, panels, services.errors};
    TierButtons buttons{nullptr};
    TierDrag drag{transformer, buttons, details, services.errors};
};
} // namespace

// The main window's single parts and their numbers.
class WindowPartsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void hourglassNests();
    void boxShowsTheArrowAndTheHourglassComesBack();
    void disabledWindowDropsInputButKeepsTheFocus();
    void splitterKeepsItsDistances();
    void fieldDetailsGoByStepAndUnit();
    void tierDrag_data();
    void tierDrag();
    void tierDropCopiesFieldsOnly();
    void generalDialogsAreShownBySetting();
    void silentModeAnswersYes();
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

void WindowPartsTest::fieldDetailsGoByStepAndUnit() {
    struct Row {
        double step;
        const char *unit;
        QList<int> visible; // panels
    };
    const Row rows[] = {{0.0, "ms", {5}},
                        {1.0, "units", {2, 3}},
                        {0.0125, "MHz", {2, 3, 4, 5}},
                        {5.0, "", {2, 3, 4}},
                        {-1.0, "Units", {5}}};
    for (const Row &row : rows) {
        Bars bars;
        const QString unit = QString::fromLatin1(row.unit);
        bars.details.ShowFieldDetails(-5, 70, Currency::fromDouble(row.step), unit);
        for (int panel = 2; panel <= 5; ++panel)
            QVERIFY2(bars.panels.Visible(panel) == row.visible.contains(panel), row.unit);
        QCOMPARE(bars.panels.Text(StatusPanels::kMin), QStringLiteral("Min: -5"));
        QCOMPARE(bars.panels.Text(StatusPanels::kStep),
                 QStringLiteral("Step: ") + Currency::fromDouble(row.step).toString());
        QCOMPARE(bars.panels.Text(StatusPanels::kUnit), QStringLiteral("Unit: ") + unit);
        bars.details.HideFieldDetails();
        for (int panel = 2; panel <= 5; ++panel)
            QVERIFY(!bars.panels.Visible(panel));
    }
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
    Bars bars(label);
    QMimeData data;
    data.setText(text);
    const QPoint place = button == 0 ? QPoint(790, 20) : bars.buttons.Place(button).center();
    QCOMPARE(bars.drag.tbrTiers_OLEDragOver(&data, place), accepted);
    QCOMPARE(bars.panels.Text(StatusPanels::kDrag), panel);
}

void WindowPartsTest::tierDropCopiesFieldsOnly() {
    Bars bars;
    QMimeData data;
    data.setText(QStringLiteral("Tones|fldFrame~Lead|fldTextField|a~broken~Tail|fldComboField|2"));
    // Only the horizontal place counts on a drop.
    bars.drag.tbrTiers_OLEDragDrop(&data, QPoint(bars.buttons.Place(2).center().x(), 500));
    QCOMPARE(bars.log.linesOf(QStringLiteral("CopyFieldToTier")),
             QStringList({QStringLiteral("CopyFieldToTier(Lead, B)"), QStringLiteral("CopyFieldToTier(Tail, B)")}));
}

void WindowPartsTest::generalDialogsAreShownBySetting() {
    const std::pair<QVariant, bool> rows[] = {
        {1, true}, {QStringLiteral("1"), true}, {0, false}, {2, false}, {QStringLiteral("damaged"), true}};
    for (const auto &[setting, shown] : rows) {
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

void WindowPartsTest::dimTextStaysLegible() {
    const QColor darkGround(0x1e, 0x1e, 0x1e);
    struct Row {
        QColor wish;
        QColor text;
        QColor ground;
    };
    for (const auto &[wish, text, ground] :
         {Row{QColor(0xa0, 0xa0, 0xa0), Qt::black, Qt::white}, Row{QColor(0x20, 0x20, 0x20), Qt::white, darkGround}}) {
        const int dim = FormTreeDelegate::legible(wish, text, ground, 4.5).lightness();
        const int refused = FormTreeDelegate::legible(wish, text, ground, 2.4).lightness();
        const int empty = ground.lightness();
        QVERIFY(std::abs(dim - empty) > std::abs(refused - empty));
        QVERIFY(std::abs(refused - empty) > 40);
        QVERIFY(std::abs(text.lightness() - empty) > std::abs(dim - empty));
    }
}

QTEST_MAIN(WindowPartsTest)
#include "window_parts_test.moc"
