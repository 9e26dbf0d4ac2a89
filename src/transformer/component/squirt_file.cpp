#include "squirt_file.h"

#include "checksums.h"
#include "file_kind.h"
#include "file_problem.h"
#include "image_decoder.h"
#include "image_encoder.h"
#include "sealed_text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
constexpr int kFormatVersion = 1;
const QString kBandField = QStringLiteral("Band_q7r");

class Reader {
  public:
    Reader(const Dictionary &dictionary, const QString &path) : mDictionary(dictionary), mPath(path) {}

    TierData read(const QByteArray &text) {
        if (FileKinds::of(text) != FileKind::Squirt)
            throw FileProblem(QStringLiteral("The file %0:S is not a KX4600 squirt file."), {mPath});
        if (!SealedText::isIntact(text))
            damaged(QStringLiteral("its content does not fit its checksum"));
        const QJsonObject top = QJsonDocument::fromJson(text).object();
        const QJsonObject header = top.value(QStringLiteral("header")).toObject();
        const RadioIdentity identity = identityOf(header);
        const QByteArray image = imageOf(top.value(QStringLiteral("image")).toArray());
        if (qint64(Checksums::crc32(image)) != header.value(QStringLiteral("crc32")).toInteger(-1))
            damaged(QStringLiteral("its image does not fit its checksum"));
        ImageDecoder decoder(mDictionary);
        const std::optional<TierData> data = decoder.decode(identity, image);
        if (!data)
            damaged(decoder.problem());
        return *data;
    }

  private:
    [[nodiscard]] RadioIdentity identityOf(const QJsonObject &header) const {
        const std::optional<TierIndex> tier = mDictionary.tierByKey(header.value(QStringLiteral("tier")).toString());
        const QString version = header.value(QStringLiteral("databaseVersion")).toString();
        const std::optional<qint32> level = mDictionary.versionLevelByName(version);
        const int band = header.value(QStringLiteral("band")).toInt(-1);
        const bool sameFormat = header.value(QStringLiteral("formatVersion")).toInt() == kFormatVersion &&
                                header.value(QStringLiteral("layout")).toInt() == mDictionary.layout().number();
        if (!sameFormat || !level)
            throw FileProblem(QStringLiteral("The squirt file %0:S (database version %1:S) was made by a version of "
                                             "this program that this one does not understand."),
                              {mPath, version});
        if (!tier || mDictionary.field(mDictionary.indexOf(kBandField)).itemByValue(band) == nullptr)
            damaged(QStringLiteral("its header does not name a known radio"));
        RadioIdentity identity;
        identity.tier = quint8(tier->place());
        identity.band = quint8(band);
        identity.databaseLevel = quint8(*level);
        identity.layout = quint16(mDictionary.layout().number());
        return identity;
    }
    [[nodiscard]] static QByteArray imageOf(const QJsonArray &lines) {
        QByteArray hex;
        for (const QJsonValue line : lines)
            hex += line.toString().toLatin1();
        return QByteArray::fromHex(hex);
    }
    [[noreturn]] void damaged(const QString &reason) const {
        throw FileProblem(QStringLiteral("The squirt file %0:S is damaged: %1:S."), {mPath, reason});
    }

    const Dictionary &mDictionary;
    const QString &mPath;
};
} // namespace

namespace SquirtFile {
TierData read(const Dictionary &dictionary, const QString &path, const QByteArray &text) {
    return Reader(dictionary, path).read(text);
}

QByteArray write(const TierData &data, const QString &applicationVersion) {
    constexpr qsizetype kBytesPerLine = 32;
    const Dictionary &dictionary = data.dictionary();
    const QByteArray image = ImageEncoder(data, data.versionLevel()).encode();
    const QJsonObject header{{QStringLiteral("formatVersion"), kFormatVersion},
                             {QStringLiteral("tier"), dictionary.tier(data.tier()).key},
                             {QStringLiteral("radioModel"), dictionary.tier(data.tier()).caption},
                             {QStringLiteral("band"), data.value(dictionary.indexOf(kBandField), {}).number()},
                             {QStringLiteral("databaseVersion"), dictionary.versionName(data.versionLevel())},
                             {QStringLiteral("applicationVersion"), applicationVersion},
                             {QStringLiteral("layout"), dictionary.layout().number()},
                             {QStringLiteral("imageBytes"), image.size()},
                             {QStringLiteral("crc32"), qint64(Checksums::crc32(image))}};
    QByteArray text = FileKinds::kSquirtStart.toByteArray();
    text += "\"header\": " + QJsonDocument(header).toJson(QJsonDocument::Compact) + ",\n\"image\": [\n";
    for (qsizetype start = 0; start < image.size(); start += kBytesPerLine) {
        const bool isLast = start + kBytesPerLine >= image.size();
        text += '"' + image.mid(start, kBytesPerLine).toHex() + (isLast ? "\"\n" : "\",\n");
    }
    return SealedText::seal(text + "],\n");
}
} // namespace SquirtFile
