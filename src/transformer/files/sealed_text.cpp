#include "sealed_text.h"

#include "sha256.h"

namespace {
constexpr QByteArrayView kLineStart = "\"sha256\": \"";
constexpr QByteArrayView kLineEnd = "\"}\n";
constexpr qsizetype kHexDigits = 64;
constexpr qsizetype kLineLength = kLineStart.size() + kHexDigits + kLineEnd.size();
} // namespace

namespace SealedText {
QByteArray seal(const QByteArray &open) {
    QByteArray text = open;
    text += kLineStart;
    text += Sha256::hex(open);
    text += kLineEnd;
    return text;
}

std::optional<QByteArray> statedHash(const QByteArray &text) {
    const QByteArrayView line = QByteArrayView(text).last(qMin(kLineLength, text.size()));
    const bool atLineStart = text.size() > kLineLength && text[text.size() - kLineLength - 1] == '\n';
    if (!atLineStart || !line.startsWith(kLineStart) || !line.endsWith(kLineEnd))
        return std::nullopt;
    return line.sliced(kLineStart.size(), kHexDigits).toByteArray();
}

bool isIntact(const QByteArray &text) {
    const std::optional<QByteArray> stated = statedHash(text);
    return stated && *stated == Sha256::hex(QByteArrayView(text).chopped(kLineLength));
}
} // namespace SealedText
