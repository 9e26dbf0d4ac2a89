#include "byte_fields.h"
#include "sample_identity.h"
#include "wire_frame.h"
#include "wire_messages.h"

#include <QTest>

#include <functional>

namespace {
using Decodes = std::function<bool(const QByteArray &)>;
template <class Message>
Decodes decoder() {
    return [](const QByteArray &payload) { return Message::decode(payload).has_value(); };
}
} // namespace

class WireMessagesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void identitySurvivesTheLine();
    void identityOutOfRangeIsRefused_data();
    void identityOutOfRangeIsRefused();
    void payloadOfWrongLengthIsRefused_data();
    void payloadOfWrongLengthIsRefused();
    void unknownBankIsRefused();
    void readBehindTheEndSpoilsTheReader();
};

void WireMessagesTest::identitySurvivesTheLine() {
    const auto decoded = RadioIdentity::decode(sampleIdentity().encode());
    QVERIFY(decoded);
    QVERIFY(*decoded == sampleIdentity());
    QCOMPARE(sampleIdentity().softwareText(), QStringLiteral("2.01.0007"));
    RadioIdentity small = sampleIdentity();
    small.serialNumber = 7;
    QCOMPARE(small.serialText(), QStringLiteral("00000007"));
}

void WireMessagesTest::identityOutOfRangeIsRefused_data() {
    QTest::addColumn<QByteArray>("record");
    const QByteArray good = sampleIdentity().encode();
    const auto changed = [&good](int at, const QByteArray &bytes) {
        return QByteArray(good).replace(at, bytes.size(), bytes);
    };
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("one byte short") << good.chopped(1);
    QTest::newRow("one byte long") << good + 'x';
    QTest::newRow("record version") << changed(0, "\x02");
    QTest::newRow("block below 64") << changed(6, QByteArray("\x00\x3F", 2));
    QTest::newRow("block above 4096") << changed(6, "\x10\x01");
    QTest::newRow("nine-digit serial number") << changed(8, QByteArray("\x05\xF5\xE1\x00", 4));
    QTest::newRow("image above 16 MiB") << changed(12, QByteArray("\x01\x00\x00\x01", 4));
}

void WireMessagesTest::identityOutOfRangeIsRefused() {
    QFETCH(QByteArray, record);
    QVERIFY(!RadioIdentity::decode(record));
}

void WireMessagesTest::payloadOfWrongLengthIsRefused_data() {
    QTest::addColumn<Decodes>("decodes");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<bool>("openEnd");
    QTest::newRow("refusal") << decoder<Wire::Refusal>() << Wire::Refusal{}.encode() << false;
    QTest::newRow("open") << decoder<Wire::OpenSessionRequest>() << Wire::OpenSessionRequest{}.encode() << false;
    QTest::newRow("opened") << decoder<Wire::SessionOpened>() << Wire::SessionOpened{}.encode() << false;
    QTest::newRow("speed") << decoder<Wire::LineSpeed>() << Wire::LineSpeed{19200}.encode() << false;
    QTest::newRow("read") << decoder<Wire::ReadBlockRequest>() << Wire::ReadBlockRequest{}.encode() << false;
    QTest::newRow("block") << decoder<Wire::Block>() << Wire::Block{7, "x"}.encode() << true;
    QTest::newRow("written") << decoder<Wire::BlockWritten>() << Wire::BlockWritten{}.encode() << false;
    QTest::newRow("bank") << decoder<Wire::BankRequest>() << Wire::BankRequest{}.encode() << false;
    QTest::newRow("state") << decoder<Wire::BankState>() << Wire::BankState{}.encode() << false;
    QTest::newRow("commit") << decoder<Wire::CommitContent>() << Wire::CommitContent{}.encode() << false;
}

void WireMessagesTest::payloadOfWrongLengthIsRefused() {
    QFETCH(Decodes, decodes);
    QFETCH(QByteArray, payload);
    QVERIFY(decodes(payload));
    QVERIFY(!decodes(payload.chopped(1)));
    QVERIFY(!decodes({}));
    QTEST(decodes(payload + 'x'), "openEnd");
}

void WireMessagesTest::unknownBankIsRefused() {
    QVERIFY(Wire::BankRequest::decode(QByteArray(1, '\1')));
    QVERIFY(!Wire::BankRequest::decode(QByteArray(1, '\2')));
    QByteArray read = Wire::ReadBlockRequest{}.encode();
    read[0] = '\2';
    QVERIFY(!Wire::ReadBlockRequest::decode(read));
}

void WireMessagesTest::readBehindTheEndSpoilsTheReader() {
    ByteReader reader(QByteArray("\x01\x02\x03", 3));
    QCOMPARE(reader.u16(), quint16(0x0102));
    QCOMPARE(reader.u32(), 0U);
    QCOMPARE(reader.u8(), quint8(3));
    QVERIFY(!reader.complete());
}

QTEST_GUILESS_MAIN(WireMessagesTest)
#include "wire_messages_test.moc"
