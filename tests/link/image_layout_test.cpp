#include "changed_data.h"
#include "data_file_reader.h"
#include "data_file_writer.h"
#include "dictionary_loader.h"
#include "image_encoder.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QString kData = u".k4p"_s;
const QString kHex = u".hex"_s;
} // namespace

// The memory map may not change without a new layout number: for each tier a data file and the image that it gives are
// kept in images/. With KX_UPDATE_IMAGES set they are written anew, where the layout number has changed or the image is
// missing.
class ImageLayoutTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() { mDictionary = DictionaryLoader::loadCompiledIn(); }
    void keptDataGivesTheKeptImage() {
        for (qint32 tier = 0; tier < qint32(mDictionary->tiers().size()); ++tier) {
            const QString base = QStringLiteral(KX_IMAGES "/") + mDictionary->tier(TierIndex(tier)).key;
            if (qEnvironmentVariableIsSet("KX_UPDATE_IMAGES"))
                update(TierIndex(tier), base);
            const DataDocument document = DataFileReader(*mDictionary, base + kData).read(contentOf(base + kData));
            const TierData &data = document.data.tier(TierIndex(tier));
            const QList<QByteArray> kept = contentOf(base + kHex).split('\n');
            const QList<QByteArray> made = hexOf(ImageEncoder(data, data.versionLevel()).encode()).split('\n');
            const char *advice =
                "the memory map has changed: give it a new layout number in structures.json, then write the "
                "images with KX_UPDATE_IMAGES";
            for (qsizetype line = 0; line < qMax(kept.size(), made.size()); ++line)
                QVERIFY2(kept.value(line) == made.value(line),
                         qPrintable(u"%1\nkept %2\nmade %3"_s.arg(QLatin1StringView(advice),
                                                                  QLatin1StringView(kept.value(line)),
                                                                  QLatin1StringView(made.value(line)))));
        }
    }

  private:
    static constexpr qsizetype kBytesPerLine = 32;
    // Lines of zeros are left out.
    [[nodiscard]] QByteArray hexOf(const QByteArray &image) const {
        QByteArray text = u"layout %1, %2 bytes\n"_s.arg(mDictionary->layout().number()).arg(image.size()).toLatin1();
        for (qsizetype at = 0; at < image.size(); at += kBytesPerLine) {
            const QByteArray line = image.mid(at, kBytesPerLine);
            if (line.count('\0') < line.size())
                text += QByteArray::number(at, 16).rightJustified(6, '0') + ' ' + line.toHex() + '\n';
        }
        return text;
    }

    static QByteArray contentOf(const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void write(const QString &path, const QByteArray &content) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    // A kept image of the present layout number is never replaced: that is what the number stands for.
    void update(TierIndex tier, const QString &base) const {
        const QByteArray present = "layout " + QByteArray::number(mDictionary->layout().number()) + ',';
        if (contentOf(base + kHex).startsWith(present))
            return;
        DataDocument document(*mDictionary);
        document.data.replace(ChangedData(*mDictionary, tier, mDictionary->newestLevel()).data());
        document.data.setCurrentTier(tier);
        const DataFileWriter writer(document);
        write(base + kData, writer.write(writer.header(u"1.00"_s, u"Every field changed"_s)));
        write(base + kHex, hexOf(ImageEncoder(document.data.current(), mDictionary->newestLevel()).encode()));
    }

    std::unique_ptr<const Dictionary> mDictionary;
};

QTEST_GUILESS_MAIN(ImageLayoutTest)
#include "image_layout_test.moc"
