#include "data_form.h"
#include "frm_main.h"
#include "ifield.h"
#include "igrid.h"
#include "inavigator.h"
#include "program_bench.h"
#include "transformer.h"
#include "value_text.h"
#include "window_input.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

namespace {
const QString kNavigator = QStringLiteral("fldPageNavigator1");
const QString kGrid = QStringLiteral("fldChannelsKX4600");
const QString kGuide = QStringLiteral("ChannelID_q7r");
const QString kFrequency = QStringLiteral("RxFreq_q7r");
const QString kStored = QStringLiteral("CurrentChannelNr");

QString frequency(qint32 channel) { return QStringLiteral("16%1.000000").arg(channel); }

// The channels form with three channels on 161, 162 and 163 MHz, the summary page shown.
class Channels : public ProgramBench {
  public:
    Channels() {
        chooseTier(QStringLiteral("Advanced"));
        (void)openForm(QStringLiteral("Channels"));
        click("cmdAdd");
        click("cmdAdd");
        for (qint32 channel = 1; channel <= 3; ++channel)
            setValue(kFrequency, channel, frequency(channel));
    }
    void click(const char *button) { WindowInput::click(part<QPushButton>(kNavigator, button)); }
    void showPage(int page) {
        form()->findChild<QTabWidget *>()->setCurrentIndex(page);
        QCoreApplication::processEvents();
    }
    void clickRow(int row) {
        constexpr int kColumn = 1;
        auto &table = part<QTableView>(kGrid, "TDBGrid1");
        WindowInput::clickAt(*table.viewport(), table.visualRect(table.model()->index(row, kColumn)).center());
    }
    [[nodiscard]] int row() const { return part<QTableView>(kGrid, "TDBGrid1").currentIndex().row(); }
    [[nodiscard]] int rows() const { return part<QTableView>(kGrid, "TDBGrid1").model()->rowCount(); }
    // Row, position, stored position and the record that the detailed page shows, where all agree; else what each is.
    [[nodiscard]] QString channel() const {
        const QStringList all{QString::number(row() + 1),
                              QString::number(dynamic_cast<Inavigator *>(field(kNavigator))->Inavigator_Position()),
                              value(kStored), QString::number(field(kFrequency)->Ifield_GetRecordNr())};
        const bool agree = all.count(all.front()) == all.size() &&
                           ValueText::of(field(kFrequency)->Ifield_GetValue()) == value(kFrequency, row() + 1);
        return agree ? all.front() : all.join(u' ');
    }
    void type(const QString &text) {
        auto &editor = part<QLineEdit>(kFrequency, "Text1");
        WindowInput::click(editor);
        editor.selectAll();
        WindowInput::type(text);
    }
};
} // namespace

// A grid and a navigator of the same records, before the real component.
class tst_channels_form final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void addedChannelsAreShownByBoth();
    void fieldsFollowTheRow();
    void rowFollowsTheNavigator();
    void valueOfOneIsShownByTheOther();
    void refusedValueHoldsBoth();
    void repeatedAndDeletedChannels();
    void reopenedFormComesBackToItsChannel();
};

void tst_channels_form::addedChannelsAreShownByBoth() {
    const Channels bench;
    QCOMPARE(bench.component().GetNumberOfRecords(kGuide), 3);
    QCOMPARE(bench.rows(), 3);
    QCOMPARE(bench.channel(), QStringLiteral("3"));
}

void tst_channels_form::fieldsFollowTheRow() {
    Channels bench;
    for (const int row : {0, 2, 1}) {
        bench.clickRow(row);
        QCOMPARE(bench.channel(), QString::number(row + 1));
    }
    bench.showPage(1);
    QCOMPARE(ValueText::of(bench.field(kFrequency)->Ifield_GetValue()), frequency(2));
}

void tst_channels_form::rowFollowsTheNavigator() {
    Channels bench;
    for (const char *button : {"cmdFirst", "cmdForward", "cmdLast", "cmdBack"}) {
        bench.click(button);
        QVERIFY2(!bench.channel().contains(u' '), qPrintable(bench.channel()));
    }
    QCOMPARE(bench.row(), 1);
}

// What one of them keeps would be written back when it is left.
void tst_channels_form::valueOfOneIsShownByTheOther() {
    Channels bench;
    bench.showPage(1);
    bench.type(QStringLiteral("155.500000"));
    bench.click("cmdFirst");
    bench.showPage(0);
    bench.clickRow(2);
    bench.clickRow(0);
    bench.click("cmdFirst");
    QCOMPARE(bench.value(kFrequency, 3), QStringLiteral("155.500000"));
    bench.clickRow(1);
    WindowInput::type(QStringLiteral("156.500000"));
    WindowInput::key(Qt::Key_Return);
    bench.clickRow(0);
    bench.clickRow(1);
    bench.showPage(1);
    QCOMPARE(bench.value(kFrequency, 2), QStringLiteral("156.500000"));
    QCOMPARE(ValueText::of(bench.field(kFrequency)->Ifield_GetValue()), QStringLiteral("156.500000"));
}

void tst_channels_form::refusedValueHoldsBoth() {
    Channels bench;
    bench.showPage(1);
    bench.type(QStringLiteral("999"));
    bench.boxes.expect(QStringLiteral("%0:S must lie between %1:S and %2:S."), 1);
    bench.click("cmdFirst");
    bench.boxes.expect(QStringLiteral("%0:S must lie between %1:S and %2:S."), 1);
    bench.click("cmdAdd");
    QCOMPARE(bench.row(), 2);
    QCOMPARE(bench.value(kStored), QStringLiteral("3"));
    QCOMPARE(bench.rows(), 3);
    QCOMPARE(bench.value(kFrequency, 3), frequency(3));
    bench.type(QStringLiteral("150"));
    bench.click("cmdFirst");
    QCOMPARE(bench.channel(), QStringLiteral("1"));
    QCOMPARE(bench.value(kFrequency, 3), QStringLiteral("150.000000"));
}

void tst_channels_form::repeatedAndDeletedChannels() {
    Channels bench;
    bench.clickRow(1);
    bench.click("cmdRepeat");
    QCOMPARE(bench.rows(), 4);
    QCOMPARE(bench.value(kFrequency, 2) + u' ' + bench.value(kFrequency, 3) + u' ' + bench.value(kFrequency, 4),
             frequency(2) + u' ' + frequency(2) + u' ' + frequency(3));
    QVERIFY2(!bench.channel().contains(u' '), qPrintable(bench.channel()));
    bench.click("cmdLast");
    bench.click("cmdDelete");
    QCOMPARE(bench.component().GetNumberOfRecords(kGuide), 3);
    QCOMPARE(bench.rows(), 3);
    QCOMPARE(bench.channel(), QStringLiteral("3"));
}

void tst_channels_form::reopenedFormComesBackToItsChannel() {
    Channels bench;
    bench.clickRow(1);
    QVERIFY(bench.openForm(QStringLiteral("Economy")));
    QVERIFY(bench.openForm(QStringLiteral("Channels")));
    QCOMPARE(bench.value(kStored), QStringLiteral("2"));
    QCOMPARE(bench.channel(), QStringLiteral("2"));
}

QTEST_MAIN(tst_channels_form)
#include "tst_channels_form.moc"
