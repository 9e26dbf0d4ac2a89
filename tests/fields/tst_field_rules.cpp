#include "check_layout.h"
#include "cls_format_edit.h"
#include "common_error_handler.h"
#include "field_properties.h"
#include "label_layout.h"
#include "rows.h"
#include "run_time_error.h"
#include "type_ahead.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_field_rules final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void maskLetsOnlyItsCharactersPass() {
        for (const auto &[mask, upperCase, typed, passed] : Rows<QString, bool, QString, QString>{
                 {"no mask", u""_s, true, u"aB 9"_s, u"aB 9"_s},
                 {"small letter becomes the mask's capital", u"ABC"_s, true, u"a"_s, u"A"_s},
                 {"small letter of the mask stays small", u"abc"_s, true, u"a"_s, u"a"_s},
                 {"capital does not become small", u"abc"_s, true, u"A"_s, u""_s},
                 {"without upper-casing the letter is swallowed", u"ABC"_s, false, u"a"_s, u""_s},
                 {"blank is a character like any other", u"ABC"_s, true, u" "_s, {}},
                 {"blank in the mask", u"A "_s, true, u" "_s, u" "_s},
                 {"control codes pass", u"ABC"_s, true, u"\x1b\b\r"_s, u"\x1b\b\r"_s},
                 {"some of several pass", u"0123456789."_s, true, u"1a5.b2"_s, u"15.2"_s},
             }) {
            ErrorReport errors(false);
            clsFormatEdit edit(errors);
            edit.FormatMask(mask);
            edit.UpperCase(upperCase);
            QCOMPARE(edit.filtered(typed), passed);
        }
    }

    void captionAndBoxShareTheWidth() {
        for (const auto &[width, factor, labelWidth, boxLeft, boxWidth] : Rows<int, double, int, int, int>{
                 {"default share", 5000, 0.6, 2800, 2900, 2000},
                 {"no caption", 5000, 0.0, 0, 0, 4900},
                 {"no box", 5000, 1.0, 4800, 4900, 0},
                 {"too narrow for a caption", 300, 0.5, 0, 50, 150},
                 {"caption of exactly no width", 400, 0.5, 0, 100, 200},
                 {"shares are rounded to whole twips", 3333, 0.33, 900, 1000, 2233},
             }) {
            const LabelLayout::Parts parts = LabelLayout::layOut(Twips{width}, factor, {});
            QCOMPARE(int(parts.label.width.count), labelWidth);
            QCOMPARE(int(parts.editor.left.count), boxLeft);
            QCOMPARE(int(parts.editor.width.count), boxWidth);
            QCOMPARE(parts.height.count, 400);
        }
    }

    void longCaptionMakesTheFieldHigher() {
        for (const auto &[captionWidth, wrappedHeight, factor, labelTop, height] : Rows<int, int, double, int, int>{
                 {"fits", 2800, 240, 0.6, 90, 400},
                 {"wraps within the row", 2801, 390, 0.6, 0, 400},
                 {"needs more than the row", 4000, 480, 0.6, 0, 480},
                 {"a caption that is not shown needs nothing", 4000, 9000, 0.0, 90, 400},
             }) {
            const auto parts = LabelLayout::layOut(Twips{5000}, factor, {{captionWidth}, {wrappedHeight}});
            QCOMPARE(int(parts.label.top.count), labelTop);
            QCOMPARE(int(parts.height.count), height);
        }
    }

    void checkBoxStandsOnTheColumnLine() {
        for (const auto &[width, factor, caption, right, left, wantedSpan] : Rows<int, double, int, bool, int, int>{
                 {"captions right", 5000, 0.6, 1000, true, 1800, 1300},
                 {"caption wider than its share", 5000, 0.2, 1500, true, 0, 1100},
                 {"caption just fits its share", 5000, 0.2, 1000, true, 0, 1300},
                 {"box alone, captions right", 5000, 0.0, 150, true, 0, 450},
                 {"captions left", 5000, 0.6, 1000, false, 0, 3090},
                 {"factor close to 1", 3000, 0.97, 1000, true, 1700, 1300},
                 {"box alone, captions left", 5000, 0.0, 150, false, 0, 4900},
             }) {
            const CheckLayout::Span span = CheckLayout::layOut({Twips{width}, factor, Twips{caption}, right});
            QCOMPARE(int(span.left.count), left);
            QCOMPARE(int(span.width.count), wantedSpan);
        }
    }

    void firstLettersChooseAnItem() {
        // typed: "<" takes a letter back
        for (const auto &[typed, wantedIndex, nothingLeft] : Rows<QString, int, bool>{
                 {"first letter", u"c"_s, 2, false},
                 {"second letter keeps it", u"ch"_s, 2, false},
                 {"first item from the top", u"b"_s, 1, false},
                 {"more letters go further down", u"bri"_s, 3, false},
                 {"a letter that fits nothing is dropped", u"cz"_s, 2, false},
                 {"and does not spoil the next", u"czh"_s, 2, false},
                 {"letter that fits no item at all goes to the first", u"z"_s, 0, true},
                 {"taken back to nothing goes to the first", u"c<"_s, 0, true},
                 {"taken back by one goes up again", u"bri<"_s, 1, false},
                 {"taking back from nothing", u"<"_s, 0, true},
                 {"blank belongs to the text", u"delta "_s, 4, false},
             }) {
            const QStringList items{u"Alpha"_s, u"Bravo"_s, u"Charlie"_s, u"Brink"_s, u"Delta Two"_s};
            TypeAhead typeAhead;
            int index = -1;
            for (const QChar c : typed)
                index = c == u'<' ? typeAhead.backspace(items) : typeAhead.type(c, items);
            QCOMPARE(index, wantedIndex);
            QCOMPARE(typeAhead.empty(), nothingLeft);
        }
    }

    void wrongPropertyIsRefusedByName() {
        for (const auto &[key, value, complaint] : Rows<QString, QVariant, QString>{
                 {"whole number as text", u"Number"_s, u"2"_s, {}},
                 {"whole number as a JSON number", u"Number"_s, 2.0, {}},
                 {"unknown key", u"Captoin"_s, u"x"_s, u"is no property of this control"_s},
                 {"key in another case", u"caption"_s, u"x"_s, u"is no property of this control"_s},
                 {"number for a text", u"Caption"_s, 5, u"is no text"_s},
                 {"text for a flag", u"Flag"_s, u"true"_s, u"is neither true nor false"_s},
                 {"number for a flag", u"Flag"_s, 1, u"is neither true nor false"_s},
                 {"text for a share", u"Factor"_s, u"0.6"_s, u"is no number"_s},
                 {"fraction for a whole number", u"Number"_s, 2.5, u"is no whole number"_s},
                 {"word for a whole number", u"Number"_s, u"two"_s, u"is no whole number"_s},
             }) {
            const FieldProperties properties{u"form.json"_s, u"fldA"_s, {{key, value}}};
            QString told;
            try {
                PropertyReader reader(properties);
                (void)reader.text(u"Caption"_s, {});
                (void)reader.flag(u"Flag"_s, false);
                (void)reader.real(u"Factor"_s, 0.6);
                (void)reader.integer(u"Number"_s, 0);
                reader.refuseUnknown();
            } catch (const RunTimeError &error) {
                told = error.Description;
            }
            QCOMPARE(told, complaint.isEmpty() ? QString() : u"form.json: fldA: \"%1\" %2"_s.arg(key, complaint));
        }
    }
};

QTEST_APPLESS_MAIN(tst_field_rules)
#include "tst_field_rules.moc"
