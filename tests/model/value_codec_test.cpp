#include "model_test_support.h"
#include "value_codec.h"

#include <QTest>

// Text forms of values and the way back, with the near misses.
class ValueCodecTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aValueIsTakenOrRefused_data();
    void aValueIsTakenOrRefused();
    void everyFormComesBackAsItWent_data();
    void everyFormComesBackAsItWent();
};

namespace {

constexpr int kTaken = -1;
using Kind = ValueFault::Kind;
using Parse = ValueResult (*)(const FieldDefinition &, const QVariant &, const NumberLimits &);

ValueResult shown(const FieldDefinition &field, const QVariant &value, const NumberLimits &limits) {
    return ValueCodec::parseShown(field, value.toString(), limits);
}
ValueResult raw(const FieldDefinition &field, const QVariant &value, const NumberLimits &limits) {
    return ValueCodec::parseRaw(field, value.toString(), limits);
}

void compare(const ValueResult &result, const QVariant &stored, int fault) {
    if (const auto *value = std::get_if<StoredValue>(&result)) {
        QCOMPARE(kTaken, fault);
        QCOMPARE(value->isText() ? QVariant(value->text()) : QVariant(value->number()), stored);
    } else {
        QCOMPARE(int(std::get<ValueFault>(result).kind), fault);
    }
}

} // namespace

Q_DECLARE_METATYPE(Parse)

void ValueCodecTest::aValueIsTakenOrRefused_data() {
    QTest::addColumn<Parse>("parse");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("fault");
    const auto good = [](const char *id, const char *text, const QVariant &stored) {
        QTest::addRow("%s takes '%s'", id, text)
            << Parse(shown) << QString::fromLatin1(id) << QVariant(QString::fromUtf8(text)) << stored << kTaken;
    };
    const auto bad = [](const char *id, const char *text, Kind fault) {
        QTest::addRow("%s refuses '%s'", id, text)
            << Parse(shown) << QString::fromLatin1(id) << QVariant(QString::fromUtf8(text)) << QVariant() << int(fault);
    };
    good("Rx", "156.5", 156500000);
    good("Rx", "156,5", 156500000);
    good("Rx", " 156.500000 ", 156500000);
    good("Rx", "156.50000000", 156500000);
    good("Rx", "+156.00625", 156006250); // of the other raster
    good("Rx", "40", 40000000);
    good("Rx", "174", 174000000);
    good("Rx", "040.", 40000000);
    bad("Rx", "156.501", Kind::OffRaster);
    bad("Rx", "156.5000001", Kind::OffRaster);
    bad("Rx", "174.0000001", Kind::OutOfRange);
    bad("Rx", "39.9975", Kind::OutOfRange);
    bad("Rx", "999999999999999999999999", Kind::OutOfRange);
    bad("Rx", "-156.5", Kind::OutOfRange);
    bad("Rx", "156.5.0", Kind::NotANumber);
    bad("Rx", "1.565e2", Kind::NotANumber);
    bad("Rx", "156.5 MHz", Kind::NotANumber);
    bad("Rx", "", Kind::NotANumber);
    bad("Rx", ".", Kind::NotANumber);
    bad("Rx", "١٥٦", Kind::NotANumber);
    good("Offset", "-10.5", -105);
    good("Offset", "-0.5", -5);
    good("Offset", ",5", 5);
    bad("Offset", "-10.51", Kind::OutOfRange);
    bad("Offset", "-0.51", Kind::OffRaster);
    bad("Offset", "0.4", Kind::OffRaster);
    good("Delay", "20", 20);
    good("Delay", "500.0", 500);
    bad("Delay", "19", Kind::OutOfRange);
    bad("Delay", "21", Kind::OffRaster);
    bad("Delay", "40.5", Kind::OffRaster);
    good("Owner", "aBcabc", QStringLiteral("aBcabc"));
    good("Owner", "x", QStringLiteral("X")); // only the upper-case letter is in the mask
    good("Owner", "", QString());
    good("Owner", " ", QStringLiteral(" "));
    bad("Owner", "d", Kind::BadCharacter);
    bad("Owner", "abcabcd", Kind::BadCharacter);
    bad("Owner", "abcabca", Kind::TooLong);
    good("SlotText", "äß", QStringLiteral("äß"));
    bad("SlotText", "€", Kind::BadCharacter);
    bad("SlotText", "a\tb", Kind::BadCharacter);
    good("Power", "High", 1);
    good("BurstTone", "B", 7);
    bad("Power", "high", Kind::NotInList);
    bad("Power", "1", Kind::NotInList);
    good("Beep", "0", 0);
    good("Beep", "-1", 1); // true in text form
    bad("Beep", "2", Kind::NotInList);
    good("MemberChannel", "None", 0);
    good("MemberChannel", "12", 12);
    bad("MemberChannel", "0", Kind::NoSuchRecord);
    bad("MemberChannel", "Channel 12", Kind::NoSuchRecord);
    bad("Network", "None", Kind::NoSuchRecord);
    good("Start", "Channel 5", 5);
    good("Start", "Group 5", ReferenceTargets::kPlaceFactor + 5);
    bad("Start", "5", Kind::NoSuchRecord);
    bad("Start", "Group 70000", Kind::NoSuchRecord);
    bad("Start", "Group -1", Kind::NoSuchRecord);
    good("ChannelID", "9", 9);
    bad("ChannelID", "10", Kind::OutOfRange);
    bad("ChannelID", "0", Kind::OutOfRange);
    bad("NetworkID", "1", Kind::ReadOnly);
    const auto other = [](const char *name, Parse parse, const char *id, const QVariant &value, const QVariant &stored,
                          int fault = kTaken) {
        QTest::newRow(name) << parse << QString::fromLatin1(id) << value << stored << fault;
    };
    const Parse bound = ValueCodec::parseBoundary;
    other("a double keeps its raster", bound, "Rx", 156.0125, 156012500);
    other("a double off the raster", bound, "Rx", 156.0001, {}, int(Kind::OffRaster));
    other("nothing is no number", bound, "Delay", QVariant(), {}, int(Kind::NotANumber));
    other("an item's text of an ID tracker", bound, "BurstTone", QStringLiteral("B"), 7);
    other("a list by its value as text", bound, "Power", QStringLiteral(" 1"), 1);
    other("a list by its text", bound, "Power", QStringLiteral("High"), {}, int(Kind::NotInList));
    other("a list between two items", bound, "Power", 0.4, 0); // rounds half to even
    other("a list beyond 32 bits", bound, "Power", 1e12, {}, int(Kind::NotInList));
    other("a true flag", bound, "Beep", true, 1);
    other("a reference as number", bound, "MemberChannel", 3, 3);
    other("a stored value with a point", raw, "Rx", QStringLiteral("156.5"), {}, int(Kind::NotANumber));
    other("a stored value off the raster", raw, "Rx", QStringLiteral("156500001"), {}, int(Kind::OffRaster));
    other("a stored value of no item", raw, "BurstTone", QStringLiteral("1"), {}, int(Kind::NotInList));
    other("a stored flag of 2", raw, "Beep", QStringLiteral("2"), {}, int(Kind::NotInList));
    other("a stored place of 2 of 2", raw, "Start", QStringLiteral("131073"), {}, int(Kind::NoSuchRecord));
    other("a stored text keeps its case", raw, "Owner", QStringLiteral("x"), {}, int(Kind::BadCharacter));
    other("a stored None where there is none", raw, "Network", QStringLiteral("0"), {}, int(Kind::NoSuchRecord));
}

