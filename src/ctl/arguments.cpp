#include "arguments.h"

#include <QRegularExpression>

namespace {
bool isOption(const QString &word) { return word.size() > 1 && word.startsWith(u'-'); }
} // namespace

Arguments::Arguments(const QStringList &words, const QStringList &valued, const QStringList &flags) {
    bool optionsEnded = false;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString &word = words[i];
        if (optionsEnded || !isOption(word)) {
            mRest.append(word);
            continue;
        }
        if (word == QStringLiteral("--")) {
            optionsEnded = true;
            continue;
        }
        const qsizetype equals = word.startsWith(QStringLiteral("--")) ? word.indexOf(u'=') : -1;
        const QString name = equals < 0 ? word : word.first(equals);
        if (mOptions.contains(name))
            throw UsageError(QStringLiteral("option %1 is given twice").arg(name));
        if (flags.contains(name) && equals < 0)
            mOptions.insert(name, QString());
        else if (!valued.contains(name))
            throw UsageError(QStringLiteral("unknown option %1").arg(word));
        else if (equals >= 0)
            mOptions.insert(name, word.sliced(equals + 1));
        else if (i + 1 < words.size())
            mOptions.insert(name, words[++i]);
        else
            throw UsageError(QStringLiteral("option %1 needs a value").arg(name));
    }
}

Address Address::parse(const QString &text) {
    static const QRegularExpression kForm(
        QRegularExpression::anchoredPattern(QStringLiteral("([^()=.\\s]+)(?:\\((?:(\\d{1,6})\\.)?(\\d{1,6})\\))?")));
    const QRegularExpressionMatch match = kForm.match(text);
    const bool zero = match.hasMatch() && ((!match.captured(2).isEmpty() && match.captured(2).toInt() == 0) ||
                                           (!match.captured(3).isEmpty() && match.captured(3).toInt() == 0));
    if (!match.hasMatch() || zero)
        throw UsageError(
            QStringLiteral("%1 is no address; write UIID, UIID(N) or UIID(P.N), counted from 1").arg(text));
    return {.uiid = match.captured(1), .record = match.captured(3).toInt(), .parent = match.captured(2).toInt()};
}

Assignment Assignment::parse(const QString &text) {
    const qsizetype equals = text.indexOf(u'=');
    if (equals < 0)
        throw UsageError(QStringLiteral("%1 has no \"=\"").arg(text));
    const bool stored = text.sliced(equals + 1).startsWith(u'#');
    return {.address = Address::parse(text.first(equals)),
            .value = text.sliced(equals + (stored ? 2 : 1)),
            .stored = stored};
}
