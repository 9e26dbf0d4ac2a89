#include "data_form.h"
#include "fld_grid_field.h"
#include "frm_main.h"
#include "ifield.h"
#include "inavigator.h"
#include "program_bench.h"
#include "tdb_grid.h"
#include "transformer.h"
#include "value_text.h"
#include "window_input.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

namespace {
const auto kGrid = QStringLiteral("fldChannelsKX4600");
const auto kRxFreq = QStringLiteral("RxFreq_q7r");
const auto kStored = QStringLiteral("CurrentChannelNr");
constexpr qint32 kRx = 1;

QStringList megahertz(const QList<int> &numbers) {
    QStringList values;
    for (const int number : numbers)
        values << QStringLiteral("%1.000000").arg(140 + number);
    return values;
}

// The channels form with five channels: channel n receives on 140 + n MHz.
class Channels : public ProgramBench {
  public:
    Channels() {
        chooseTier(QStringLiteral("Advanced"));
        (void)openForm(QStringLiteral("Channels"));
        for (qint32 record = 2; record <= 5; ++record)
            click("cmdAdd");
        for (qint32 record = 1; record <= 5; ++record)
            setValue(kRxFreq, record, megahertz({record}).first());
        (void)openForm(QStringLiteral("Economy"));
        (void)openForm(QStringLiteral("Channels")); // a write behind the form's back shows at the next visit
    }
    [[nodiscard]] TDBGrid &table() const { return part<TDBGrid>(kGrid, "TDBGrid1"); }
    void clickCell(qint32 row, qint32 column) const {
        WindowInput::clickAt(*table().viewport(), table().visualRect(table().model()->index(row, column)).center());
    }
    [[nodiscard]] QString navigatorName() const {
        for (HostControl *control : form()->Iusrfrm_Controls()) {
            if (dynamic_cast<Inavigator *>(control->object()) != nullptr)
                return control->Name();
        }
        return {};
    }
    void showPage(int page) const {
        form()->findChild<QTabWidget *>()->setCurrentIndex(page);
        QCoreApplication::processEvents();
    }
    // On the detailed page.
    void type(const QString &text) const {
        auto &editor = part<QLineEdit>(kRxFreq, "Text1");
        WindowInput::click(editor);
        editor.selectAll();
        WindowInput::type(text);
    }
    void click(const char *button) const { WindowInput::click(part<QPushButton>(navigatorName(), button)); }
    [[nodiscard]] qint32 position() const {
        return dynamic_cast<Inavigator *>(field(navigatorName()))->Inavigator_Position();
    }
    [[nodiscard]] QStringList frequencies() const {
        QStringList values;
        for (qint32 record = 1; record <= component().GetNumberOfRecords(kRxFreq); ++record)
            values << value(kRxFreq, record);
        return values;
    }
    [[nodiscard]] QStringList shownFrequencies() const {
        QStringList values;
        for (qint32 row = 0; row < table().ApproxCount(); ++row)
            values << table().model()->index(row, kRx).data().toString();
        return values;
    }
};
} // namespace

// Grid and navigator of one form, and the window's keys, before the real component.
class tst_grid_and_navigator final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void rowAndNavigatorFollowEachOther();
    void theNavigatorRunsTheGridsCommands();
    void theNavigatorDeletesTheSelectedRows();
    void keysCopyAndPaste();
    void aRefusedCellHoldsRowAndNavigator();
    void valueOfOneIsShownByTheOther();
    void refusedFieldHoldsBoth();
    void reopenedFormComesBackToItsChannel();
};

void tst_grid_and_navigator::rowAndNavigatorFollowEachOther() {
    Channels bench;
    bench.clickCell(3, kRx);
    QCOMPARE(bench.position(), 4);
    bench.click("cmdBack");
    QCOMPARE(bench.position(), 3);
    QCOMPARE(bench.table().Bookmark(), std::optional(2));
    for (const char *button : {"cmdFirst", "cmdForward", "cmdLast", "cmdBack", "cmdBack"}) {
        bench.click(button);
        QCOMPARE(bench.table().Bookmark(), std::optional(bench.position() - 1));
        QCOMPARE(bench.value(kStored), QString::number(bench.position()));
    }
    for (HostControl *control : bench.form()->Iusrfrm_Controls()) {
        if (Ifield *field = control->object(); field != nullptr && field->Ifield_GetUIID() == kRxFreq)
            QCOMPARE(ValueText::of(field->Ifield_GetValue()), bench.value(kRxFreq, 3));
    }
}

void tst_grid_and_navigator::theNavigatorRunsTheGridsCommands() {
    Channels bench;
    bench.clickCell(1, kRx);
    bench.click("cmdRepeat");
    QCOMPARE(bench.frequencies(), megahertz({1, 2, 2, 3, 4, 5}));
    QCOMPARE(bench.position(), 3);
    bench.click("cmdDelete");
    QCOMPARE(bench.frequencies(), megahertz({1, 2, 3, 4, 5}));
    bench.click("cmdAdd");
    QCOMPARE(bench.position(), 6);
    QCOMPARE(bench.table().Bookmark(), std::optional(5));
    QCOMPARE(bench.shownFrequencies(), bench.frequencies());
}

