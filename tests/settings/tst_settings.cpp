#include "settings_store.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class tst_settings : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void valueSurvivesRestart_data();
    void valueSurvivesRestart();
    void keysDifferingOnlyInCaseAreOneSetting();
    void damagedFileGivesDefaultsAndIsKept_data();
    void damagedFileGivesDefaultsAndIsKept();
    void secondDamageDoesNotOverwriteTheFirstCopy();
    void otherWindowsSettingsAreNotLost();
    void unwritableFolderIsReportedAndValueHolds();

  private:
    static QByteArray contentOf(const QString &name) {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
    }
};

void tst_settings::valueSurvivesRestart_data() {
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("integer") << QVariant(42) << "42";
    QTest::newRow("true is -1") << QVariant(true) << "-1";
    QTest::newRow("empty") << QVariant(QString()) << "";
    QTest::newRow("line break") << QVariant(QStringLiteral("a\r\nb")) << "a\r\nb";
    QTest::newRow("backslashes") << QVariant(QStringLiteral("C:\\new\\\\x")) << "C:\\new\\\\x";
    QTest::newRow("equals, bracket, semicolon") << QVariant(QStringLiteral(";a=[b]")) << ";a=[b]";
    QTest::newRow("blanks at the ends") << QVariant(QStringLiteral("  x ")) << "  x ";
    QTest::newRow("beyond latin") << QVariant(QStringLiteral("/home/\u4e2d\u6587/\U0001F4FB"))
                                  << QStringLiteral("/home/\u4e2d\u6587/\U0001F4FB");
}

void tst_settings::valueSurvivesRestart() {
    QFETCH(QVariant, value);
    QFETCH(QString, expected);
    QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("new/settings.ini"));
    QVERIFY(SettingsStore(name).setValue(QStringLiteral("Key"), value));
    QCOMPARE(SettingsStore(name).value(QStringLiteral("Key"), QStringLiteral("default")).toString(), expected);
}

void tst_settings::keysDifferingOnlyInCaseAreOneSetting() {
    QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("settings.ini"));
    SettingsStore store(name);
    store.setValue(QStringLiteral("Helpfile"), QStringLiteral("a"));
    store.setValue(QStringLiteral("HelpFile"), QStringLiteral("b"));
    QCOMPARE(store.value(QStringLiteral("HELPFILE"), QVariant()).toString(), QStringLiteral("b"));
    QCOMPARE(contentOf(name).count('='), 1);
}

void tst_settings::damagedFileGivesDefaultsAndIsKept_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no section") << QByteArray("Language=2\n");
    QTest::newRow("line without equals") << QByteArray("[General]\nLanguage=2\nLangu");
    QTest::newRow("not UTF-8") << QByteArray("[General]\nName=\xff\xfe\n");
    QTest::newRow("zeros after a power cut") << QByteArray(200, '\0');
    QTest::newRow("key twice") << QByteArray("[General]\nLanguage=1\nlanguage=2\n");
    QTest::newRow("empty key") << QByteArray("[General]\n=1\n");
    QTest::newRow("other format") << QByteArray("{\"Language\": 2}");
}

void tst_settings::damagedFileGivesDefaultsAndIsKept() {
    QFETCH(QByteArray, content);
    QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("settings.ini"));
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    SettingsStore store(name);
    QCOMPARE(store.value(QStringLiteral("Language"), 7).toInt(), 7);
    QCOMPARE(contentOf(store.damagedFileName()), content);
    QVERIFY(store.setValue(QStringLiteral("Language"), 3));
    QCOMPARE(contentOf(store.damagedFileName()), content);
    QCOMPARE(SettingsStore(name).value(QStringLiteral("Language"), 7).toInt(), 3);
}

void tst_settings::secondDamageDoesNotOverwriteTheFirstCopy() {
    QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("settings.ini"));
    QStringList kept;
    for (const char *content : {"first", "second"}) {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        kept.append(SettingsStore(name).damagedFileName());
    }
    QCOMPARE(contentOf(kept[0]), QByteArray("first"));
    QCOMPARE(contentOf(kept[1]), QByteArray("second"));
}

void tst_settings::otherWindowsSettingsAreNotLost() {
    QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("settings.ini"));
    SettingsStore first(name);
    SettingsStore second(name);
    first.setValue(QStringLiteral("MRU1"), QStringLiteral("a.k4p"));
    second.setValue(QStringLiteral("Language"), 2);
    QCOMPARE(SettingsStore(name).value(QStringLiteral("MRU1"), QString()).toString(), QStringLiteral("a.k4p"));
}

void tst_settings::unwritableFolderIsReportedAndValueHolds() {
    QTemporaryDir folder;
    const QString blocker = folder.filePath(QStringLiteral("file"));
    QFile file(blocker);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    SettingsStore store(blocker + QStringLiteral("/settings.ini"));
    QVERIFY(!store.setValue(QStringLiteral("Language"), 2));
    QCOMPARE(store.value(QStringLiteral("Language"), 0).toInt(), 2);
}

QTEST_GUILESS_MAIN(tst_settings)
#include "tst_settings.moc"
