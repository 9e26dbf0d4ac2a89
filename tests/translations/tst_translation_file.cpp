#include "dictionary_loader.h"
#include "translation.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <array>
#include <map>
#include <vector>

namespace {
constexpr qsizetype kLongestLabel = 24; // columns: a Chinese character counts two
constexpr std::array kTranslated{2, 3, 4};

struct Row {
    int language = 0;
    QString text; // both as they stand in the file
    QString translation;
};

std::vector<Row> rowsOfTheFile() {
    QFile file(QStringLiteral(KX_TRANSLATION_FILE));
    std::vector<Row> rows;
    if (!file.open(QIODevice::ReadOnly))
        return rows;
    int language = 0;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QStringList parts = line.split(u'\t');
        if (line.startsWith(u'[') && parts.size() == 1)
            language = line.mid(1, line.size() - 2).toInt();
        if (parts.size() > 1)
            rows.push_back({language, parts.first(), parts.size() == 2 ? parts.last() : QString()});
    }
    return rows;
}

QStringList placeholdersOf(const QString &text) {
    static const QRegularExpression placeholder(QStringLiteral("%\\d+(?::[sS])?"));
    QStringList found;
    for (const QRegularExpressionMatch &match : placeholder.globalMatch(text))
        found << match.captured().toUpper();
    found.sort();
    found.removeDuplicates();
    return found;
}

qsizetype columnsOf(const QString &text) {
    return text.size() + std::ranges::count_if(text, [](QChar c) { return c.unicode() >= 0x2e80; });
}

bool hasAccessKey(const QString &text) {
    static const QRegularExpression mark(QStringLiteral("&[^&\\s]"));
    return QString(text).remove(QStringLiteral("&&")).contains(mark);
}
} // namespace

// The translation file of the source tree against itself and against the dictionary. That each text has its row is told
// by tools/translations.py.
class TranslationFileTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase();
    void everyRowIsSound();
    void itemsOfAListStayApart();
    void formsOfTheTreeStayApart();
    void labelsFitTheirPlace();

  private:
    // Complains of two different texts that become the same.
    void checkApart(const QStringList &texts, const QString &where);
    [[nodiscard]] static Translation in(int language);

    std::vector<Row> mRows;
    std::map<int, Translation> mLanguages;
    std::unique_ptr<const Dictionary> mDictionary;
};

void TranslationFileTest::initTestCase() {
    mRows = rowsOfTheFile();
    mDictionary = DictionaryLoader::loadCompiledIn();
    const QString label = QStringLiteral("Economy Timer");
    QSet<QString> shown{label};
    for (const int language : kTranslated) {
        const QString translated = mLanguages.emplace(language, in(language)).first->second.NLSStr(label);
        QVERIFY2(!shown.contains(translated), qPrintable(translated));
        shown << translated;
    }
}

Translation TranslationFileTest::in(int language) {
    Translation translation;
    translation.gLanguage = language;
    translation.Dictionary().Load(QStringLiteral(KX_TRANSLATION_FILE));
    return translation;
}

void TranslationFileTest::everyRowIsSound() {
    QSet<QString> seen;
    for (const Row &row : mRows) {
        const QString key = QString::number(row.language) + row.text;
        QVERIFY2(!seen.contains(key), qPrintable(row.text));
        seen << key;
        QVERIFY2(!row.translation.trimmed().isEmpty(), qPrintable(row.text));
        QVERIFY2(placeholdersOf(row.text) == placeholdersOf(row.translation), qPrintable(row.translation));
        QVERIFY2(hasAccessKey(row.text) == hasAccessKey(row.translation), qPrintable(row.translation));
        QVERIFY2(row.text.startsWith(u' ') == row.translation.startsWith(u' '), qPrintable(row.translation));
        QVERIFY2(row.text.endsWith(u' ') == row.translation.endsWith(u' '), qPrintable(row.translation));
    }
}

void TranslationFileTest::checkApart(const QStringList &texts, const QString &where) {
    for (const auto &[language, translation] : mLanguages) {
        QHash<QString, QString> sources;
        for (const QString &text : texts) {
            const QString shown = translation.NLSStr(text);
            const QString other = sources.value(shown, text);
            QVERIFY2(other == text, qPrintable(where + QStringLiteral(": ") + other + QStringLiteral(", ") + text));
            sources.insert(shown, text);
        }
    }
}

void TranslationFileTest::itemsOfAListStayApart() {
    for (const FieldDefinition &field : mDictionary->fields()) {
        QStringList texts;
        for (const ListItem &item : field.items)
            texts << item.text;
        checkApart(texts, field.id);
    }
}

void TranslationFileTest::formsOfTheTreeStayApart() {
    for (int tier = 0; tier < int(mDictionary->tiers().size()); ++tier) {
        QStringList captions;
        for (const TreeEntry &entry : mDictionary->tree(TierIndex(tier)))
            captions << entry.caption;
        QVERIFY(!captions.isEmpty());
        checkApart(captions, QStringLiteral("tree"));
    }
}

void TranslationFileTest::labelsFitTheirPlace() {
    for (const auto &[language, translation] : mLanguages) {
        for (const FieldDefinition &field : mDictionary->fields()) {
            const QString label = translation.NLSStr(field.label);
            QVERIFY2(columnsOf(label) <= kLongestLabel, qPrintable(label));
        }
    }
}

QTEST_GUILESS_MAIN(TranslationFileTest)
#include "tst_translation_file.moc"