void tst_grid_and_navigator::theNavigatorDeletesTheSelectedRows() {
    Channels bench;
    bench.clickCell(1, kRx);
    for (const qint32 row : {1, 2, 3})
        bench.table().AddSelBookmark(row);
    bench.click("cmdDelete");
    QCOMPARE(bench.frequencies(), megahertz({1, 5}));
    QCOMPARE(bench.shownFrequencies(), megahertz({1, 5}));
    QCOMPARE(bench.position(), 2);
}

void tst_grid_and_navigator::keysCopyAndPaste() {
    Channels bench;
    bench.clickCell(0, kRx);
    WindowInput::key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), megahertz({1}).first());
    bench.clickCell(2, kRx);
    WindowInput::key(Qt::Key_V, Qt::ControlModifier);
    WindowInput::key(Qt::Key_Tab);
    QCOMPARE(bench.frequencies(), megahertz({1, 2, 1, 4, 5}));
    // The same while the cell is being edited: the selection is replaced.
    bench.clickCell(3, kRx);
    WindowInput::key(Qt::Key_F2);
    bench.table().SetSelStart(0);
    bench.table().SetSelLength(3);
    QGuiApplication::clipboard()->setText(QStringLiteral("15"));
    bench.field(kGrid)->Ifield_Paste();
    QCOMPARE(bench.table().Text(), QStringLiteral("15.000000"));
    WindowInput::key(Qt::Key_Escape);
    QCOMPARE(bench.frequencies(), megahertz({1, 2, 1, 4, 5}));
}

void tst_grid_and_navigator::aRefusedCellHoldsRowAndNavigator() {
    Channels bench;
    const auto refusal = QStringLiteral("%0:S must lie between %1:S and %2:S.");
    bench.clickCell(1, kRx);
    WindowInput::type(QStringLiteral("999"));
    bench.boxes.expect(refusal, 1);
    bench.click("cmdForward");
    QCOMPARE(bench.position(), 2);
    bench.boxes.expect(refusal, 1);
    bench.clickCell(3, kRx);
    QCOMPARE(bench.table().Bookmark(), std::optional(1));
    bench.boxes.expect(refusal, 1);
    bench.click("cmdDelete");
    QCOMPARE(bench.frequencies(), megahertz({1, 2, 3, 4, 5}));
    WindowInput::key(Qt::Key_Escape);
    bench.clickCell(3, kRx);
    QCOMPARE(bench.position(), 4);
    QCOMPARE(bench.shownFrequencies(), megahertz({1, 2, 3, 4, 5}));
}

// What one of them keeps would be written back when it is left.
void tst_grid_and_navigator::valueOfOneIsShownByTheOther() {
    Channels bench;
    bench.clickCell(2, kRx);
    bench.showPage(1);
    bench.type(QStringLiteral("155.500000"));
    bench.click("cmdFirst");
    bench.showPage(0);
    bench.clickCell(2, kRx);
    bench.clickCell(0, kRx);
    bench.click("cmdFirst");
    QCOMPARE(bench.value(kRxFreq, 3), QStringLiteral("155.500000"));
    bench.clickCell(1, kRx);
    WindowInput::type(QStringLiteral("156.500000"));
    WindowInput::key(Qt::Key_Return);
    bench.clickCell(0, kRx);
    bench.clickCell(1, kRx);
    bench.showPage(1);
    QCOMPARE(bench.value(kRxFreq, 2), QStringLiteral("156.500000"));
    QCOMPARE(ValueText::of(bench.field(kRxFreq)->Ifield_GetValue()), QStringLiteral("156.500000"));
}

void tst_grid_and_navigator::refusedFieldHoldsBoth() {
    Channels bench;
    bench.clickCell(2, kRx);
    bench.showPage(1);
    bench.type(QStringLiteral("999"));
    for (const char *button : {"cmdFirst", "cmdAdd"}) {
        bench.boxes.expect(QStringLiteral("%0:S must lie between %1:S and %2:S."), 1);
        bench.click(button);
    }
    QCOMPARE(bench.table().Bookmark(), std::optional(2));
    QCOMPARE(bench.value(kStored), QStringLiteral("3"));
    QCOMPARE(bench.frequencies(), megahertz({1, 2, 3, 4, 5}));
    bench.type(QStringLiteral("150"));
    bench.click("cmdFirst");
    QCOMPARE(bench.position(), 1);
    QCOMPARE(bench.value(kRxFreq, 3), QStringLiteral("150.000000"));
}

void tst_grid_and_navigator::reopenedFormComesBackToItsChannel() {
    Channels bench;
    bench.clickCell(1, kRx);
    QVERIFY(bench.openForm(QStringLiteral("Economy")));
    QVERIFY(bench.openForm(QStringLiteral("Channels")));
    QCOMPARE(bench.position(), 2);
    QCOMPARE(bench.table().Bookmark(), std::optional(1));
}

QTEST_MAIN(tst_grid_and_navigator)
#include "tst_grid_and_navigator.moc"
