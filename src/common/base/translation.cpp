#include "translation.h"

#include "value_text.h"

#include <functional>

namespace {
constexpr qsizetype kMaximumParameters = 21;
constexpr qint32 kEnglish = 1;
// Between the pieces of a parameter, between a piece's text and its parameters, and between those of a piece inside a
// piece. No shown text has them.
constexpr QChar kBetweenPieces(0x1d);
constexpr QChar kBetweenParts(0x1e);
constexpr QChar kBetweenInnerParts(0x1f);

// Length of the placeholder that starts at position, 0 if none does there; number gets its number.
qsizetype placeholderAt(const QString &text, qsizetype position, int &number) {
    qsizetype i = position + 1;
    while (i < text.size() && text[i].isDigit())
        ++i;
    const bool complete =
        i > position + 1 && i + 1 < text.size() && text[i] == u':' && (text[i + 1] == u'S' || text[i + 1] == u's');
    if (!complete)
        return 0;
    number = text.mid(position + 1, i - position - 1).toInt();
    return i + 2 - position;
}

QString filled(const QString &text, const QStringList &parameters) {
    QString result;
    for (qsizetype i = 0; i < text.size();) {
        int number = 0;
        const qsizetype length = text[i] == u'%' ? placeholderAt(text, i, number) : 0;
        if (length == 0) {
            result += text[i++];
            continue;
        }
        result += parameters.value(number);
        i += length;
    }
    return result;
}

using Translate = std::function<QString(const QString &)>;

// A text with parameters of its own in words, each translated.
QString ofParts(const QStringList &parts, const Translate &translate) {
    QStringList words;
    for (const QString &part : parts)
        words.append(part.contains(kBetweenInnerParts) ? ofParts(part.split(kBetweenInnerParts), translate)
                                                       : translate(part));
    const QString text = words.takeFirst();
    return words.isEmpty() ? text : filled(text, words);
}

QString ofParameter(const QString &parameter, const Translate &translate) {
    QString result;
    for (const QString &piece : parameter.split(kBetweenPieces))
        result += ofParts(piece.split(kBetweenParts), translate);
    return result;
}
} // namespace

QString Translation::NLSStr(const QString &text) const {
    return gLanguage <= kEnglish ? text : mDictionary.Translate(gLanguage, text);
}

void Translation::NLSArray(QStringList &texts) const {
    if (gLanguage <= kEnglish)
        return;
    for (QString &text : texts) {
        if (text != ValueText::undefined())
            text = NLSStr(text);
    }
}

QString Translation::NLSFmt(const QString &text, const QString &parameters) const {
    if (parameters.isEmpty() && gLanguage <= kEnglish)
        return text;
    QStringList parts = parameters.split(u'|').first(qMin(parameters.count(u'|') + 1, kMaximumParameters));
    for (QString &part : parts)
        part = ofParameter(part, [this](const QString &each) { return NLSStr(each); });
    return filled(NLSStr(text), parts);
}

QString Translation::Fill(const QString &text, const QStringList &parameters) {
    QStringList parts = parameters;
    for (QString &part : parts)
        part = ofParameter(part, [](const QString &each) { return each; });
    return filled(text, parts);
}

QString Translation::Piece(const QString &text, const QStringList &parameters) {
    QStringList inner = parameters;
    inner.replaceInStrings(QString(kBetweenParts), QString(kBetweenInnerParts));
    return (QStringList(text) + inner).join(kBetweenParts);
}

QString Translation::Pieces(const QStringList &pieces, const QString &separator) {
    return pieces.join(kBetweenPieces + separator + kBetweenPieces);
}
