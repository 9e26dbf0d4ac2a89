#include "check_layout.h"
#include "cls_format_edit.h"
#include "common_error_handler.h"
#include "field_properties.h"
#include "label_layout.h"
#include "run_time_error.h"
#include "type_ahead.h"

#include <QTest>

class tst_field_rules final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void maskLetsOnlyItsCharactersPass_data();
    void maskLetsOnlyItsCharactersPass();
    void captionAndBoxShareTheWidth();
    void longCaptionMakesTheFieldHigher();
    void checkBoxStandsOnTheColumnLine();
    void firstLettersChooseAnItem_data();
    void firstLettersChooseAnItem();
    void wrongPropertyIsRefusedByName_data();
    void wrongPropertyIsRefusedByName();
};

void tst_field_rules::maskLetsOnlyItsCharactersPass_data() {
    QTest::addColumn<QString>("mask");
    QTest::addColumn<bool>("upperCase");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("passed");
    const auto row = [](const char *name, const char *mask, bool upper, const char *typed, const char *passed) {
        QTest::newRow(name) << QString::fromLatin1(mask) << upper << QString::fromLatin1(typed)
                            << QString::fromLatin1(passed);
    };
    row("no mask", "", true, "aB 9", "aB 9");
    row("small letter becomes the mask's capital", "ABC", true, "a", "A");
    row("small letter of the mask stays small", "abc", true, "a", "a");
    row("capital does not become small", "abc", true, "A", "");
    row("without upper-casing the letter is swallowed", "ABC", false, "a", "");
    row("blank is a character like any other", "ABC", true, " ", "");
    row("blank in the mask", "A ", true, " ", " ");
    row("control codes pass", "ABC", true, "\x1b\b\r", "\x1b\b\r");
    row("some of several pass", "0123456789.", true, "1a5.b2", "15.2");
}

void tst_field_rules::maskLetsOnlyItsCharactersPass() {
    QFETCH(QString, mask);
    QFETCH(bool, upperCase);
    QFETCH(QString, typed);
    ErrorReport errors(false);
    clsFormatEdit edit(errors);
    edit.FormatMask(mask);
    edit.UpperCase(upperCase);
    QTEST(edit.filtered(typed), "passed");
}

void tst_field_rules::captionAndBoxShareTheWidth() {
    struct Row {
        const char *name;
        int width;
        double factor;
        QList<int> places; // width of the label, left and width of the box
    };
    const Row rows[] = {{"default share", 5000, 0.6, {2800, 2900, 2000}},
                        {"no caption", 5000, 0.0, {0, 0, 4900}},
                        {"no box", 5000, 1.0, {4800, 4900, 0}},
                        {"too narrow for a caption", 300, 0.5, {0, 50, 150}},
                        {"caption of exactly no width", 400, 0.5, {0, 100, 200}},
                        {"shares are rounded to whole twips", 3333, 0.33, {900, 1000, 2233}}};
    for (const auto &[name, width, factor, places] : rows) {
        const LabelLayout::Parts parts = LabelLayout::layOut(Twips{width}, factor, {});
        QVERIFY2((places == QList<int>{parts.label.width.count, parts.editor.left.count, parts.editor.width.count}),
                 name);
        QCOMPARE(parts.height.count, 400);
    }
}

void tst_field_rules::longCaptionMakesTheFieldHigher() {
    struct Row {
        const char *name;
        TwipSize caption; // its width on one line, its height when it is wrapped
        double factor;
        int labelTop;
        int height;
    };
    const Row rows[] = {{"fits", {{2800}, {240}}, 0.6, 90, 400},
                        {"wraps within the row", {{2801}, {390}}, 0.6, 0, 400},
                        {"needs more than the row", {{4000}, {480}}, 0.6, 0, 480},
                        {"a caption that is not shown needs nothing", {{4000}, {9000}}, 0.0, 90, 400}};
    for (const auto &[name, caption, factor, labelTop, height] : rows) {
        const auto parts = LabelLayout::layOut(Twips{5000}, factor, {caption.width, caption.height});
        QVERIFY2(parts.label.top.count == labelTop && parts.height.count == height, name);
    }
}

