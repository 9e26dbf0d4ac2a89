#include "model_test_support.h"
#include "rows.h"
#include "value_codec.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTaken = -1;
using Kind = ValueFault::Kind;
using Parse = ValueResult (*)(const FieldDefinition &, const QVariant &, const NumberLimits &);

ValueResult raw(const FieldDefinition &field, const QVariant &value, const NumberLimits &limits) {
    return ValueCodec::parseRaw(field, value.toString(), limits);
}

void compare(const ValueResult &result, const QVariant &stored, int fault, const QString &what) {
    if (const auto *value = std::get_if<StoredValue>(&result)) {
        const QVariant taken = value->isText() ? QVariant(value->text()) : QVariant(value->number());
        QVERIFY2(fault == kTaken && taken == stored, qPrintable(what + u" is taken as "_s + taken.toString()));
    } else {
        const int found = int(std::get<ValueFault>(result).kind);
        QVERIFY2(found == fault, qPrintable(what + u" is refused as "_s + QString::number(found)));
    }
}

} // namespace

// Text forms of values and the way back, with the near misses.
class ValueCodecTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void shownTextsAreTakenOrRefused() {
        const auto dictionary = SmallDictionary::make();
        using Good = std::vector<std::pair<const char *, QVariant>>;
        for (const auto &[id, texts] : {
                 std::pair("Rx", Good{{"156.5", 156500000},
                                      {"156,5", 156500000},
                                      {" 156.500000 ", 156500000},
                                      {"156.50000000", 156500000},
                                      {"+156.00625", 156006250},
                                      {"40", 40000000},
                                      {"174", 174000000},
                                      {"040.", 40000000}}),
                 std::pair("Offset", Good{{"-10.5", -105}, {"-0.5", -5}, {",5", 5}}),
                 std::pair("Delay", Good{{"20", 20}, {"500.0", 500}}),
                 std::pair("Owner", Good{{"aBcabc", u"aBcabc"_s}, {"x", u"X"_s}, {"", QString()}, {" ", u" "_s}}),
                 std::pair("SlotText", Good{{"äß", u"äß"_s}}),
                 std::pair("Power", Good{{"High", 1}}),
                 std::pair("BurstTone", Good{{"B", 7}}),
                 std::pair("Beep", Good{{"0", 0}, {"-1", 1}}),
                 std::pair("MemberChannel", Good{{"None", 0}, {"12", 12}}),
                 std::pair("Start", Good{{"Channel 5", 5}, {"Group 5", ReferenceTargets::kPlaceFactor + 5}}),
                 std::pair("ChannelID", Good{{"9", 9}}),
             }) {
            const FieldDefinition &field = *dictionary->find(QLatin1String(id));
            for (const auto &[text, stored] : texts)
                compare(ValueCodec::parseShown(field, QString::fromUtf8(text), field.limits), stored, kTaken,
                        field.id + u' ' + QString::fromUtf8(text));
        }
        using Texts = std::vector<const char *>;
        for (const auto &[id, fault, texts] : {
                 std::tuple("Rx", Kind::OffRaster, Texts{"156.501", "156.5000001"}),
                 std::tuple("Rx", Kind::OutOfRange,
                            Texts{"174.0000001", "39.9975", "999999999999999999999999", "-156.5"}),
                 std::tuple("Rx", Kind::NotANumber, Texts{"156.5.0", "1.565e2", "156.5 MHz", "", ".", "١٥٦"}),
                 std::tuple("Offset", Kind::OutOfRange, Texts{"-10.51"}),
                 std::tuple("Offset", Kind::OffRaster, Texts{"-0.51", "0.4"}),
                 std::tuple("Delay", Kind::OutOfRange, Texts{"19"}),
                 std::tuple("Delay", Kind::OffRaster, Texts{"21", "40.5"}),
                 std::tuple("Owner", Kind::BadCharacter, Texts{"d", "abcabcd"}),
                 std::tuple("Owner", Kind::TooLong, Texts{"abcabca"}),
                 std::tuple("SlotText", Kind::BadCharacter, Texts{"€", "a\tb"}),
                 std::tuple("Power", Kind::NotInList, Texts{"high", "1"}),
                 std::tuple("Beep", Kind::NotInList, Texts{"2"}),
                 std::tuple("MemberChannel", Kind::NoSuchRecord, Texts{"0", "Channel 12"}),
                 std::tuple("Network", Kind::NoSuchRecord, Texts{"None"}),
                 std::tuple("Start", Kind::NoSuchRecord, Texts{"5", "Group 70000", "Group -1"}),
                 std::tuple("ChannelID", Kind::OutOfRange, Texts{"10", "0"}),
                 std::tuple("NetworkID", Kind::ReadOnly, Texts{"1"}),
             }) {
            const FieldDefinition &field = *dictionary->find(QLatin1String(id));
            for (const char *text : texts)
                compare(ValueCodec::parseShown(field, QString::fromUtf8(text), field.limits), {}, int(fault),
                        field.id + u' ' + QString::fromUtf8(text));
        }
    }

    void valuesOfTheBoundaryAndOfFilesAreTakenOrRefused() {
        const Parse bound = ValueCodec::parseBoundary;
        const auto dictionary = SmallDictionary::make();
        for (const auto &[parse, id, value, stored, fault] : Rows<Parse, QString, QVariant, QVariant, int>{
                 {"a double keeps its raster", bound, u"Rx"_s, 156.0125, 156012500, kTaken},
                 {"a double off the raster", bound, u"Rx"_s, 156.0001, {}, int(Kind::OffRaster)},
                 {"nothing is no number", bound, u"Delay"_s, {}, {}, int(Kind::NotANumber)},
                 {"an item's text of an ID tracker", bound, u"BurstTone"_s, u"B"_s, 7, kTaken},
                 {"a list by its value as text", bound, u"Power"_s, u" 1"_s, 1, kTaken},
                 {"a list by its text", bound, u"Power"_s, u"High"_s, {}, int(Kind::NotInList)},
                 {"a list between two items", bound, u"Power"_s, 0.4, 0, kTaken},
                 {"a list beyond 32 bits", bound, u"Power"_s, 1e12, {}, int(Kind::NotInList)},
                 {"a true flag", bound, u"Beep"_s, true, 1, kTaken},
                 {"a reference as number", bound, u"MemberChannel"_s, 3, 3, kTaken},
                 {"a stored value with a point", raw, u"Rx"_s, u"156.5"_s, {}, int(Kind::NotANumber)},
                 {"a stored value off the raster", raw, u"Rx"_s, u"156500001"_s, {}, int(Kind::OffRaster)},
                 {"a stored value of no item", raw, u"BurstTone"_s, u"1"_s, {}, int(Kind::NotInList)},
                 {"a stored flag of 2", raw, u"Beep"_s, u"2"_s, {}, int(Kind::NotInList)},
                 {"a stored place of 2 of 2", raw, u"Start"_s, u"131073"_s, {}, int(Kind::NoSuchRecord)},
                 {"a stored text keeps its case", raw, u"Owner"_s, u"x"_s, {}, int(Kind::BadCharacter)},
                 {"a stored None where there is none", raw, u"Network"_s, u"0"_s, {}, int(Kind::NoSuchRecord)},
             }) {
            const FieldDefinition &field = *dictionary->find(id);
            compare(parse(field, value, field.limits), stored, fault, id + u' ' + value.toString());
        }
    }

    void everyFormComesBackAsItWent() {
        const auto dictionary = SmallDictionary::make();
        for (const auto &[id, stored, shown] : {std::tuple(u"Rx"_s, 156500000, u"156.500000"_s),
                                                {u"Rx"_s, 40000000, u"040.000000"_s},
                                                {u"Offset"_s, -5, u"-0.5"_s},
                                                {u"Offset"_s, 0, u"0.0"_s},
                                                {u"Delay"_s, 500, u"500"_s},
                                                {u"Power"_s, 2, u"Turbo"_s},
                                                {u"BurstTone"_s, 7, u"B"_s},
                                                {u"Beep"_s, 1, u"1"_s},
                                                {u"Start"_s, 0, u"None"_s},
                                                {u"Start"_s, 9, u"Channel 9"_s},
                                                {u"Start"_s, ReferenceTargets::kPlaceFactor + 3, u"Group 3"_s},
                                                {u"ChannelID"_s, 4, u"4"_s}}) {
            const FieldDefinition &field = *dictionary->find(id);
            QCOMPARE(ValueCodec::shown(field, stored), shown);
            compare(ValueCodec::parseShown(field, shown, field.limits), stored, kTaken, id + u' ' + shown);
            compare(ValueCodec::parseBoundary(field, ValueCodec::boundary(field, stored), field.limits), stored, kTaken,
                    id + u' ' + shown);
            compare(ValueCodec::parseRaw(field, ValueCodec::raw(stored), field.limits), stored, kTaken,
                    id + u' ' + shown);
        }
    }
};

QTEST_GUILESS_MAIN(ValueCodecTest)
#include "value_codec_test.moc"
