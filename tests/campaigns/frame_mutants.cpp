#include "frame_mutants.h"

#include <algorithm>

using Campaign::below;

QByteArray FrameMutants::randomBytes(qsizetype count, Campaign::Random &random) {
    QByteArray bytes(count, Qt::Uninitialized);
    std::ranges::generate(bytes, [&] { return char(random()); });
    return bytes;
}

QByteArray FrameMutants::damaged(const QByteArray &frame, Campaign::Random &random, Campaign::Tally &tally) {
    QByteArray bytes = frame;
    const qsizetype at = below(random, frame.size());
    switch (below(random, 6)) {
    case 0:
        tally.add(QStringLiteral("bit turned"));
        bytes[at] = char(bytes[at] ^ (1 << below(random, 8)));
        break;
    case 1:
        tally.add(QStringLiteral("bytes lost"));
        bytes.remove(at, 1 + below(random, 40));
        break;
    case 2:
        tally.add(QStringLiteral("bytes between"));
        bytes.insert(at, randomBytes(1 + below(random, 40), random));
        break;
    case 3:
        tally.add(QStringLiteral("cut off"));
        bytes.truncate(at);
        break;
    case 4:
        tally.add(QStringLiteral("another length"));
        bytes[2 + below(random, 2)] = char(random());
        break;
    default:
        tally.add(QStringLiteral("frame inside a frame"));
        bytes.insert(at, frame);
        break;
    }
    return bytes;
}

QByteArray FrameMutants::resealed(const WireFrame &frame, Campaign::Random &random, Campaign::Tally &tally) {
    WireFrame other = frame;
    tally.add(QStringLiteral("resealed"));
    const qsizetype kind = below(random, 5);
    const qsizetype at = below(random, other.payload.size());
    if (kind == 0)
        other.command = quint8(random());
    else if (kind == 1)
        other.payload = randomBytes(below(random, Wire::kMaxPayload + 1), random);
    else if (kind == 2 || other.payload.isEmpty())
        other.payload +=
            randomBytes(std::min<qsizetype>(1 + below(random, 8), Wire::kMaxPayload - other.payload.size()), random);
    else if (kind == 3)
        other.payload.truncate(at);
    else
        other.payload[at] = char(random());
    return Wire::encode(other);
}