void tst_field_rules::checkBoxStandsOnTheColumnLine() {
    struct Row {
        const char *name;
        double factor;
        int caption;
        bool right;
        int left;
        int span;
    };
    const Row rows[] = {{"captions right", 0.6, 1000, true, 1800, 1300},
                        {"caption wider than its share", 0.2, 1500, true, 0, 1100},
                        {"caption just fits its share", 0.2, 1000, true, 0, 1300},
                        {"box alone, captions right", 0.0, 150, true, 0, 450},
                        {"captions left", 0.6, 1000, false, 0, 3090},
                        {"box alone, captions left", 0.0, 150, false, 0, 4900}};
    for (const auto &[name, factor, caption, right, left, span] : rows) {
        const CheckLayout::Span place = CheckLayout::layOut({Twips{5000}, factor, Twips{caption}, right});
        QVERIFY2(place.left.count == left && place.width.count == span, name);
    }
}

void tst_field_rules::firstLettersChooseAnItem_data() {
    QTest::addColumn<QString>("typed"); // "<" takes a letter back
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("nothingLeft");
    const auto row = [](const char *name, const char *typed, int index, bool nothingLeft) {
        QTest::newRow(name) << QString::fromLatin1(typed) << index << nothingLeft;
    };
    row("first letter", "c", 2, false);
    row("second letter keeps it", "ch", 2, false);
    row("first item from the top", "b", 1, false);
    row("more letters go further down", "bri", 3, false);
    row("a letter that fits nothing is dropped", "cz", 2, false);
    row("and does not spoil the next", "czh", 2, false);
    row("letter that fits no item at all goes to the first", "z", 0, true);
    row("taken back to nothing goes to the first", "c<", 0, true);
    row("taken back by one goes up again", "bri<", 1, false);
    row("taking back from nothing", "<", 0, true);
    row("blank belongs to the text", "delta ", 4, false);
}

void tst_field_rules::firstLettersChooseAnItem() {
    QFETCH(QString, typed);
    const QStringList items{QStringLiteral("Alpha"), QStringLiteral("Bravo"), QStringLiteral("Charlie"),
                            QStringLiteral("Brink"), QStringLiteral("Delta Two")};
    TypeAhead typeAhead;
    int index = -1;
    for (const QChar c : typed)
        index = c == u'<' ? typeAhead.backspace(items) : typeAhead.type(c, items);
    QTEST(index, "index");
    QTEST(typeAhead.empty(), "nothingLeft");
}

void tst_field_rules::wrongPropertyIsRefusedByName_data() {
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QString>("complaint"); // "" for none
    const auto row = [](const char *name, const char *key, const QVariant &value, const char *complaint) {
        QTest::newRow(name) << QVariantMap{{QString::fromLatin1(key), value}} << QString::fromLatin1(complaint);
    };
    row("whole number as text", "Number", QStringLiteral("2"), "");
    row("whole number as a JSON number", "Number", 2.0, "");
    row("unknown key", "Captoin", QStringLiteral("x"), "form.json: fldA: \"Captoin\" is no property of this control");
    row("key in another case", "caption", QStringLiteral("x"),
        "form.json: fldA: \"caption\" is no property of this control");
    row("number for a text", "Caption", 5, "form.json: fldA: \"Caption\" is no text");
    row("text for a flag", "Flag", QStringLiteral("true"), "form.json: fldA: \"Flag\" is neither true nor false");
    row("number for a flag", "Flag", 1, "form.json: fldA: \"Flag\" is neither true nor false");
    row("text for a share", "Factor", QStringLiteral("0.6"), "form.json: fldA: \"Factor\" is no number");
    row("fraction for a whole number", "Number", 2.5, "form.json: fldA: \"Number\" is no whole number");
    row("word for a whole number", "Number", QStringLiteral("two"), "form.json: fldA: \"Number\" is no whole number");
}

void tst_field_rules::wrongPropertyIsRefusedByName() {
    QFETCH(QVariantMap, values);
    const FieldProperties properties{QStringLiteral("form.json"), QStringLiteral("fldA"), values};
    QString complaint;
    try {
        PropertyReader reader(properties);
        (void)reader.text(QStringLiteral("Caption"), {});
        (void)reader.flag(QStringLiteral("Flag"), false);
        (void)reader.real(QStringLiteral("Factor"), 0.6);
        (void)reader.integer(QStringLiteral("Number"), 0);
        reader.refuseUnknown();
    } catch (const RunTimeError &error) {
        complaint = error.Description;
    }
    QTEST(complaint, "complaint");
}

QTEST_APPLESS_MAIN(tst_field_rules)
#include "tst_field_rules.moc"
