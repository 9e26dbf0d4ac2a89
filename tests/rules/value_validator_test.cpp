#include "field_reader.h"
#include "item_lists.h"
#include "model_test_support.h"
#include "value_validator.h"

#include <QTest>

using namespace Qt::StringLiterals;

// What a record takes now: limits that follow a field, lists of the record, unique identities, existing targets; and
// how a refusal is worded.
class ValueValidatorTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aValueIsTakenOrRefusedInWords() {
        for (const auto &[id, value, message] : {
                 std::tuple("Rx", "174", ""),
                 {"Rx", "174.0025", "Rx Frequency must lie between 136 MHz and 174 MHz."},
                 {"Rx", "100", "Rx Frequency must lie between 136 MHz and 174 MHz."},
                 {"Rx", "150.001", "Rx Frequency must be a multiple of 2.5 kHz or of 6.25 kHz."},
                 {"Rx", "high", "Rx Frequency must be a number between 136 MHz and 174 MHz."},
                 {"Offset", "0.25", "Offset must lie between -10.5 dB and 10.5 dB in steps of 0.5 dB."},
                 {"Boost", "1.5", "Boost must be a whole number."},
                 {"Owner", "ABd", "Owner must not contain the character d. Allowed are ABCabc XYZ1"},
                 {"Owner", "ABCABCA", "Owner must have at most 6 characters."},
                 {"SlotText", "a|b", ""},
                 {"ChannelID", "2", "ID 2 is already in use. It must be a free number between 1 and 9."},
                 {"ChannelID", "1", ""},
                 {"ChannelID", "9", ""},
                 {"Network", "1", ""},
                 {"Network", "2", "Network must name one of the records that its list offers; 2 is not among them."},
                 {"Power", "Mighty", "Mighty is not in the list of Power. Choose one of the items that it offers."},
                 {"NetworkID", "4", "Network ID cannot be changed."},
             }) { // no message: taken
            ModelFixture f;
            f.append("System", 1);
            const FieldDefinition &field = *f.dictionary->find(QLatin1String(id));
            const RecordAddress record{0, f.dictionary->structure(field.structure).isRadio() ? 0 : 1};
            const ValueResult result = ValueValidator(f.data).fromShown(field.index, record, QLatin1String(value));
            const auto *fault = std::get_if<ValueFault>(&result);
            QCOMPARE(fault == nullptr ? QString() : RefusalText::ofValue(field, *fault).text(), QLatin1String(message));
        }
    }

    void limitsFollowTheBand() {
        ModelFixture f;
        const FieldIndex rx = f.field("Rx");
        QCOMPARE(FieldReader(f.data).limits(rx, {0, 1}).minimum, 136000000);
        f.set("Band", {}, 0);
        QCOMPARE(FieldReader(f.data).limits(rx, {0, 1}).minimum, 40000000);
        QCOMPARE(FieldReader(f.data).limits(rx, {0, 1}).maximum, 50000000);
        QVERIFY(ValueValidator(f.data).check(rx, {0, 1}, f.data.value(rx, {0, 1})).has_value());
        f.append("Channel", 1);
        QCOMPARE(f.number("Rx", {0, 3}), 45000000);
        QVERIFY(!ValueValidator(f.data).check(rx, {0, 3}, f.data.value(rx, {0, 3})).has_value());
    }

    void anIdentityOffersItsOwnAndFreeNumbersOnly() {
        ModelFixture f;
        f.set("ChannelID", {0, 2}, 5);
        QStringList texts;
        for (const FieldItem &item : ItemLists(f.data).items(f.field("ChannelID"), {0, 2}))
            texts.append(item.text);
        QCOMPARE(texts.join(QLatin1Char(' ')), u"2 3 4 5 6 7 8 9"_s);
    }

    void aRefusedRecordOperationSaysWhy() {
        ModelFixture f;
        f.append("Network", 3);
        f.set("ChannelID", {0, 2}, 8);
        f.set("Network", {0, 2}, 4);
        const auto said = [&f](const RecordResult &result) {
            return RefusalText::ofRecord(f.data, *result.refusal).text();
        };
        QCOMPARE(said(f.editor.deleteRecord(f.structure("Network"), {0, 4})),
                 u"Networks: the record cannot be deleted while Channel 8 uses it as its Network."_s);
        QCOMPARE(said(f.editor.insertRecord(f.structure("Network"), {0, 5})),
                 u"Networks: no more records can be added. The greatest number is 4."_s);
        QVERIFY(f.editor.deleteRecord(f.structure("Channel"), {0, 1}).done());
        QCOMPARE(said(f.editor.deleteRecord(f.structure("Channel"), {0, 1})),
                 u"Channels: the record cannot be deleted. The least number is 1."_s);
    }
};

QTEST_GUILESS_MAIN(ValueValidatorTest)
#include "value_validator_test.moc"
