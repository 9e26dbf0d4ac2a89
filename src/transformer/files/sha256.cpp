#include "sha256.h"

#include <QtEndian>

#include <array>
#include <bit>

namespace {
constexpr std::size_t kBlockBytes = 64;
constexpr std::size_t kRounds = 64;
constexpr std::size_t kMessageWords = 16;

// Fractional parts of the cube roots of the first 64 primes.
constexpr std::array<quint32, kRounds> kRoundConstants = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

using State = std::array<quint32, 8>;

// One round; the callers rotate the names of the eight words instead of their values.
void round(quint32 a, quint32 b, quint32 c, quint32 &d, quint32 e, quint32 f, quint32 g, quint32 &h, quint32 word) {
    h += (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) + ((e & f) ^ (~e & g)) + word;
    d += h;
    h += (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
}

void addBlock(State &state, const char *block) {
    std::array<quint32, kRounds> words{};
    for (std::size_t i = 0; i < kMessageWords; ++i)
        words[i] = qFromBigEndian<quint32>(block + 4 * i);
    for (std::size_t i = kMessageWords; i < kRounds; ++i) {
        const quint32 early = words[i - 15];
        const quint32 late = words[i - 2];
        words[i] = words[i - 16] + (std::rotr(early, 7) ^ std::rotr(early, 18) ^ (early >> 3)) + words[i - 7] +
                   (std::rotr(late, 17) ^ std::rotr(late, 19) ^ (late >> 10));
    }
    auto [a, b, c, d, e, f, g, h] = state;
    for (std::size_t i = 0; i < kRounds; i += 8) {
        const quint32 *word = words.data() + i;
        const quint32 *constant = kRoundConstants.data() + i;
        round(a, b, c, d, e, f, g, h, word[0] + constant[0]);
        round(h, a, b, c, d, e, f, g, word[1] + constant[1]);
        round(g, h, a, b, c, d, e, f, word[2] + constant[2]);
        round(f, g, h, a, b, c, d, e, word[3] + constant[3]);
        round(e, f, g, h, a, b, c, d, word[4] + constant[4]);
        round(d, e, f, g, h, a, b, c, word[5] + constant[5]);
        round(c, d, e, f, g, h, a, b, word[6] + constant[6]);
        round(b, c, d, e, f, g, h, a, word[7] + constant[7]);
    }
    const State added = {a, b, c, d, e, f, g, h};
    for (std::size_t i = 0; i < state.size(); ++i)
        state[i] += added[i];
}

// What stands behind the last whole block: the rest, a one bit, zeros, and the length in bits.
QByteArray ending(QByteArrayView rest, quint64 bytes) {
    QByteArray end = rest.toByteArray() + '\x80';
    while (std::size_t(end.size()) % kBlockBytes != kBlockBytes - sizeof(quint64))
        end += '\0';
    std::array<char, sizeof(quint64)> bits{};
    qToBigEndian<quint64>(bytes * 8, bits.data());
    return end.append(bits.data(), qsizetype(bits.size()));
}
} // namespace

QByteArray Sha256::hex(QByteArrayView bytes) {
    // Fractional parts of the square roots of the first eight primes.
    State state = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a, 0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    const qsizetype whole = bytes.size() - bytes.size() % qsizetype(kBlockBytes);
    const QByteArray end = ending(bytes.sliced(whole), quint64(bytes.size()));
    for (const QByteArrayView part : {bytes.first(whole), QByteArrayView(end)}) {
        for (qsizetype at = 0; at < part.size(); at += qsizetype(kBlockBytes))
            addBlock(state, part.data() + at);
    }
    QByteArray digits;
    for (const quint32 word : state)
        digits += QByteArray::number(word, 16).rightJustified(8, '0');
    return digits;
}
