#include "rows.h"
#include "sample_identity.h"
#include "wire_frame.h"
#include "wire_messages.h"

#include <QFile>
#include <QTest>

using namespace Wire;

namespace {
constexpr quint32 kCheckCrc = 0xCBF43926; // CRC-32 of "123456789"
} // namespace

// The worked examples of docs/radio-protocol.md: the bytes here, those in the document and what the code sends are one.
class ProtocolExamplesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() {
        QFile document(QStringLiteral(KX_PROTOCOL_DOCUMENT));
        QVERIFY(document.open(QIODevice::ReadOnly));
        mDocument = document.readAll();
    }
    void documentAndCodeAgree() {
        const auto ask = [](quint8 number, Command command, const QByteArray &payload = {}) {
            return encode({number, request(command), payload});
        };
        const auto say = [](quint8 number, Command command, const QByteArray &payload = {}) {
            return encode({number, answer(command), payload});
        };
        const QByteArray speed = LineSpeed{kHighSpeed}.encode();
        const QByteArray commit = CommitContent{1, kCheckCrc}.encode();

        for (const auto &[bytes, sent] : Rows<QByteArray, QByteArray>{
                 {"identify", "A5 5A 00 00 10 01 97 92", ask(16, Command::Identify)},
                 {"identity",
                  "A5 5A 00 22 10 81 01 02 01 02 00 01 10 00 02 BD E7 81 00 02 1A 90 01 03 02 01 00 07 "
                  "4B 58 34 36 30 30 2D 41 31 00 00 00 F6 73",
                  say(16, Command::Identify, sampleIdentity().encode())},
                 {"open", "A5 5A 00 01 11 02 01 65 A8", ask(17, Command::OpenSession, OpenSessionRequest{}.encode())},
                 {"opened", "A5 5A 00 03 11 82 01 00 01 86 64",
                  say(17, Command::OpenSession, SessionOpened{1, 1}.encode())},
                 {"speed", "A5 5A 00 04 12 04 00 01 C2 00 AF 3C", ask(18, Command::SetSpeed, speed)},
                 {"speed agreed", "A5 5A 00 04 12 84 00 01 C2 00 8D EC", say(18, Command::SetSpeed, speed)},
                 {"read", "A5 5A 00 07 13 05 00 00 00 01 00 00 04 C8 C1",
                  ask(19, Command::ReadBlock, ReadBlockRequest{Bank::Active, 256, 4}.encode())},
                 {"block", "A5 5A 00 08 13 85 00 00 01 00 01 00 64 00 3F AA",
                  say(19, Command::ReadBlock, Block{256, QByteArray::fromHex("01006400")}.encode())},
                 {"write", "A5 5A 00 08 14 06 00 00 01 00 01 00 2C 01 25 E2",
                  ask(20, Command::WriteBlock, Block{256, QByteArray::fromHex("01002C01")}.encode())},
                 {"written", "A5 5A 00 06 14 86 00 00 01 00 00 04 B5 84",
                  say(20, Command::WriteBlock, BlockWritten{256, 4}.encode())},
                 {"checksum", "A5 5A 00 01 15 07 01 46 9D",
                  ask(21, Command::BankChecksum, BankRequest{Bank::Second}.encode())},
                 {"checksum told", "A5 5A 00 09 15 87 01 00 00 00 09 CB F4 39 26 3E F3",
                  say(21, Command::BankChecksum, BankState{Bank::Second, 9, kCheckCrc}.encode())},
                 {"commit", "A5 5A 00 06 16 08 00 01 CB F4 39 26 56 B2", ask(22, Command::Commit, commit)},
                 {"committed", "A5 5A 00 06 16 88 00 01 CB F4 39 26 FD 4B", say(22, Command::Commit, commit)},
                 {"commit refused", "A5 5A 00 02 16 FF 08 08 B1 6F",
                  encode({22, kNegative, Refusal{request(Command::Commit), ErrorCode::ChecksumDiffers}.encode()})},
                 {"close", "A5 5A 00 00 17 03 2E 47", ask(23, Command::CloseSession)},
                 {"closed", "A5 5A 00 00 17 83 BF CF", say(23, Command::CloseSession)},
                 {"no session", "A5 5A 00 02 18 FF 05 04 A4 E5",
                  encode({24, kNegative, Refusal{request(Command::ReadBlock), ErrorCode::NoSession}.encode()})},
             }) {
            QCOMPARE(sent.toHex(' ').toUpper(), bytes);
            QVERIFY2(mDocument.contains(bytes), bytes.constData());
        }
    }

  private:
    QByteArray mDocument;
};

QTEST_GUILESS_MAIN(ProtocolExamplesTest)
#include "protocol_examples_test.moc"
