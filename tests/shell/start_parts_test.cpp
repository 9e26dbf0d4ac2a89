#include "code_page.h"
#include "command_line.h"
#include "language_setup.h"
#include "message_style.h"
#include "scroll_layout.h"
#include "shell_fixture.h"
#include "window_position.h"

#include <QTemporaryDir>
#include <QTest>

// What the main window works out from its command line, its system's language, its screen and its size.
class StartPartsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void commandLine_data();
    void commandLine();
    void existingPathIsNeverCut();
    void outerQuotesAreStripped();
    void codePageOfACodeset();
    void languageNeedsItsCodePage();
    void unsupportedLanguageFallsBackWithItsName();
    void scrollLayout_data();
    void scrollLayout();
    void placedWindow_data();
    void placedWindow();
};

void StartPartsTest::commandLine_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<bool>("refused");
    QTest::newRow("nothing") << QStringList() << QString() << false;
    QTest::newRow("blanks") << QStringList(QStringLiteral("   ")) << QString() << false;
    QTest::newRow("name") << QStringList(QStringLiteral("a.k4p")) << QStringLiteral("a.k4p") << false;
    QTest::newRow("name of two words") << QStringList({QStringLiteral("my"), QStringLiteral("a.k4p")})
                                       << QStringLiteral("my a.k4p") << false;
    QTest::newRow("quoted twice") << QStringList(QStringLiteral("\"'a.k4p'\"")) << QStringLiteral("a.k4p") << false;
    QTest::newRow("leading slash") << QStringList(QStringLiteral("/a.k4p")) << QStringLiteral("a.k4p") << false;
    QTest::newRow("two pieces") << QStringList(QStringLiteral("none/a.k4p")) << QStringLiteral("none") << true;
    QTest::newRow("three pieces, one box") << QStringList(QStringLiteral(" x /y/z")) << QStringLiteral("x") << true;
    QTest::newRow("quoted piece") << QStringList(QStringLiteral("/ \" x \" ")) << QStringLiteral("x") << false;
}

void StartPartsTest::commandLine() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, fileName);
    QFETCH(bool, refused);
    TestServices services(nullptr);
    if (refused)
        services.boxes.expect(QStringLiteral("Invalid Command line parameters"), MessageAnswer::kOk);
    CommandLine line(arguments, services.boxes, services.errors);
    line.GetProgramParameters();
    QCOMPARE(line.FileName(), fileName);
}

void StartPartsTest::existingPathIsNeverCut() {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("my depot.k4p")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    TestServices services(nullptr);
    CommandLine line({QStringLiteral("\"") + file.fileName() + QStringLiteral("\"")}, services.boxes, services.errors);
    line.GetProgramParameters();
    QCOMPARE(line.FileName(), file.fileName());
}

void StartPartsTest::outerQuotesAreStripped() {
    const std::pair<const char *, const char *> rows[] = {{R"("'x'")", "x"},      {R"('"x"')", R"("x")"},
                                                          {R"(""x"")", R"("x")"}, {R"("x)", R"("x)"},
                                                          {R"(")", R"(")"},       {R"("")", ""}};
    for (const auto &[text, stripped] : rows)
        QCOMPARE(CommandLine::StripOutsideQuotesOffString(QString::fromLatin1(text)), QString::fromLatin1(stripped));
}

void StartPartsTest::codePageOfACodeset() {
    const std::pair<const char *, int> rows[] = {{"UTF-8", 65001},      {"utf-8", 65001}, {"ISO-8859-1", 1252},
                                                 {"ISO-8859-15", 1252}, {"GB18030", 936}, {"ANSI_X3.4-1968", 0},
                                                 {"ISO-8859-2", 0}};
    for (const auto &[codeset, number] : rows)
        QVERIFY2(CodePage::ofCodeset(codeset) == number, codeset);
}

void StartPartsTest::languageNeedsItsCodePage() {
    constexpr int kUtf8 = 65001;
    const std::pair<int, std::vector<int>> pagesOf[] = {
        {0, {}}, {1, {0, 936, 1252, kUtf8}}, {2, {1252, kUtf8}}, {3, {936, kUtf8}}, {4, {1252, kUtf8}}, {5, {}}};
    for (const auto &[language, pages] : pagesOf) {
        for (const int page : {0, 936, 1252, kUtf8}) {
            const bool expected = std::ranges::find(pages, page) != pages.end();
            QVERIFY2(LanguageSetup::Supported(language, page) == expected,
                     qPrintable(QStringLiteral("%1 on %2").arg(language).arg(page)));
        }
    }
}

