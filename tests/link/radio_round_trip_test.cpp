#include "changed_data.h"
#include "image_decoder.h"
#include "image_encoder.h"
#include "link_doubles.h"
#include "sim_process.h"

#include <QTest>

namespace {
// Programs the data of a ChangedData, with the radio's reserved bits.
class DataContent final : public ProgramContent {
  public:
    explicit DataContent(const TierData &data) : mData(data) {}

    QString storeRestorePoint(const RadioIdentity & /*identity*/, const QByteArray & /*present*/) override {
        return {};
    }
    QByteArray imageOver(const RadioIdentity &identity, const QByteArray &present) override {
        return ImageEncoder(mData, identity.databaseLevel).encode(present);
    }
    QString runStarts(const RadioIdentity & /*identity*/, quint32 /*oldContent*/, quint32 /*newContent*/) override {
        return {};
    }

  private:
    const TierData &mData;
};
} // namespace

// Data in which everything differs from its default goes into a radio and comes back.
class RadioRoundTripTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyValueComesBackFromTheRadio_data();
    void everyValueComesBackFromTheRadio();
};

void RadioRoundTripTest::everyValueComesBackFromTheRadio_data() {
    QTest::addColumn<QString>("tier");
    QTest::addColumn<int>("version");
    for (const char *tier : {"Basic", "Standard", "Advanced"})
        for (const int version : {1, 2})
            QTest::addRow("%s, version %d", tier, version) << QString::fromLatin1(tier) << version;
}

void RadioRoundTripTest::everyValueComesBackFromTheRadio() {
    QFETCH(QString, tier);
    QFETCH(int, version);
    const QString serial = QStringLiteral("12345678");
    SimProcess sim;
    QVERIFY(sim.start({QStringLiteral("--tier"), tier, QStringLiteral("--version"), QString::number(version),
                       QStringLiteral("--serial"), serial}));
    LinkBench bench;
    const TierIndex index = bench.dictionary->tierByKey(tier).value();
    TierData data = ChangedData(*bench.dictionary, index, version).data();
    const FieldIndex band = bench.dictionary->indexOf(QStringLiteral("Band_q7r"));
    DataContent content(data);
    const RadioReport programmed = bench.link.program(
        sim.link(), {.tier = quint8(index.place()), .band = 1, .databaseLevel = quint8(version)}, content);
    QCOMPARE(programmed.fault, LinkFault::None);
    const RadioReport read = bench.link.read(sim.link());
    QCOMPARE(read.fault, LinkFault::None);
    ImageDecoder decoder(*bench.dictionary);
    const std::optional<TierData> back = decoder.decode(*read.identity, read.image);
    QVERIFY2(back, qPrintable(decoder.problem()));
    // Facts of the radio are its own.
    const FieldIndex number = bench.dictionary->indexOf(QStringLiteral("SerialNumber"));
    QCOMPARE(back->value(number, {}).text(), serial);
    QCOMPARE(back->value(band, {}).number(), 1);
    for (const FieldIndex fact : {number, band})
        data.setValue(fact, {}, back->value(fact, {}));
    QVERIFY(back->sameValues(data));
}

QTEST_GUILESS_MAIN(RadioRoundTripTest)
#include "radio_round_trip_test.moc"
