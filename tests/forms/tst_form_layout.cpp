#include "caption_fit.h"
#include "cls_ctl_fact.h"
#include "control_classes.h"
#include "form_catalogue.h"
#include "layout_probe.h"
#include "rows.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
qint32 right(const TwipRect &rect) { return (rect.left + rect.width).count; }
qint32 bottom(const TwipRect &rect) { return (rect.top + rect.height).count; }

// Distance between two rectangles, the larger of the two directions; negative: they overlap.
qint32 distance(const TwipRect &a, const TwipRect &b) {
    const qint32 across = std::max(b.left.count - right(a), a.left.count - right(b));
    const qint32 down = std::max(b.top.count - bottom(a), a.top.count - bottom(b));
    return std::max(across, down);
}

// The least distance to an edge of the parent.
qint32 inset(const TwipRect &inner, const TwipSize &outer) {
    return std::min(
        {inner.left.count, inner.top.count, outer.width.count - right(inner), outer.height.count - bottom(inner)});
}
} // namespace

class FormLayoutTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void nothingOverlapsOrLeavesItsContainer() {
        for (const auto &[width, height] : Rows<qint32, qint32>{
                 {"design size", FormLayout::kCanvas.width.count, FormLayout::kCanvas.height.count},
                 {"window of 1024x768", 11000, 8700},
                 {"window of 1600x1000", 19600, 12100},
             }) {
            const TwipSize area{{width}, {height}};
            const FixedTexts texts(FixedTexts::Labels::OfTheirIds);
            for (const QString &name : mCatalogue.names()) {
                const FormDefinition &form = mCatalogue.form(name);
                const FormGeometry geometry = FormLayout(texts).arrange(form);
                QVERIFY2(geometry.excess == Twips{}, qPrintable(name + QString::number(geometry.excess.count)));
                const std::vector<PlacedControl> controls = form.placedControls();
                std::vector<TwipRect> places;
                QHash<const ControlDefinition *, TwipSize> insides;
                for (const PlacedControl &placed : controls) {
                    const ControlDefinition &control = *placed.control;
                    QVERIFY2(geometry.places.contains(control.name), qPrintable(name + control.name));
                    const TwipRect place =
                        clsCtlFact(control.typeName, geometry.places.value(control.name)).scaled(area);
                    TwipSize inside{place.width, place.height};
                    if (control.typeName == u"SSTab")
                        inside = {inside.width - FormLayout::kTabBorders, inside.height - FormLayout::kTabRow};
                    insides.insert(&control, inside);
                    const TwipSize outer = placed.parent == nullptr ? area : insides.value(placed.parent);
                    const qint32 room = inset(place, outer);
                    QVERIFY2(room >= 0,
                             qPrintable(u"%1 %2 leaves its container by %3"_s.arg(name, control.name).arg(-room)));
                    for (std::size_t i = 0; i < places.size(); ++i) {
                        if (controls[i].parent != placed.parent || controls[i].page != placed.page)
                            continue;
                        const qint32 gap = distance(places[i], place);
                        QVERIFY2(gap >= 0, qPrintable(name + u' ' + controls[i].control->name + u' ' + control.name));
                    }
                    places.push_back(place);
                }
            }
        }
    }

    void noLabelIsCut() {
        for (const auto labels : {FixedTexts::Labels::OfTheirIds, FixedTexts::Labels::FullLength}) {
            const FixedTexts texts{labels};
            const auto measure = [&](const QString &text) { return texts.width(text); };
            for (const QString &name : mCatalogue.names()) {
                const FormDefinition &form = mCatalogue.form(name);
                const FormGeometry geometry = FormLayout(texts).arrange(form);
                for (const PlacedControl &placed : form.placedControls()) {
                    const double factor = placed.control->labelWidthFactor();
                    if (!ControlClasses::isField(placed.control->typeName) || factor == 0)
                        continue;
                    const TwipRect place = geometry.places.value(placed.control->name);
                    const Twips label{qint32(place.width.count * factor) - 200};
                    const QString caption = texts.caption(*placed.control);
                    const int lines = CaptionFit::lines(measure, caption, label);
                    QVERIFY2(lines * texts.lineHeight().count <= std::max(place.height.count, 315),
                             qPrintable(name + u' ' + placed.control->name));
                }
            }
        }
    }

    // The editing part begins 100 twips before the share of the factor; fields of several factors stand in this frame.
    void labelledBoxesOfAColumnBeginOnOneLine() {
        const FixedTexts texts(FixedTexts::Labels::OfTheirIds);
        const FormDefinition &form = mCatalogue.form(u"usrctlStartupKX4600"_s);
        const FormGeometry geometry = FormLayout(texts).arrange(form);
        QSet<qint32> lines;
        for (const ControlDefinition &field : form.controls.front().controls)
            lines.insert(qint32(geometry.places.value(field.name).width.count * field.labelWidthFactor() / 15));
        QVERIFY2(lines.size() <= 2, "more than a pixel apart"); // of two neighbouring pixels
        QCOMPARE(form.controls.front().controls.size(), std::size_t(9));
    }

    void fieldsWithoutALabelStandBehindTheirFirst() {
        const FixedTexts texts(FixedTexts::Labels::OfTheirIds);
        const FormGeometry geometry = FormLayout(texts).arrange(mCatalogue.form(u"usrctlStartupKX4600"_s));
        const TwipRect first = geometry.places.value(u"SecurityPIN1"_s);
        const TwipRect second = geometry.places.value(u"SecurityPIN2"_s);
        const TwipRect third = geometry.places.value(u"SecurityPIN3"_s);
        QVERIFY(first.top == second.top && second.top == third.top);
        QCOMPARE(second.left.count, right(first));
        QCOMPARE(third.left.count, right(second));
        QCOMPARE(second.width, third.width);
    }

    void headingsAreColumnsWithEqualRows() {
        const FixedTexts texts(FixedTexts::Labels::OfTheirIds);
        const FormGeometry geometry = FormLayout(texts).arrange(mCatalogue.form(u"usrctlAlerts"_s));
        const TwipRect first = geometry.places.value(u"RxDecode1"_s);
        const TwipRect second = geometry.places.value(u"RxDecode2"_s);
        QVERIFY(first.top == second.top && first.height == second.height && first.width > second.width);
        QCOMPARE(geometry.places.value(u"AlertDuration1"_s).top, geometry.places.value(u"AlertDuration2"_s).top);
        QCOMPARE(geometry.places.value(u"RxSeqOneMonitorOn"_s).top, geometry.places.value(u"RxSeqTwoMonitorOn"_s).top);
    }

    void brokenCaptionMakesItsRowHigher() {
        const FixedTexts texts(FixedTexts::Labels::FullLength);
        const FormGeometry geometry = FormLayout(texts).arrange(mCatalogue.form(u"usrctlNetworkFeatures"_s));
        const TwipRect broken = geometry.places.value(u"NoAckRetryNumber"_s);
        const TwipRect above = geometry.places.value(u"WaitForAckTime"_s);
        QVERIFY(broken.height >= Twips{400} && above.height >= Twips{400});
        QCOMPARE(bottom(above), broken.top.count);
        const FormGeometry narrow = FormLayout(texts).arrange(mCatalogue.form(u"usrctlDTMFPatch"_s));
        QVERIFY(narrow.places.value(u"DTMFPatchLineCapturedSeq1"_s).height > Twips{400});
    }

    void onlyFramesGridsAndTabsGrowWithTheForm() {
        const TwipRect design{{900}, {600}, {3000}, {400}};
        const TwipSize doubled{{18690}, {12860}};
        const TwipRect moved{{1800}, {1200}, {3000}, {400}};
        const TwipRect grown{{1800}, {1200}, {6000}, {800}};
        for (const auto *type : {u"fldTextField", u"fldComboField", u"fldCheckboxField", u"fldIdTrackerField",
                                 u"fldPageNavigator", u"fldSubFormCallUp"})
            QCOMPARE(clsCtlFact(QString::fromUtf16(type), design).scaled(doubled), moved);
        for (const auto *type : {u"fldFrame", u"Frame", u"SSTab", u"fldGridField"})
            QCOMPARE(clsCtlFact(QString::fromUtf16(type), design).scaled(doubled), grown);
        QCOMPARE(clsCtlFact(u"Label"_s, design).scaled(doubled), design);
        // Rounded to the nearest twip, and from the design each time: no drift.
        QCOMPARE(clsCtlFact(u"fldFrame"_s, design).scaled({{9346}, {6431}}).width, Twips{3000});
    }

    void captionsBreakWhereALabelBreaksThem() {
        for (const auto &[text, characters, lines] : Rows<QString, int, int>{
                 {"empty", {}, 10, 0},
                 {"fits exactly", u"Power Mode"_s, 10, 1},
                 {"one too wide", u"Power Modes"_s, 10, 2},
                 {"word wider than the label", u"Acknowledgement"_s, 10, 1},
                 {"broken behind a hyphen", u"De-key on Hook"_s, 9, 2},
                 {"long word with a hyphen", u"Pre-emphasised"_s, 11, 2},
                 {"blank at the end", u"Power Mode "_s, 10, 1},
                 {"wide word in the middle", u"On Acknowledgement On"_s, 10, 3},
                 {"no width", u"A B C"_s, 0, 3},
             }) {
            const auto measure = [](const QString &part) { return Twips{qint32(part.size())}; };
            QCOMPARE(CaptionFit::lines(measure, text, Twips{characters}), lines);
        }
    }

  private:
    FormCatalogue mCatalogue;
};

QTEST_GUILESS_MAIN(FormLayoutTest)
#include "tst_form_layout.moc"