void StartPartsTest::unsupportedLanguageFallsBackWithItsName() {
    qputenv("KX4600_ACP", "1252");
    for (const auto &[stored, name] : {std::pair(5, ""), std::pair(0, ""), std::pair(3, "Chinese")}) {
        ShellFixture shell;
        shell.transformer.when(QStringLiteral("GetSetting"), QStringLiteral("Language")).answers(stored);
        shell.services.boxes.expect(QStringLiteral("Your selected language of %1 is not supported.  This application "
                                                   "will now operate using the English language.")
                                        .arg(QLatin1String(name)),
                                    MessageAnswer::kOk);
        shell.window->Form_Initialize();
        shell.window->Form_Load();
        QCOMPARE(shell.services.translation.gLanguage, 1);
        QVERIFY(shell.log.linesOf(QStringLiteral("SaveSetting")).filter(QStringLiteral("Language")).isEmpty());
    }
    qunsetenv("KX4600_ACP");
}

void StartPartsTest::scrollLayout_data() {
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("horizontalMax"); // -1: no bar
    QTest::addColumn<int>("verticalMax");
    QTest::newRow("exactly the design size") << 9345 << 6430 << -1 << -1;
    QTest::newRow("larger") << 20000 << 9000 << -1 << -1;
    QTest::newRow("too narrow takes height but leaves enough") << 9000 << 7000 << 345 << -1;
    QTest::newRow("too narrow takes the height too") << 9000 << 6500 << 345 + 255 << 185;
    QTest::newRow("too low leaves enough width") << 12000 << 6000 << -1 << 430;
    QTest::newRow("too low takes the width too") << 9400 << 6000 << 200 << 430 + 255;
    QTest::newRow("both too small") << 5000 << 3000 << 4600 << 3685;
}

void StartPartsTest::scrollLayout() {
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, horizontalMax);
    QFETCH(int, verticalMax);
    const ScrollLayout layout = ScrollLayout::of({{width}, {height}}, Twips{255});
    const auto check = [](const ScrollRange &range, int max) {
        QCOMPARE(range.shown, max >= 0);
        QCOMPARE(range.max, std::max(max, 0));
        QCOMPARE(range.largeChange, std::max(max, 0) / 2);
        QCOMPARE(range.smallChange, std::max(max, 0) / 5);
    };
    check(layout.horizontal, horizontalMax);
    check(layout.vertical, verticalMax);
    QVERIFY(layout.container.width >= Twips{9345} && layout.container.height >= Twips{6430});
}

void StartPartsTest::placedWindow_data() {
    QTest::addColumn<QList<int>>("saved"); // left, top, width, height
    QTest::addColumn<int>("startupPosition");
    QTest::addColumn<QPoint>("corner");
    QTest::newRow("centred whatever was saved")
        << QList<int>{1, 2, 9001, 6001} << 0 << QPoint(10000 - 4500, 7500 - 3000);
    QTest::newRow("centred, larger than the screen") << QList<int>{0, 0, 30000, 16000} << 0 << QPoint(0, 0);
    QTest::newRow("as saved") << QList<int>{300, 400, 9000, 6000} << 2 << QPoint(300, 400);
    QTest::newRow("maximised keeps the saved place") << QList<int>{300, 400, 9000, 6000} << 1 << QPoint(300, 400);
    QTest::newRow("on the right edge stays") << QList<int>{20000, 0, 9000, 6000} << 2 << QPoint(20000, 0);
    QTest::newRow("beyond the right edge") << QList<int>{20001, 0, 9000, 6000} << 2 << QPoint(11000, 0);
    QTest::newRow("beyond and wider than the screen") << QList<int>{20001, 0, 24000, 6000} << 2 << QPoint(0, 0);
    QTest::newRow("below the screen") << QList<int>{0, 15001, 9000, 6000} << 2 << QPoint(0, 9000);
    QTest::newRow("above and left") << QList<int>{-5, -500, 9000, 6000} << 2 << QPoint(0, 0);
}

void StartPartsTest::placedWindow() {
    QFETCH(QList<int>, saved);
    QFETCH(int, startupPosition);
    QFETCH(QPoint, corner);
    const TwipRect place =
        WindowPosition::Placed({{saved[0]}, {saved[1]}, {saved[2]}, {saved[3]}}, startupPosition, {{20000}, {15000}});
    QCOMPARE(QPoint(place.left.count, place.top.count), corner);
    QCOMPARE(place.width.count, saved[2]);
}

QTEST_MAIN(StartPartsTest)
#include "start_parts_test.moc"
