#pragma once

#include "campaign.h"
#include "wire_frame.h"

// What a bad line, or somebody who means harm, makes of a stream of frames.
namespace FrameMutants {
// Any bytes that are no longer the frame; the kind is added to the tally.
[[nodiscard]] QByteArray damaged(const QByteArray &frame, Campaign::Random &random, Campaign::Tally &tally);
// Another frame of a right CRC: payload, command or length differ, the sequence number stays.
[[nodiscard]] QByteArray resealed(const WireFrame &frame, Campaign::Random &random, Campaign::Tally &tally);
[[nodiscard]] QByteArray randomBytes(qsizetype count, Campaign::Random &random);
} // namespace FrameMutants
