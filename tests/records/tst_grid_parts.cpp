#include "cell_format.h"
#include "grid_columns.h"
#include "row_block.h"
#include "run_time_error.h"

#include <QTest>

class tst_grid_parts final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void barStringsEndAtTheirLastItem_data();
    void barStringsEndAtTheirLastItem();
    void columnsAreReadFiveItemsEach();
    void brokenDescriptionsAreRefused_data();
    void brokenDescriptionsAreRefused();
    void numbersAreFormatted_data();
    void numbersAreFormatted();
    void masksTakeDigitsAndTheirOwnCharacters();
    void rowsAreSelectedAsOneBlock();
};

void tst_grid_parts::barStringsEndAtTheirLastItem_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("items");
    QTest::newRow("empty") << "" << QStringList();
    QTest::newRow("one") << "a" << QStringList{QStringLiteral("a")};
    QTest::newRow("final bar") << "a|b|" << QStringList{QStringLiteral("a"), QStringLiteral("b")};
    QTest::newRow("leading bar") << "|a" << QStringList{QString(), QStringLiteral("a")};
    QTest::newRow("bar alone") << "|" << QStringList{QString()};
    QTest::newRow("hole") << "a||b" << QStringList{QStringLiteral("a"), QString(), QStringLiteral("b")};
}

void tst_grid_parts::barStringsEndAtTheirLastItem() {
    QFETCH(QString, text);
    QTEST(GetItemsFromBarString(text), "items");
}

void tst_grid_parts::columnsAreReadFiveItemsEach() {
    GridColumns columns;
    columns.GetDetails(
        QStringLiteral("|ControlStatusValue|1700  |ID Tracker|0| 000.000000|RxFreq_q7r|0     |Text|-1|"));
    QCOMPARE(columns.count(), 2);
    QCOMPARE(columns.details(0).width.count, 1700);
    QCOMPARE(columns.details(0).type, ColumnType::kIdTracker);
    QVERIFY(!columns.details(0).locked);
    QCOMPARE(columns.details(1).format, QStringLiteral(" 000.000000"));
    QCOMPARE(columns.GetDisabledColumns(), QStringLiteral("RxFreq_q7r"));
    QCOMPARE(columns.ColumnNumberByUIID(QStringLiteral("RxFreq_q7r")), 1);
    QCOMPARE(columns.ColumnNumberByUIID(QStringLiteral("rxfreq_q7r")), -1);
    QCOMPARE(columns.details(2).uiid, QString());
    QCOMPARE(cellTypeName(columns.details(0).type), QStringLiteral("fldIdTrackerField"));
    columns.GetDetails({});
    QCOMPARE(columns.count(), 0);
}

void tst_grid_parts::brokenDescriptionsAreRefused_data() {
    QTest::addColumn<QString>("fields");
    QTest::addColumn<int>("number");
    QTest::newRow("cut short") << "|A|100|Text" << int(ErrorNumber::kBadArgument);
    QTest::newRow("unknown type") << "|A|100|Box|0|" << int(ErrorNumber::kBadArgument);
    QTest::newRow("no width") << "|A||Text|0|" << int(ErrorNumber::kConversion);
    QTest::newRow("no flag") << "|A|100|Text|yes|" << int(ErrorNumber::kConversion);
}

void tst_grid_parts::brokenDescriptionsAreRefused() {
    QFETCH(QString, fields);
    int number = 0;
    try {
        GridColumns().GetDetails(fields);
    } catch (const RunTimeError &error) {
        number = error.Number;
    }
    QTEST(number, "number");
}

void tst_grid_parts::numbersAreFormatted_data() {
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("formatted");
    const QString frequency = QStringLiteral(" 000.000000");
    QTest::newRow("decimals filled") << frequency << "156.5"
                                     << "156.500000";
    QTest::newRow("whole number") << frequency << "156"
                                  << "156.000000";
    QTest::newRow("leading zeros") << frequency << "68.5"
                                   << "068.500000";
    QTest::newRow("longer than the zeros") << frequency << "1560.5"
                                           << "1560.500000";
    QTest::newRow("too many decimals") << frequency << "156.1234567"
                                       << "156.123457";
    QTest::newRow("as it is") << frequency << "156.500000"
                              << "156.500000";
    QTest::newRow("blanks") << frequency << " 156.5 "
                            << "156.500000";
    QTest::newRow("negative") << QStringLiteral(" 00.0") << "-4"
                              << "-04.0";
    QTest::newRow("text") << frequency << "None"
                          << "None";
    QTest::newRow("exponent") << frequency << "1e2"
                              << "1e2";
    QTest::newRow("empty") << frequency << ""
                           << "";
    QTest::newRow("no decimals") << QStringLiteral(" 000") << "7"
                                 << "007";
    QTest::newRow("mask alone") << QStringLiteral("000.0") << "7"
                                << "7";
    QTest::newRow("no format") << ""
                               << "7.0"
                               << "7.0";
}

void tst_grid_parts::numbersAreFormatted() {
    QFETCH(QString, format);
    QFETCH(QString, text);
    QTEST(CellFormat::of(format).formatted(text), "formatted");
}

void tst_grid_parts::masksTakeDigitsAndTheirOwnCharacters() {
    QCOMPARE(CellFormat::of(QStringLiteral("09#-A 00")).inputMask(), QStringLiteral("000\\-\\A"));
    QCOMPARE(CellFormat::of(QStringLiteral(" 00")).inputMask(), QString());
}

void tst_grid_parts::rowsAreSelectedAsOneBlock() {
    using Rows = std::vector<qint32>;
    QVERIFY(RowBlock().rows().empty());
    const RowBlock fourth = RowBlock::only(4);
    QCOMPARE(fourth.extendedTo(6).rows(), (Rows{4, 5, 6}));
    QCOMPARE(fourth.extendedTo(6).extendedTo(3).rows(), (Rows{3, 4})); // from the row it was begun at
    QCOMPARE(fourth.with(5).rows(), (Rows{4, 5}));
    QCOMPARE(fourth.with(3).rows(), (Rows{3, 4}));
    QCOMPARE(fourth.with(6).rows(), (Rows{6}));
    QCOMPARE(RowBlock().extendedTo(2).rows(), (Rows{2}));
    QCOMPARE(fourth.extendedTo(6).cutTo(5).rows(), (Rows{4}));
    QVERIFY(fourth.cutTo(4).empty());
}

QTEST_MAIN(tst_grid_parts)
#include "tst_grid_parts.moc"
