#include "rows.h"
#include "translation.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_Translation : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void placeholders() {
        for (const auto &[text, parameters, filled] : Rows<QString, QString, QString>{
                 {"in order", u"%0:S to %1:S"_s, u"a|b"_s, u"a to b"_s},
                 {"lower case", u"%0:s setting"_s, u"Tone"_s, u"Tone setting"_s},
                 {"twice and out of order", u"%1:S%0:S%1:S"_s, u"a|b"_s, u"bab"_s},
                 {"no part for it", u"<%2:S>"_s, u"a|b"_s, u"<>"_s},
                 {"empty part", u"<%0:S>"_s, u"|b"_s, u"<>"_s},
                 {"more parts than placeholders", u"%0:S"_s, u"a|b|c"_s, u"a"_s},
                 {"two digits", u"%10:S"_s, u"0|1|2|3|4|5|6|7|8|9|ten"_s, u"ten"_s},
                 {"a placeholder in a part is text", u"%0:S %1:S"_s, u"%1:S|b"_s, u"%1:S b"_s},
                 {"percent sign", u"100 % of %0:S"_s, u"x"_s, u"100 % of x"_s},
                 {"not complete", u"%0: %S %0S %:S %0"_s, u"x"_s, u"%0: %S %0S %:S %0"_s},
                 {"at the end of the text", u"%0:"_s, u"x"_s, u"%0:"_s},
                 {"English without parameters stays", u"%0:S"_s, {}, u"%0:S"_s},
             }) {
            Translation translation;
            translation.gLanguage = 1;
            QCOMPARE(translation.NLSFmt(text, parameters), filled);
        }
    }

    void parametersAreTranslatedFirst() {
        Translation translation;
        translation.Dictionary().LoadText(u"[3]\ncopy the \tcopier \n%0:S%1:S\t%1:S %0:S!\n"_s);
        translation.gLanguage = 3;
        QCOMPARE(translation.NLSFmt(u"%0:S%1:S"_s, u"copy the |Tone"_s), u"Tone copier !"_s);
        // So are the texts inside a parameter, be it one text with parameters of its own or a list of them.
        translation.Dictionary().LoadText(
            u"[3]\nat least %0:S %1:S\tmindestens %0:S %1:S\ncycles\tZyklen\nNo\tNein\n"_s);
        const QString limit = Translation::Piece(u"at least %0:S %1:S"_s, {u"5"_s, u"cycles"_s});
        QCOMPARE(translation.NLSFmt(u"<%0:S>"_s, limit), u"<mindestens 5 Zyklen>"_s);
        const QString list = Translation::Pieces({limit, u"No"_s, u"%0:S"_s}, u", "_s);
        QCOMPARE(translation.NLSFmt(u"%0:S"_s, list), u"mindestens 5 Zyklen, Nein, %0:S"_s);
        QCOMPARE(Translation::Fill(u"%0:S"_s, {list}), u"at least 5 cycles, No, %0:S"_s);
        const QString inner = Translation::Piece(u"<%0:S>"_s, {limit});
        QCOMPARE(translation.NLSFmt(u"%0:S"_s, Translation::Pieces({inner, u"No"_s}, u" "_s)),
                 u"<mindestens 5 Zyklen> Nein"_s);
    }

    void partsBeyondTheTwentyFirstAreDropped() {
        Translation translation;
        translation.gLanguage = 1;
        QStringList parts;
        for (int i = 0; i < 23; ++i)
            parts << u"p%1"_s.arg(i);
        QCOMPARE(translation.NLSFmt(u"%20:S,%21:S"_s, parts.join(u'|')), u"p20,"_s);
    }

    void englishIsNeverLookedUp() {
        Translation translation;
        translation.Dictionary().LoadText(u"[1]\nOff\twrong\n[2]\nOff\tAus\n"_s);
        QStringList texts;
        for (const qint32 language : {0, 1, 2, 4}) { // not set up, English, the table's, without a section
            translation.gLanguage = language;
            texts << translation.NLSStr(u"Off"_s);
        }
        QCOMPARE(texts.join(u' '), u"Off Off Aus Off"_s);
    }

    void undefinedIsNeverTranslated() {
        Translation translation;
        translation.Dictionary().LoadText(u"[2]\nUndefined\twrong\nOff\tAus\n"_s);
        translation.gLanguage = 2;
        QStringList texts{u"Off"_s, u"Undefined"_s, u"other"_s};
        translation.NLSArray(texts);
        QCOMPARE(texts, QStringList({u"Aus"_s, u"Undefined"_s, u"other"_s}));
    }

    void dictionaryLines() {
        for (const auto &[table, text, translation] : Rows<QString, QString, QString>{
                 {"plain", u"[2]\na\tb"_s, u"a"_s, u"b"_s},
                 {"other line ends", u"[2]\r\na\tb\r\n"_s, u"a"_s, u"b"_s},
                 {"escapes", u"[2]\nx\\ny\\\\z\tone\\ttwo"_s, u"x\ny\\z"_s, u"one\ttwo"_s},
                 {"line without a tab is passed over", u"[2]\na\na\tb"_s, u"a"_s, u"b"_s},
                 {"line without a source is passed over", u"[2]\n\tb"_s, {}, {}},
                 {"case counts", u"[2]\nA\tb"_s, u"a"_s, u"a"_s},
                 {"empty translation", u"[2]\na\t"_s, u"a"_s, {}},
                 {"one row for all numbers", u"[2]\nChannel %1\tCanal %1"_s, u"Channel 12"_s, u"Canal 12"_s},
                 {"a row of its own goes before", u"[2]\nTone 2\tb\nTone %1\tc %1"_s, u"Tone 2"_s, u"b"_s},
                 {"no number", u"[2]\nChannel %1\tCanal %1"_s, u"Channel 1a"_s, u"Channel 1a"_s},
                 {"section reopened", u"[2]\na\tb\n[3]\na\tx\n[2]\nc\td"_s, u"c"_s, u"d"_s},
             }) {
            TranslationDictionary dictionary;
            dictionary.LoadText(table);
            QCOMPARE(dictionary.Translate(2, text), translation);
        }
    }

    void aFileIsReadAsUtf8AndAMissingOneIsEmpty() {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"KX4600.mld"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[2]\nPower\tPuissance \xc3\xa9mise\n");
        file.close();
        TranslationDictionary dictionary;
        QVERIFY(!dictionary.IsOpen());
        dictionary.Load(file.fileName());
        QCOMPARE(dictionary.Translate(2, u"Power"_s), u"Puissance émise"_s);
        dictionary.Load(folder.filePath(u"absent.mld"_s));
        QVERIFY(dictionary.IsOpen());
        QCOMPARE(dictionary.Translate(2, u"Power"_s), u"Power"_s);
    }
};

QTEST_GUILESS_MAIN(tst_Translation)
#include "tst_translation.moc"
