#include "frame_decoder.h"
#include "radio_memory.h"
#include "simulated_radio.h"
#include "wire_messages.h"

#include <cstdlib>

using namespace Wire;

namespace {
constexpr int kImageSize = 5000;

RadioIdentity identity() {
    RadioIdentity radio;
    radio.layout = 1;
    radio.maxBlock = 1024;
    radio.imageSize = kImageSize;
    return radio;
}

// The answer is nothing or one whole frame.
void requireWhole(const QByteArray &answer) {
    FrameDecoder decoder;
    decoder.feed(answer);
    if (!answer.isEmpty() && (!decoder.next() || decoder.inFrame()))
        std::abort();
}
} // namespace

// The bytes as they stand into both ends' decoders, and as the payload of a right frame into a radio with an open
// session and into the programmer's messages.
extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    RadioMemory memory{1, 2, QByteArray(kImageSize, 'o')};
    SimulatedRadio radio{identity(), memory};
    SimulatedRadio::Time now{0};
    requireWhole(radio.receive(encode({1, request(Command::OpenSession), OpenSessionRequest{}.encode()}), now));
    requireWhole(radio.receive(bytes.first(bytes.size() / 2), ++now));
    requireWhole(radio.receive(bytes.sliced(bytes.size() / 2), ++now));
    requireWhole(radio.elapse(now += std::chrono::milliseconds(150)));
    if (bytes.isEmpty() || bytes.size() > kMaxPayload)
        return 0;
    const QByteArray payload = bytes.sliced(1);
    requireWhole(radio.receive(encode({2, quint8(bytes[0]), payload}), ++now));
    (void)RadioIdentity::decode(payload);
    (void)SessionOpened::decode(payload);
    (void)Block::decode(payload);
    (void)BlockWritten::decode(payload);
    (void)BankState::decode(payload);
    (void)Refusal::decode(payload);
    if (memory.active().size() != kImageSize || memory.second().size() != kImageSize)
        std::abort();
    return 0;
}
