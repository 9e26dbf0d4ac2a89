#include "wire_frame.h"

#include "byte_fields.h"
#include "checksums.h"
#include "run_time_error.h"

QByteArray Wire::encode(const WireFrame &frame) {
    if (frame.payload.size() > kMaxPayload)
        throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("Wire"),
                           QStringLiteral("A payload of %1 bytes does not fit a frame").arg(frame.payload.size()));
    ByteWriter body;
    body.u16(quint16(frame.payload.size())).u8(frame.sequence).u8(frame.command).bytes(frame.payload);
    const quint16 crc = Checksums::crc16(body.data());
    ByteWriter whole;
    whole.u8(kStart1).u8(kStart2).bytes(body.data()).u16(crc);
    return whole.data();
}