void ValueCodecTest::aValueIsTakenOrRefused() {
    QFETCH(Parse, parse);
    QFETCH(QString, id);
    QFETCH(QVariant, value);
    QFETCH(QVariant, stored);
    QFETCH(int, fault);
    const auto dictionary = SmallDictionary::make();
    const FieldDefinition &field = *dictionary->find(id);
    compare(parse(field, value, field.limits), stored, fault);
}

void ValueCodecTest::everyFormComesBackAsItWent_data() {
    QTest::addColumn<QString>("id");
    QTest::addColumn<qint32>("stored");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *id, qint32 stored, const char *shown) {
        QTest::addRow("%s %d", id, stored) << QString::fromLatin1(id) << stored << QString::fromLatin1(shown);
    };
    row("Rx", 156500000, "156.500000");
    row("Rx", 40000000, "040.000000");
    row("Offset", -5, "-0.5");
    row("Offset", 0, "0.0");
    row("Delay", 500, "500");
    row("Power", 2, "Turbo");
    row("BurstTone", 7, "B");
    row("Beep", 1, "1");
    row("Start", 0, "None");
    row("Start", 9, "Channel 9");
    row("Start", ReferenceTargets::kPlaceFactor + 3, "Group 3");
    row("ChannelID", 4, "4");
}

void ValueCodecTest::everyFormComesBackAsItWent() {
    QFETCH(QString, id);
    QFETCH(qint32, stored);
    QFETCH(QString, shown);
    const auto dictionary = SmallDictionary::make();
    const FieldDefinition &field = *dictionary->find(id);
    QCOMPARE(ValueCodec::shown(field, stored), shown);
    compare(ValueCodec::parseShown(field, shown, field.limits), stored, kTaken);
    compare(ValueCodec::parseBoundary(field, ValueCodec::boundary(field, stored), field.limits), stored, kTaken);
    compare(ValueCodec::parseRaw(field, ValueCodec::raw(stored), field.limits), stored, kTaken);
}

QTEST_GUILESS_MAIN(ValueCodecTest)
#include "value_codec_test.moc"
