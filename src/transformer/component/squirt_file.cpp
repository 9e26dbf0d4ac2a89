#include "squirt_file.h"

#include "checksums.h"
#include "file_kind.h"
#include "image_encoder.h"
#include "sealed_text.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace SquirtFile {
QByteArray write(const TierData &data, const QString &applicationVersion) {
    constexpr qsizetype kBytesPerLine = 32;
    const Dictionary &dictionary = data.dictionary();
    const QByteArray image = ImageEncoder(data, data.versionLevel()).encode();
    const QJsonObject header{{QStringLiteral("formatVersion"), 1},
                             {QStringLiteral("tier"), dictionary.tier(data.tier()).key},
                             {QStringLiteral("radioModel"), dictionary.tier(data.tier()).caption},
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
