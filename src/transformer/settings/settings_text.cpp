#include "settings_text.h"

#include <QStringDecoder>

#include <algorithm>

namespace {
const QString kSection = QStringLiteral("[General]");

QString escaped(const QString &value) {
    QString text = value;
    text.replace(u'\\', QStringLiteral("\\\\"));
    text.replace(u'\n', QStringLiteral("\\n"));
    return text.replace(u'\r', QStringLiteral("\\r"));
}

QString unescaped(QStringView value) {
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != u'\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        ++i;
        text += value[i] == u'n' ? QChar(u'\n') : value[i] == u'r' ? QChar(u'\r') : value[i];
    }
    return text;
}

bool hasControlCharacter(QStringView line) {
    return std::ranges::any_of(line, [](QChar c) { return c.unicode() < 0x20 && c != u'\t'; });
}
} // namespace

namespace SettingsText {
QByteArray write(const Entries &entries) {
    QString text = kSection + u'\n';
    for (const auto &[key, value] : entries)
        text += key + u'=' + escaped(value) + u'\n';
    return text.toUtf8();
}

std::optional<Entries> read(const QByteArray &text) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString decoded = decoder(text);
    if (decoder.hasError())
        return std::nullopt;
    Entries entries;
    bool sectionSeen = false;
    for (QStringView line : QStringView(decoded).split(u'\n')) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (line.isEmpty() || line.startsWith(u';'))
            continue;
        if (!sectionSeen && line == kSection) {
            sectionSeen = true;
            continue;
        }
        const qsizetype equals = line.indexOf(u'=');
        if (!sectionSeen || equals < 1 || hasControlCharacter(line))
            return std::nullopt;
        const QString key = line.first(equals).trimmed().toString();
        if (key.isEmpty() || indexOf(entries, key) >= 0)
            return std::nullopt;
        entries.append({key, unescaped(line.sliced(equals + 1))});
    }
    return entries;
}

qsizetype indexOf(const Entries &entries, const QString &key) {
    const auto found = std::ranges::find_if(
        entries, [&key](const auto &entry) { return entry.first.compare(key, Qt::CaseInsensitive) == 0; });
    return found == entries.end() ? -1 : found - entries.begin();
}
} // namespace SettingsText
