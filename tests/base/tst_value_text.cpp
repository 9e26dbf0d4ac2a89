#include "currency.h"
#include "run_time_error.h"
#include "string_utilities.h"
#include "value_text.h"

#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;

class tst_ValueText : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void textForms_data();
    void textForms();
    void numbers_data();
    void numbers();
    void integersRoundHalvesToEven_data();
    void integersRoundHalvesToEven();
    void whatDoesNotConvertRaisesThirteen_data();
    void whatDoesNotConvertRaisesThirteen();
    void undefinedIsOneExactWord_data();
    void undefinedIsOneExactWord();
    void currencyTexts_data();
    void currencyTexts();
    void currencyFromDoubleIsNearest_data();
    void currencyFromDoubleIsNearest();
    void paddingNeverCuts_data();
    void paddingNeverCuts();
    void trimTakesBlanksOnly_data();
    void trimTakesBlanksOnly();
    void emptyValuesStayEmptyParts();
};

void tst_ValueText::textForms_data() {
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QVariant() << QString();
    QTest::newRow("integer") << QVariant(3) << u"3"_s;
    QTest::newRow("whole double") << QVariant(3.0) << u"3"_s;
    QTest::newRow("shortest double") << QVariant(0.1) << u"0.1"_s;
    QTest::newRow("more digits than a float has") << QVariant(156.512345678) << u"156.512345678"_s;
    QTest::newRow("large 64-bit") << QVariant(qint64(156500000000)) << u"156500000000"_s;
    QTest::newRow("true") << QVariant(true) << u"-1"_s;
    QTest::newRow("false") << QVariant(false) << u"0"_s;
    QTest::newRow("currency") << QVariant::fromValue(Currency::fromTenThousandths(125)) << u"0.0125"_s;
    QTest::newRow("text is kept") << QVariant(u" 3.0 "_s) << u" 3.0 "_s;
}

void tst_ValueText::textForms() {
    QFETCH(QVariant, value);
    QTEST(ValueText::of(value), "text");
}

void tst_ValueText::numbers_data() {
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("numeric");
    QTest::addColumn<double>("number");
    const auto row = [](const char *name, const QVariant &value, std::optional<double> number) {
        QTest::newRow(name) << value << number.has_value() << number.value_or(0);
    };
    row("blanks at the ends", u"  12 "_s, 12);
    row("sign", u"-7"_s, -7);
    row("exponent", u"1e3"_s, 1000);
    row("point", u".5"_s, 0.5);
    row("true", true, -1);
    row("double", 2.25, 2.25);
    row("currency", QVariant::fromValue(Currency::fromTenThousandths(-125)), -0.0125);
    row("empty text", QString(), std::nullopt);
    row("blanks only", u"   "_s, std::nullopt);
    row("Empty", QVariant(), std::nullopt);
    row("tab is no blank", u"\t12"_s, std::nullopt);
    row("unit behind", u"12 ms"_s, std::nullopt);
    row("blank inside", u"1 2"_s, std::nullopt);
    row("hexadecimal", u"0x10"_s, std::nullopt);
    row("infinity by name", u"inf"_s, std::nullopt);
    row("infinity by size", u"1e999"_s, std::nullopt);
    row("not a number", u"nan"_s, std::nullopt);
    row("thousands", u"1,000"_s, std::nullopt);
    row("undefined", ValueText::undefined(), std::nullopt);
}

void tst_ValueText::numbers() {
    QFETCH(QVariant, value);
    QFETCH(double, number);
    QTEST(ValueText::isNumeric(value), "numeric");
    QCOMPARE(ValueText::number(value).value_or(0), number);
}

void tst_ValueText::integersRoundHalvesToEven_data() {
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<qint32>("integer");
    QTest::newRow("0.5") << QVariant(0.5) << 0;
    QTest::newRow("1.5") << QVariant(u"1.5"_s) << 2;
    QTest::newRow("2.5") << QVariant(2.5) << 2;
    QTest::newRow("-2.5") << QVariant(-2.5) << -2;
    QTest::newRow("largest") << QVariant(qint64(std::numeric_limits<qint32>::max()))
                             << std::numeric_limits<qint32>::max();
    QTest::newRow("smallest") << QVariant(qint64(std::numeric_limits<qint32>::min()))
                              << std::numeric_limits<qint32>::min();
}

void tst_ValueText::integersRoundHalvesToEven() {
    QFETCH(QVariant, value);
    QTEST(ValueText::toInteger(value), "integer");
    QTEST(ValueText::toIntegerOr(value, 99), "integer");
}

