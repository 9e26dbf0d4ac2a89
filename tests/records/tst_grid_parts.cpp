#include "cell_format.h"
#include "grid_columns.h"
#include "row_block.h"
#include "rows.h"
#include "run_time_error.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_grid_parts final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void barStringsEndAtTheirLastItem() {
        for (const auto &[text, items] : Rows<QString, QStringList>{
                 {"empty", u""_s, {}},
                 {"one", u"a"_s, {u"a"_s}},
                 {"final bar", u"a|b|"_s, {u"a"_s, u"b"_s}},
                 {"leading bar", u"|a"_s, {QString(), u"a"_s}},
                 {"bar alone", u"|"_s, {QString()}},
                 {"hole", u"a||b"_s, {u"a"_s, QString(), u"b"_s}},
             }) {
            QCOMPARE(GetItemsFromBarString(text), items);
        }
    }

    void columnsAreReadFiveItemsEach() {
        GridColumns columns;
        columns.GetDetails(u"|ControlStatusValue|1700  |ID Tracker|0| 000.000000|RxFreq_q7r|0     |Text|-1|"_s);
        QCOMPARE(columns.count(), 2);
        QCOMPARE(columns.details(0).width.count, 1700);
        QCOMPARE(columns.details(0).type, ColumnType::kIdTracker);
        QVERIFY(!columns.details(0).locked);
        QCOMPARE(columns.details(1).format, u" 000.000000"_s);
        QCOMPARE(columns.GetDisabledColumns(), u"RxFreq_q7r"_s);
        QCOMPARE(columns.ColumnNumberByUIID(u"RxFreq_q7r"_s), 1);
        QCOMPARE(columns.ColumnNumberByUIID(u"rxfreq_q7r"_s), -1);
        QCOMPARE(columns.details(2).uiid, QString());
        QCOMPARE(cellTypeName(columns.details(0).type), u"fldIdTrackerField"_s);
        columns.GetDetails({});
        QCOMPARE(columns.count(), 0);
    }

    void brokenDescriptionsAreRefused() {
        for (const auto &[fields, wantedNumber] : Rows<QString, int>{
                 {"cut short", u"|A|100|Text"_s, int(ErrorNumber::kBadArgument)},
                 {"unknown type", u"|A|100|Box|0|"_s, int(ErrorNumber::kBadArgument)},
                 {"no width", u"|A||Text|0|"_s, int(ErrorNumber::kConversion)},
                 {"no flag", u"|A|100|Text|yes|"_s, int(ErrorNumber::kConversion)},
             }) {
            int number = 0;
            try {
                GridColumns().GetDetails(fields);
            } catch (const RunTimeError &error) {
                number = error.Number;
            }
            QCOMPARE(number, wantedNumber);
        }
    }

    void numbersAreFormatted() {
        const QString frequency = u" 000.000000"_s;

        for (const auto &[format, text, formatted] : Rows<QString, QString, QString>{
                 {"decimals filled", frequency, u"156.5"_s, u"156.500000"_s},
                 {"whole number", frequency, u"156"_s, u"156.000000"_s},
                 {"leading zeros", frequency, u"68.5"_s, u"068.500000"_s},
                 {"longer than the zeros", frequency, u"1560.5"_s, u"1560.500000"_s},
                 {"too many decimals", frequency, u"156.1234567"_s, u"156.123457"_s},
                 {"as it is", frequency, u"156.500000"_s, u"156.500000"_s},
                 {"blanks", frequency, u" 156.5 "_s, u"156.500000"_s},
                 {"negative", u" 00.0"_s, u"-4"_s, u"-04.0"_s},
                 {"text", frequency, u"None"_s, u"None"_s},
                 {"exponent", frequency, u"1e2"_s, u"1e2"_s},
                 {"empty", frequency, u""_s, u""_s},
                 {"no decimals", u" 000"_s, u"7"_s, u"007"_s},
                 {"mask alone", u"000.0"_s, u"7"_s, u"7"_s},
                 {"no format", u""_s, u"7.0"_s, u"7.0"_s},
             }) {
            QCOMPARE(CellFormat::of(format).formatted(text), formatted);
        }
    }

    void masksTakeDigitsAndTheirOwnCharacters() {
        QCOMPARE(CellFormat::of(u"09#-A 00"_s).inputMask(), u"000\\-\\A"_s);
        QCOMPARE(CellFormat::of(u" 00"_s).inputMask(), QString());
    }

    void rowsAreSelectedAsOneBlock() {
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
};

QTEST_MAIN(tst_grid_parts)
#include "tst_grid_parts.moc"
