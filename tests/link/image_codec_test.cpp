#include "changed_data.h"
#include "default_image.h"
#include "dictionary_loader.h"
#include "image_cell.h"
#include "image_decoder.h"
#include "image_encoder.h"
#include "record_editor.h"
#include "rows.h"
#include "run_time_error.h"

#include <QTest>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

class ImageCodecTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() { mDictionary = DictionaryLoader::loadCompiledIn(); }
    void factoryImageIsTheImageOfNewData() {
        for (int tier = 0; tier < 3; ++tier) {
            for (const int level : {1, 2}) {
                TierData fresh(*mDictionary, TierIndex(tier));
                const qint32 band = fresh.value(mDictionary->indexOf(u"Band_q7r"_s), {}).number();
                QCOMPARE(DefaultImage(*mDictionary, TierIndex(tier), band, level).build(),
                         ImageEncoder(fresh, level).encode());
            }
        }
    }

    void changedDataComesBackEqual() {
        for (int tier = 0; tier < 3; ++tier) {
            for (const int level : {1, 2}) {
                const ChangedData changed(*mDictionary, TierIndex(tier), level);
                QCOMPARE(changed.unchanged().join(u' '), QString());
                TierData data = changed.data();
                const QByteArray image = ImageEncoder(data, level).encode();
                ImageDecoder decoder(*mDictionary);
                const std::optional<TierData> decoded = decoder.decode(identity(TierIndex(tier), level), image);
                QVERIFY2(decoded, qPrintable(decoder.problem()));
                QCOMPARE(decoded->versionLevel(), level);
                const FieldIndex serial = mDictionary->indexOf(u"SerialNumber"_s);
                QCOMPARE(decoded->value(serial, {}).text(), u"12345678"_s);
                data.setValue(serial, {}, decoded->value(serial, {}));
                QVERIFY(decoded->sameValues(data));
                QVERIFY(!decoded->sameValues(TierData(*mDictionary, TierIndex(tier))));
            }
        }
    }

    void reservedBitsAreWrittenBackAsRead() {
        const TierData data = ChangedData(*mDictionary, TierIndex(2), 2).data();
        ImageEncoder encoder(data, 2);
        const QByteArray used = encoder.usedBits();
        const QByteArray plain = encoder.encode();
        const QByteArray over = encoder.encode(QByteArray(plain.size(), '\xFF'));
        qsizetype reserved = 0;
        for (qsizetype at = 0; at < plain.size(); ++at) {
            QCOMPARE(quint8(plain[at]) & quint8(~quint8(used[at])), 0);
            QCOMPARE(quint8(over[at]), quint8(quint8(plain[at]) | quint8(~quint8(used[at]))));
            reserved += quint8(used[at]) != 0xFF ? 1 : 0;
        }
        QVERIFY2(reserved > 100, "hardly any reserved byte: nothing proven");
        QVERIFY(ImageDecoder(*mDictionary).decode(identity(TierIndex(2), 2), over));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, (void)encoder.encode(QByteArray(10, 'x'))); // of another size
    }

    // One byte at a time set to extremes: the decoder must answer, and what it takes must survive another way to the
    // radio and back.
    void everyImageByteDecodesOrIsRefusedWithoutHarm() {
        const TierIndex tier(0);
        const TierData data = ChangedData(*mDictionary, tier, 2).data();
        ImageEncoder encoder(data, 2);
        const QByteArray image = encoder.encode();
        int refused = 0;
        int taken = 0;
        for (qsizetype at = 0; at < image.size(); at += 1 + at / 60) {
            QByteArray damaged = image;
            damaged[at] = char(~damaged[at]);
            const auto decoded = ImageDecoder(*mDictionary).decode(identity(tier, 2), damaged);
            ++(decoded ? taken : refused);
            if (!decoded)
                continue;
            const auto again =
                ImageDecoder(*mDictionary).decode(identity(tier, 2), ImageEncoder(*decoded, 2).encode(damaged));
            QVERIFY(again && again->sameValues(*decoded));
        }
        qInfo("%d refused, %d taken", refused, taken);
        QVERIFY(refused > 20 && taken > 20);
    }

    void damagedImageIsRefusedWithItsPlace() {
        using Damage = std::function<void(QByteArray &)>;
        const TierIndex tier(2);
        const StructureIndex channel = *mDictionary->structureByName(u"Channel"_s);
        const StructureIndex network = *mDictionary->structureByName(u"Network"_s);
        const qsizetype channelCount = mDictionary->layout().countOffset(tier, channel, 0);
        const qsizetype networkCount = mDictionary->layout().countOffset(tier, network, 0);
        const auto number = [](qsizetype at, int width, qint64 value) {
            return Damage([=](QByteArray &image) { QVERIFY(ImageCell::putNumber(image, at, width, value)); });
        };

        for (const auto &[damage, place] : Rows<Damage, QString>{
                 {"one byte short", Damage([](QByteArray &image) { image.chop(1); }), u"bytes"_s},
                 {"one byte long", Damage([](QByteArray &image) { image.append('x'); }), u"bytes"_s},
                 {"no channel", number(channelCount, 2, 0), u"Channel"_s},
                 {"one channel too many", number(channelCount, 2, 2001), u"Channel"_s},
                 {"network without its customer data", number(networkCount, 2, 2), u"CustomerData"_s},
                 {"channel number above its greatest", number(placeOf("ChannelID_q7r", {0, 1}, tier), 2, 10000),
                  u"ChannelID_q7r, record 1"_s},
                 {"channel number twice", number(placeOf("ChannelID_q7r", {0, 2}, tier), 2, 1), u"Channel, record 2"_s},
                 {"frequency off its raster", number(placeOf("RxFreq_q7r", {0, 1}, tier), 4, 160000001),
                  u"RxFreq_q7r, record 1"_s},
                 {"frequency of another band", number(placeOf("RxFreq_q7r", {0, 1}, tier), 4, 450000000),
                  u"RxFreq_q7r, record 1"_s},
                 {"channel of a network that is not there",
                  number(placeOf("ChannelNetworkId_q7r", {0, 1}, tier), 1, 77), u"ChannelNetworkId_q7r, record 1"_s},
             }) {
            TierData data(*mDictionary, tier);
            RecordEditor(data).insertRecord(channel, {0, 2});
            QByteArray image = ImageEncoder(data, 2).encode();
            ImageDecoder decoder(*mDictionary);
            QVERIFY2(decoder.decode(identity(TierIndex(2), 2), image), qPrintable(decoder.problem()));
            damage(image);
            QVERIFY(!decoder.decode(identity(TierIndex(2), 2), image));
            QVERIFY2(decoder.problem().contains(place), qPrintable(decoder.problem()));
        }
    }

  private:
    static RadioIdentity identity(TierIndex tier, int level) {
        RadioIdentity radio;
        radio.tier = quint8(tier.place());
        radio.band = 1;
        radio.databaseLevel = quint8(level);
        radio.serialNumber = 12345678;
        return radio;
    }
    qsizetype placeOf(const char *field, RecordAddress record, TierIndex tier) const {
        const FieldDefinition &definition = *mDictionary->find(QString::fromLatin1(field));
        return mDictionary->layout().recordOffset(tier, definition.structure, record) + definition.at->byte;
    }

    std::unique_ptr<const Dictionary> mDictionary;
};

QTEST_GUILESS_MAIN(ImageCodecTest)
#include "image_codec_test.moc"
