#include "translation_dictionary.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {
const QString kNumber = QStringLiteral("%1");

QString unescaped(QStringView text) {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\\' || i + 1 == text.size()) {
            result += text[i];
            continue;
        }
        const QChar next = text[++i];
        result += next == u'n' ? QChar(u'\n') : next == u't' ? QChar(u'\t') : next;
    }
    return result;
}
} // namespace

QString TranslationDictionary::StandardFile() {
    const QString name = QStringLiteral("KX4600.mld");
    const QString folder = QCoreApplication::applicationDirPath();
    const QString beside = folder + QStringLiteral("/") + name;
    return QFileInfo::exists(beside) ? beside : folder + QStringLiteral("/../share/kx4600/") + name;
}

void TranslationDictionary::Load(const QString &fileName) {
    QFile file(fileName);
    LoadText(file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString());
}

void TranslationDictionary::LoadText(const QString &text) {
    mTables.clear();
    mOpen = true;
    int language = 0;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        const QStringView trimmed = line.endsWith(u'\r') ? line.chopped(1) : line;
        if (trimmed.startsWith(u'[') && trimmed.endsWith(u']')) {
            language = trimmed.mid(1, trimmed.size() - 2).toInt();
            continue;
        }
        const qsizetype tab = trimmed.indexOf(u'\t');
        if (tab > 0)
            mTables[language].insert(unescaped(trimmed.left(tab)), unescaped(trimmed.mid(tab + 1)));
    }
}

QString TranslationDictionary::Translate(int language, const QString &text) const {
    const auto table = mTables.find(language);
    if (table == mTables.end())
        return text;
    const auto row = table->second.constFind(text);
    if (row != table->second.constEnd())
        return *row;
    const qsizetype number = text.lastIndexOf(u' ') + 1;
    const bool isNumbered =
        number > 0 && number < text.size() &&
        std::all_of(text.cbegin() + number, text.cend(), [](QChar letter) { return letter.isDigit(); });
    return isNumbered ? table->second.value(text.first(number) + kNumber, text).replace(kNumber, text.sliced(number))
                      : text;
}
