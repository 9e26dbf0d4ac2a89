#include "dictionary_loader.h"
#include "form_catalogue.h"
#include "help_browser.h"
#include "help_topics.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QUrl>

// The pages as the build has made them.
class HelpPagesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyLinkLeadsSomewhere();
    void everyFieldNumberLeadsToItsRow();
    void everyFormNumberAndFormHasAPage();
    void searchFindsEveryFieldByItsLabel();
    void searchKnowsWords_data();
    void searchKnowsWords();

  private:
    static QString page(const QString &name);

    static QString folder() { return qEnvironmentVariable("KX4600_BIN") + QStringLiteral("/kx4kp_en"); }
};

QString HelpPagesTest::page(const QString &name) {
    QFile file(folder() + u'/' + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void HelpPagesTest::everyLinkLeadsSomewhere() {
    static const QRegularExpression kLink(QStringLiteral("(?:href=\"|url=)([^\"]+)\""));
    int links = 0;
    for (const QString &name : QDir(folder()).entryList({QStringLiteral("*.html")})) {
        for (auto match = kLink.globalMatch(page(name)); match.hasNext(); ++links) {
            const QString link = match.next().captured(1);
            const QString target = link.startsWith(u'#') ? name : link.section(u'#', 0, 0);
            QVERIFY2(QFile::exists(folder() + u'/' + target), qPrintable(name + u' ' + link));
            if (const QString anchor = link.section(u'#', 1); !anchor.isEmpty())
                QVERIFY2(page(target).contains(QStringLiteral("<a name=\"%1\">").arg(anchor)),
                         qPrintable(name + u' ' + link));
        }
    }
    QVERIFY2(links > 1500, qPrintable(QString::number(links)));
}

void HelpPagesTest::everyFieldNumberLeadsToItsRow() {
    const auto dictionary = DictionaryLoader::loadCompiledIn();
    for (const FieldDefinition &field : dictionary->fields()) {
        const QUrl topic = QUrl::fromLocalFile(folder() + QStringLiteral("/%1.html").arg(field.helpNumber));
        const QUrl place = HelpBrowser::forwarded(topic);
        QVERIFY2(place != topic, qPrintable(field.id));
        if (field.form.isEmpty())
            continue;
        QCOMPARE(place.fileName(), field.form + QStringLiteral(".html"));
        QCOMPARE(place.fragment(QUrl::FullyDecoded), field.id);
        const QString text = page(place.fileName());
        const QString row = text.mid(text.indexOf(QStringLiteral("<a name=\"%1\">").arg(field.id)))
                                .section(QStringLiteral("</tr>"), 0, 0);
        for (const QString &part : {field.label, field.help, field.unit})
            QVERIFY2(row.contains(part.toHtmlEscaped()), qPrintable(field.id + u' ' + part));
    }
}

void HelpPagesTest::everyFormNumberAndFormHasAPage() {
    FormCatalogue catalogue;
    QCOMPARE(catalogue.names().size(), 26);
    for (const QString &name : catalogue.names()) {
        const QString own = name + QStringLiteral(".html");
        QVERIFY2(page(own).contains(QStringLiteral("<h1>")), qPrintable(name));
        if (const qint32 number = catalogue.form(name).helpId(); number != 0)
            QVERIFY2(page(QStringLiteral("%1.html").arg(number)).contains(own), qPrintable(name));
    }
}

void HelpPagesTest::searchFindsEveryFieldByItsLabel() {
    const HelpTopics topics(folder());
    const auto dictionary = DictionaryLoader::loadCompiledIn();
    for (const FieldDefinition &field : dictionary->fields()) {
        const auto hits = topics.search(field.label);
        const auto own = std::ranges::find(hits, field.form + QStringLiteral(".html#") + field.id, &HelpTopic::place);
        QVERIFY2(field.form.isEmpty() || own != hits.end(), qPrintable(field.id));
    }
}

void HelpPagesTest::searchKnowsWords_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("firstPlace"); // "": nothing is found
    QTest::newRow("nothing typed") << QStringLiteral("  ") << QString();
    QTest::newRow("title before text") << QStringLiteral("keyboard") << QStringLiteral("keyboard.html");
    QTest::newRow("any case, any part") << QStringLiteral("ECONOMY tim")
                                        << QStringLiteral("usrctlEconomyKX4600.html#EconomyTimer");
    QTest::newRow("all words needed") << QStringLiteral("economy xylophone") << QString();
}

void HelpPagesTest::searchKnowsWords() {
    QFETCH(const QString, text);
    QFETCH(const QString, firstPlace);
    const auto hits = HelpTopics(folder()).search(text);
    QCOMPARE(hits.empty() ? QString() : hits.front().place, firstPlace);
}

QTEST_MAIN(HelpPagesTest)
#include "help_pages_test.moc"