void tst_ValueText::whatDoesNotConvertRaisesThirteen_data() {
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text") << QVariant(u"abc"_s);
    QTest::newRow("Empty") << QVariant();
    QTest::newRow("too large") << QVariant(qint64(std::numeric_limits<qint32>::max()) + 1);
    QTest::newRow("too small") << QVariant(u"-3e9"_s);
}

void tst_ValueText::whatDoesNotConvertRaisesThirteen() {
    QFETCH(QVariant, value);
    QCOMPARE(ValueText::toIntegerOr(value, 99), 99);
    qint32 number = 0;
    try {
        (void)ValueText::toInteger(value);
    } catch (const RunTimeError &error) {
        number = error.Number;
    }
    QCOMPARE(number, ErrorNumber::kConversion);
}

void tst_ValueText::undefinedIsOneExactWord_data() {
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("undefined");
    QTest::newRow("the word") << QVariant(u"Undefined"_s) << true;
    QTest::newRow("other case") << QVariant(u"undefined"_s) << false;
    QTest::newRow("blank behind") << QVariant(u"Undefined "_s) << false;
    QTest::newRow("Empty") << QVariant() << false;
    QTest::newRow("number") << QVariant(0) << false;
}

void tst_ValueText::undefinedIsOneExactWord() {
    QFETCH(QVariant, value);
    QTEST(ValueText::isUndefined(value), "undefined");
}

void tst_ValueText::currencyTexts_data() {
    QTest::addColumn<qint64>("count");
    QTest::addColumn<QString>("text");
    QTest::newRow("four decimals") << qint64(125) << u"0.0125"_s;
    QTest::newRow("trailing zeros go") << qint64(12500) << u"1.25"_s;
    QTest::newRow("zeros inside stay") << qint64(10010) << u"1.001"_s;
    QTest::newRow("whole") << qint64(50000) << u"5"_s;
    QTest::newRow("nothing") << qint64(0) << u"0"_s;
    QTest::newRow("negative below one") << qint64(-125) << u"-0.0125"_s;
    QTest::newRow("smallest") << std::numeric_limits<qint64>::min() << u"-922337203685477.5808"_s;
}

void tst_ValueText::currencyTexts() {
    QFETCH(qint64, count);
    QTEST(Currency::fromTenThousandths(count).toString(), "text");
}

void tst_ValueText::currencyFromDoubleIsNearest_data() {
    QTest::addColumn<double>("value");
    QTest::addColumn<qint64>("count");
    QTest::newRow("12.5 kHz step") << 0.0125 << qint64(125);
    QTest::newRow("not exact in binary") << 0.1 << qint64(1000);
    QTest::newRow("below half a count") << 0.00004 << qint64(0);
    QTest::newRow("negative") << -1.2345 << qint64(-12345);
}

void tst_ValueText::currencyFromDoubleIsNearest() {
    QFETCH(double, value);
    QTEST(Currency::fromDouble(value).tenThousandths(), "count");
}

void tst_ValueText::paddingNeverCuts_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("padded");
    QTest::newRow("shorter") << u"34"_s << 4 << u"0034"_s;
    QTest::newRow("equal") << u"1234"_s << 4 << u"1234"_s;
    QTest::newRow("longer") << u"12345"_s << 4 << u"12345"_s;
    QTest::newRow("empty") << QString() << 2 << u"00"_s;
    QTest::newRow("no width") << u"7"_s << 0 << u"7"_s;
}

void tst_ValueText::paddingNeverCuts() {
    QFETCH(QString, text);
    QFETCH(int, width);
    QTEST(LeftPadString(text, u'0', width), "padded");
}

void tst_ValueText::trimTakesBlanksOnly_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("trimmed");
    QTest::newRow("both ends") << u"  a b "_s << u"a b"_s;
    QTest::newRow("tab stays") << u" \ta "_s << u"\ta"_s;
    QTest::newRow("no-break blank stays") << u"\u00a0a"_s << u"\u00a0a"_s;
    QTest::newRow("blanks only") << u"   "_s << QString();
}

void tst_ValueText::trimTakesBlanksOnly() {
    QFETCH(QString, text);
    QTEST(TrimBlanks(text), "trimmed");
}

void tst_ValueText::emptyValuesStayEmptyParts() {
    QCOMPARE(MakeParamString({QVariant(1), QVariant(), QVariant(u"x"_s)}), u"1||x"_s);
    QCOMPARE(MakeParamString({}), QString());
}

QTEST_GUILESS_MAIN(tst_ValueText)
#include "tst_value_text.moc"
