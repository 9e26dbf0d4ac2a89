#include "changed_data.h"
#include "data_file_reader.h"
#include "data_file_writer.h"
#include "dictionary_loader.h"
#include "image_encoder.h"

#include <QFile>
#include <QTest>

namespace {
const QString kData = QStringLiteral(".k4p");
const QString kHex = QStringLiteral(".hex");
} // namespace

// The memory map may not change without a new layout number: for each tier a data file and the image that it gives are
// kept in images/. With KX_UPDATE_IMAGES set they are written anew, where the layout number has changed or the image is
// missing.
class ImageLayoutTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() { mDictionary = DictionaryLoader::loadCompiledIn(); }
    void keptDataGivesTheKeptImage_data();
    void keptDataGivesTheKeptImage();

  private:
    static constexpr qsizetype kBytesPerLine = 32;
    [[nodiscard]] QByteArray hexOf(const QByteArray &image) const;
    static QByteArray contentOf(const QString &path);
    static void write(const QString &path, const QByteArray &content);
    void update(TierIndex tier, const QString &base) const;

    std::unique_ptr<const Dictionary> mDictionary;
};

// Lines of zeros are left out.
QByteArray ImageLayoutTest::hexOf(const QByteArray &image) const {
    QByteArray text =
        QStringLiteral("layout %1, %2 bytes\n").arg(mDictionary->layout().number()).arg(image.size()).toLatin1();
    for (qsizetype at = 0; at < image.size(); at += kBytesPerLine) {
        const QByteArray line = image.mid(at, kBytesPerLine);
        if (line.count('\0') < line.size())
            text += QByteArray::number(at, 16).rightJustified(6, '0') + ' ' + line.toHex() + '\n';
    }
    return text;
}

QByteArray ImageLayoutTest::contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void ImageLayoutTest::write(const QString &path, const QByteArray &content) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

// A kept image of the present layout number is never replaced: that is what the number stands for.
void ImageLayoutTest::update(TierIndex tier, const QString &base) const {
    const QByteArray present = "layout " + QByteArray::number(mDictionary->layout().number()) + ',';
    if (contentOf(base + kHex).startsWith(present))
        return;
    DataDocument document(*mDictionary);
    document.data.replace(ChangedData(*mDictionary, tier, mDictionary->newestLevel()).data());
    document.data.setCurrentTier(tier);
    const DataFileWriter writer(document);
    write(base + kData, writer.write(writer.header(QStringLiteral("1.00"), QStringLiteral("Every field changed"))));
    write(base + kHex, hexOf(ImageEncoder(document.data.current(), mDictionary->newestLevel()).encode()));
}

void ImageLayoutTest::keptDataGivesTheKeptImage_data() {
    QTest::addColumn<int>("tier");
    for (qint32 tier = 0; tier < qint32(mDictionary->tiers().size()); ++tier)
        QTest::newRow(mDictionary->tier(TierIndex(tier)).key.toLatin1().constData()) << tier;
}

void ImageLayoutTest::keptDataGivesTheKeptImage() {
    QFETCH(int, tier);
    const QString base = QStringLiteral(KX_IMAGES "/") + mDictionary->tier(TierIndex(tier)).key;
    if (qEnvironmentVariableIsSet("KX_UPDATE_IMAGES"))
        update(TierIndex(tier), base);
    const DataDocument document = DataFileReader(*mDictionary, base + kData).read(contentOf(base + kData));
    const TierData &data = document.data.tier(TierIndex(tier));
    const QList<QByteArray> kept = contentOf(base + kHex).split('\n');
    const QList<QByteArray> made = hexOf(ImageEncoder(data, data.versionLevel()).encode()).split('\n');
    const char *advice = "the memory map has changed: give it a new layout number in structures.json, then write the "
                         "images with KX_UPDATE_IMAGES";
    for (qsizetype line = 0; line < qMax(kept.size(), made.size()); ++line)
        QVERIFY2(kept.value(line) == made.value(line),
                 qPrintable(QStringLiteral("%1\nkept %2\nmade %3")
                                .arg(QLatin1StringView(advice), QLatin1StringView(kept.value(line)),
                                     QLatin1StringView(made.value(line)))));
}

QTEST_GUILESS_MAIN(ImageLayoutTest)
#include "image_layout_test.moc"
