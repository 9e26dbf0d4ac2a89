#include "byte_fields.h"
#include "rows.h"
#include "sample_identity.h"
#include "wire_frame.h"
#include "wire_messages.h"

#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

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
    void identitySurvivesTheLine() {
        const auto decoded = RadioIdentity::decode(sampleIdentity().encode());
        QVERIFY(decoded);
        QVERIFY(*decoded == sampleIdentity());
        QCOMPARE(sampleIdentity().softwareText(), u"2.01.0007"_s);
        RadioIdentity small = sampleIdentity();
        small.serialNumber = 7;
        QCOMPARE(small.serialText(), u"00000007"_s);
    }

    void identityOutOfRangeIsRefused() {
        const QByteArray good = sampleIdentity().encode();
        const auto changed = [&good](int at, const QByteArray &bytes) {
            return QByteArray(good).replace(at, bytes.size(), bytes);
        };

        for (const auto &[record] : Rows<QByteArray>{
                 {"empty", QByteArray()},
                 {"one byte short", good.chopped(1)},
                 {"one byte long", good + 'x'},
                 {"record version", changed(0, "\x02")},
                 {"block below 64", changed(6, QByteArray("\x00\x3F", 2))},
                 {"block above 4096", changed(6, "\x10\x01")},
                 {"nine-digit serial number", changed(8, QByteArray("\x05\xF5\xE1\x00", 4))},
                 {"image above 16 MiB", changed(12, QByteArray("\x01\x00\x00\x01", 4))},
             }) {
            QVERIFY(!RadioIdentity::decode(record));
        }
    }

    void payloadOfWrongLengthIsRefused() {
        for (const auto &[decodes, payload, openEnd] : Rows<Decodes, QByteArray, bool>{
                 {"refusal", decoder<Wire::Refusal>(), Wire::Refusal{}.encode(), false},
                 {"open", decoder<Wire::OpenSessionRequest>(), Wire::OpenSessionRequest{}.encode(), false},
                 {"opened", decoder<Wire::SessionOpened>(), Wire::SessionOpened{}.encode(), false},
                 {"speed", decoder<Wire::LineSpeed>(), Wire::LineSpeed{19200}.encode(), false},
                 {"read", decoder<Wire::ReadBlockRequest>(), Wire::ReadBlockRequest{}.encode(), false},
                 {"block", decoder<Wire::Block>(), Wire::Block{7, "x"}.encode(), true},
                 {"written", decoder<Wire::BlockWritten>(), Wire::BlockWritten{}.encode(), false},
                 {"bank", decoder<Wire::BankRequest>(), Wire::BankRequest{}.encode(), false},
                 {"state", decoder<Wire::BankState>(), Wire::BankState{}.encode(), false},
                 {"commit", decoder<Wire::CommitContent>(), Wire::CommitContent{}.encode(), false},
             }) {
            QVERIFY(decodes(payload));
            QVERIFY(!decodes(payload.chopped(1)));
            QVERIFY(!decodes({}));
            QCOMPARE(decodes(payload + 'x'), openEnd);
        }
    }

    void unknownBankIsRefused() {
        QVERIFY(Wire::BankRequest::decode(QByteArray(1, '\1')));
        QVERIFY(!Wire::BankRequest::decode(QByteArray(1, '\2')));
        QByteArray read = Wire::ReadBlockRequest{}.encode();
        read[0] = '\2';
        QVERIFY(!Wire::ReadBlockRequest::decode(read));
    }

    void readBehindTheEndSpoilsTheReader() {
        ByteReader reader(QByteArray("\x01\x02\x03", 3));
        QCOMPARE(reader.u16(), quint16(0x0102));
        QCOMPARE(reader.u32(), 0U);
        QCOMPARE(reader.u8(), quint8(3));
        QVERIFY(!reader.complete());
    }
};

QTEST_GUILESS_MAIN(WireMessagesTest)
#include "wire_messages_test.moc"
