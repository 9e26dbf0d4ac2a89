#include "currency.h"
#include "rows.h"
#include "run_time_error.h"
#include "string_utilities.h"
#include "value_text.h"

#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;

class tst_ValueText : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void textForms() {
        for (const auto &[value, text] : Rows<QVariant, QString>{
                 {"empty", {}, {}},
                 {"integer", 3, u"3"_s},
                 {"whole double", 3.0, u"3"_s},
                 {"shortest double", 0.1, u"0.1"_s},
                 {"more digits than a float has", 156.512345678, u"156.512345678"_s},
                 {"large 64-bit", qint64(156500000000), u"156500000000"_s},
                 {"true", true, u"-1"_s},
                 {"false", false, u"0"_s},
                 {"currency", QVariant::fromValue(Currency::fromTenThousandths(125)), u"0.0125"_s},
                 {"text is kept", u" 3.0 "_s, u" 3.0 "_s},
             }) {
            QCOMPARE(ValueText::of(value), text);
        }
    }

    void numbers() {
        for (const auto &[value, number] : Rows<QVariant, std::optional<double>>{
                 {"blanks at the ends", u"  12 "_s, 12},
                 {"sign", u"-7"_s, -7},
                 {"exponent", u"1e3"_s, 1000},
                 {"point", u".5"_s, 0.5},
                 {"true", true, -1},
                 {"double", 2.25, 2.25},
                 {"currency", QVariant::fromValue(Currency::fromTenThousandths(-125)), -0.0125},
                 {"empty text", QString(), std::nullopt},
                 {"blanks only", u"   "_s, std::nullopt},
                 {"Empty", {}, std::nullopt},
                 {"tab is no blank", u"\t12"_s, std::nullopt},
                 {"unit behind", u"12 ms"_s, std::nullopt},
                 {"blank inside", u"1 2"_s, std::nullopt},
                 {"hexadecimal", u"0x10"_s, std::nullopt},
                 {"infinity by name", u"inf"_s, std::nullopt},
                 {"infinity by size", u"1e999"_s, std::nullopt},
                 {"not a number", u"nan"_s, std::nullopt},
                 {"thousands", u"1,000"_s, std::nullopt},
                 {"undefined", ValueText::undefined(), std::nullopt},
             }) {
            QCOMPARE(ValueText::isNumeric(value), number.has_value());
            QVERIFY(ValueText::number(value) == number);
        }
    }

    void integersRoundHalvesToEven() {
        constexpr qint32 kLeast = std::numeric_limits<qint32>::min();
        constexpr qint32 kMost = std::numeric_limits<qint32>::max();
        const std::pair<QVariant, qint32> rows[] = {{0.5, 0},   {u"1.5"_s, 2},          {2.5, 2},
                                                    {-2.5, -2}, {qint64(kMost), kMost}, {qint64(kLeast), kLeast}};
        for (const auto &[value, integer] : rows) {
            QCOMPARE(ValueText::toInteger(value), integer);
            QCOMPARE(ValueText::toIntegerOr(value, 99), integer);
        }
    }

    void whatDoesNotConvertRaisesThirteen() {
        const qint64 tooLarge = qint64(std::numeric_limits<qint32>::max()) + 1;
        for (const QVariant &value : {QVariant(u"abc"_s), QVariant(), QVariant(tooLarge), QVariant(u"-3e9"_s)}) {
            QCOMPARE(ValueText::toIntegerOr(value, 99), 99);
            qint32 number = 0;
            try {
                (void)ValueText::toInteger(value);
            } catch (const RunTimeError &error) {
                number = error.Number;
            }
            QCOMPARE(number, ErrorNumber::kConversion);
        }
    }

    void undefinedIsOneExactWord() {
        QVERIFY(ValueText::isUndefined(u"Undefined"_s));
        for (const QVariant &value : {QVariant(u"undefined"_s), QVariant(u"Undefined "_s), QVariant(), QVariant(0)})
            QVERIFY2(!ValueText::isUndefined(value), qPrintable(value.toString()));
    }

    void currencyTexts() {
        const std::pair<qint64, QString> rows[] = {{125, u"0.0125"_s},
                                                   {12500, u"1.25"_s},
                                                   {10010, u"1.001"_s},
                                                   {50000, u"5"_s},
                                                   {0, u"0"_s},
                                                   {-125, u"-0.0125"_s},
                                                   {std::numeric_limits<qint64>::min(), u"-922337203685477.5808"_s}};
        for (const auto &[count, text] : rows)
            QCOMPARE(Currency::fromTenThousandths(count).toString(), text);
    }

    void currencyFromDoubleIsNearest() {
        const std::pair<double, qint64> rows[] = {{0.0125, 125}, {0.1, 1000}, {0.00004, 0}, {-1.2345, -12345}};
        for (const auto &[value, count] : rows)
            QCOMPARE(Currency::fromDouble(value).tenThousandths(), count);
    }

    void paddingNeverCuts() {
        const std::tuple<QString, int, QString> rows[] = {{u"34"_s, 4, u"0034"_s},
                                                          {u"1234"_s, 4, u"1234"_s},
                                                          {u"12345"_s, 4, u"12345"_s},
                                                          {QString(), 2, u"00"_s},
                                                          {u"7"_s, 0, u"7"_s}};
        for (const auto &[text, width, padded] : rows)
            QCOMPARE(LeftPadString(text, u'0', width), padded);
    }

    void trimTakesBlanksOnly() {
        QCOMPARE(TrimBlanks(u"  a b "_s), u"a b"_s);
        QCOMPARE(TrimBlanks(u" \ta "_s), u"\ta"_s);
        QCOMPARE(TrimBlanks(u"\u00a0a"_s), u"\u00a0a"_s);
        QCOMPARE(TrimBlanks(u"   "_s), QString());
    }

    void emptyValuesStayEmptyParts() {
        QCOMPARE(MakeParamString({QVariant(1), QVariant(), QVariant(u"x"_s)}), u"1||x"_s);
        QCOMPARE(MakeParamString({}), QString());
    }
};

QTEST_GUILESS_MAIN(tst_ValueText)
#include "tst_value_text.moc"
