#include "field_reader.h"
#include "item_lists.h"
#include "model_test_support.h"
#include "value_validator.h"

#include <QTest>

// What a record takes now: limits that follow a field, lists of the record, unique identities, existing targets; and
// how a refusal is worded.
class ValueValidatorTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aValueIsTakenOrRefusedInWords_data();
    void aValueIsTakenOrRefusedInWords();
    void limitsFollowTheBand();
    void anIdentityOffersItsOwnAndFreeNumbersOnly();
    void aRefusedRecordOperationSaysWhy();
};

void ValueValidatorTest::aValueIsTakenOrRefusedInWords_data() {
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("message"); // "" : taken
    const auto row = [](const char *id, const char *value, const char *message) {
        QTest::addRow("%s '%s'", id, value)
            << QString::fromLatin1(id) << QString::fromLatin1(value) << QString::fromLatin1(message);
    };
    row("Rx", "174", "");
    row("Rx", "174.0025", "Rx Frequency must lie between 136 MHz and 174 MHz.");
    row("Rx", "100", "Rx Frequency must lie between 136 MHz and 174 MHz."); // inside the field's widest limits
    row("Rx", "150.001", "Rx Frequency must be a multiple of 2.5 kHz or of 6.25 kHz.");
    row("Rx", "high", "Rx Frequency must be a number between 136 MHz and 174 MHz.");
    row("Offset", "0.25", "Offset must lie between -10.5 dB and 10.5 dB in steps of 0.5 dB.");
    row("Boost", "1.5", "Boost must be a whole number.");
    row("Owner", "ABd", "Owner must not contain the character d. Allowed are ABCabc XYZ1");
    row("Owner", "ABCABCA", "Owner must have at most 6 characters.");
    row("SlotText", "a|b", "");
    row("ChannelID", "2", "ID 2 is already in use. It must be a free number between 1 and 9.");
    row("ChannelID", "1", ""); // its own
    row("ChannelID", "9", "");
    row("Network", "1", "");
    row("Network", "2", "Network must name one of the records that its list offers; 2 is not among them.");
    row("Power", "Mighty", "Mighty is not in the list of Power. Choose one of the items that it offers.");
    row("NetworkID", "4", "Network ID cannot be changed.");
}

void ValueValidatorTest::aValueIsTakenOrRefusedInWords() {
    QFETCH(QString, id);
    QFETCH(QString, value);
    QFETCH(QString, message);
    ModelFixture f;
    f.append("System", 1);
    const FieldDefinition &field = *f.dictionary->find(id);
    const RecordAddress record{0, f.dictionary->structure(field.structure).isRadio() ? 0 : 1};
    const ValueResult result = ValueValidator(f.data).fromShown(field.index, record, value);
    const auto *fault = std::get_if<ValueFault>(&result);
    QCOMPARE(fault == nullptr ? QString() : RefusalText::ofValue(field, *fault).text(), message);
}

void ValueValidatorTest::limitsFollowTheBand() {
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

void ValueValidatorTest::anIdentityOffersItsOwnAndFreeNumbersOnly() {
    ModelFixture f;
    f.set("ChannelID", {0, 2}, 5);
    QStringList texts;
    for (const FieldItem &item : ItemLists(f.data).items(f.field("ChannelID"), {0, 2}))
        texts.append(item.text);
    QCOMPARE(texts.join(QLatin1Char(' ')), QStringLiteral("2 3 4 5 6 7 8 9"));
}

void ValueValidatorTest::aRefusedRecordOperationSaysWhy() {
    ModelFixture f;
    f.append("Network", 3);
    f.set("ChannelID", {0, 2}, 8);
    f.set("Network", {0, 2}, 4);
    const auto said = [&f](const RecordResult &result) {
        return RefusalText::ofRecord(f.data, *result.refusal).text();
    };
    QCOMPARE(said(f.editor.deleteRecord(f.structure("Network"), {0, 4})),
             QStringLiteral("Networks: the record cannot be deleted while Channel 8 uses it as its Network."));
    QCOMPARE(said(f.editor.insertRecord(f.structure("Network"), {0, 5})),
             QStringLiteral("Networks: no more records can be added. The greatest number is 4."));
    QVERIFY(f.editor.deleteRecord(f.structure("Channel"), {0, 1}).done());
    QCOMPARE(said(f.editor.deleteRecord(f.structure("Channel"), {0, 1})),
             QStringLiteral("Channels: the record cannot be deleted. The least number is 1."));
}

QTEST_GUILESS_MAIN(ValueValidatorTest)
#include "value_validator_test.moc"
