#include "caption_fit.h"
#include "cls_ctl_fact.h"
#include "control_classes.h"
#include "form_catalogue.h"
#include "layout_probe.h"

#include <QTest>

#include <algorithm>

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
    void nothingOverlapsOrLeavesItsContainer_data();
    void nothingOverlapsOrLeavesItsContainer();
    void noLabelIsCut_data();
    void noLabelIsCut();
    void labelledBoxesOfAColumnBeginOnOneLine();
    void fieldsWithoutALabelStandBehindTheirFirst();
    void headingsAreColumnsWithEqualRows();
    void singleHeadingStandsBesideItsRowLabels();
    void manyFramesStandInTwoColumns();
    void brokenCaptionMakesItsRowHigher();
    void onlyFramesGridsAndTabsGrowWithTheForm();
    void captionsBreakWhereALabelBreaksThem_data();
    void captionsBreakWhereALabelBreaksThem();

  private:
    FormCatalogue mCatalogue;
};

void FormLayoutTest::nothingOverlapsOrLeavesItsContainer_data() {
    QTest::addColumn<qint32>("width");
    QTest::addColumn<qint32>("height");
    QTest::newRow("design size") << FormLayout::kCanvas.width.count << FormLayout::kCanvas.height.count;
    QTest::newRow("window of 1024x768") << 11000 << 8700;
    QTest::newRow("window of 1600x1000") << 19600 << 12100;
}

void FormLayoutTest::nothingOverlapsOrLeavesItsContainer() {
    QFETCH(qint32, width);
    QFETCH(qint32, height);
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
            const TwipRect place = clsCtlFact(control.typeName, geometry.places.value(control.name)).scaled(area);
            TwipSize inside{place.width, place.height};
            if (control.typeName == u"SSTab")
                inside = {inside.width - FormLayout::kTabBorders, inside.height - FormLayout::kTabRow};
            insides.insert(&control, inside);
            const TwipSize outer = placed.parent == nullptr ? area : insides.value(placed.parent);
            const qint32 room = inset(place, outer);
            QVERIFY2(room >= 0,
                     qPrintable(QStringLiteral("%1 %2 leaves its container by %3").arg(name, control.name).arg(-room)));
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

void FormLayoutTest::noLabelIsCut_data() {
    QTest::addColumn<int>("labels");
    QTest::newRow("labels as long as their ids") << int(FixedTexts::Labels::OfTheirIds);
    QTest::newRow("labels of 24 characters") << int(FixedTexts::Labels::FullLength);
}

void FormLayoutTest::noLabelIsCut() {
    QFETCH(int, labels);
    const FixedTexts texts{FixedTexts::Labels(labels)};
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

// The editing part begins 100 twips before the share of the factor; fields of several factors stand in this frame.
void FormLayoutTest::labelledBoxesOfAColumnBeginOnOneLine() {
    const FixedTexts texts(FixedTexts::Labels::OfTheirIds);
    const FormDefinition &form = mCatalogue.form(QStringLiteral("usrctlStartupKX4600"));
    const FormGeometry geometry = FormLayout(texts).arrange(form);
    QSet<qint32> lines;
    for (const ControlDefinition &field : form.controls.front().controls)
        lines.insert(qint32(geometry.places.value(field.name).width.count * field.labelWidthFactor() / 15));
    QVERIFY2(lines.size() <= 2, "more than a pixel apart"); // of two neighbouring pixels
    QCOMPARE(form.controls.front().controls.size(), std::size_t(9));
}

void FormLayoutTest::fieldsWithoutALabelStandBehindTheirFirst() {
    const FixedTexts texts(FixedTexts::Labels::OfTheirIds);
    const FormGeometry geometry = FormLayout(texts).arrange(mCatalogue.form(QStringLiteral("usrctlStartupKX4600")));
    const TwipRect first = geometry.places.value(QStringLiteral("SecurityPIN1"));
    const TwipRect second = geometry.places.value(QStringLiteral("SecurityPIN2"));
    const TwipRect third = geometry.places.value(QStringLiteral("SecurityPIN3"));
    QVERIFY(first.top == second.top && second.top == third.top);
    QCOMPARE(second.left.count, right(first));
    QCOMPARE(third.left.count, right(second));
    QCOMPARE(second.width, third.width);
}

void FormLayoutTest::headingsAreColumnsWithEqualRows() {
    const FixedTexts texts(FixedTexts::Labels::OfTheirIds);
    const FormGeometry geometry = FormLayout(texts).arrange(mCatalogue.form(QStringLiteral("usrctlAlerts")));
    const TwipRect first = geometry.places.value(QStringLiteral("RxDecode1"));
    const TwipRect second = geometry.places.value(QStringLiteral("RxDecode2"));
    QVERIFY(first.top == second.top && first.height == second.height && first.width > second.width);
    QCOMPARE(geometry.places.value(QStringLiteral("AlertDuration1")).top,
             geometry.places.value(QStringLiteral("AlertDuration2")).top);
    QCOMPARE(geometry.places.value(QStringLiteral("RxSeqOneMonitorOn")).top,
             geometry.places.value(QStringLiteral("RxSeqTwoMonitorOn")).top);
}

void FormLayoutTest::singleHeadingStandsBesideItsRowLabels() {
    const FixedTexts texts(FixedTexts::Labels::OfTheirIds);
    const FormGeometry geometry = FormLayout(texts).arrange(mCatalogue.form(QStringLiteral("usrctlKeySettingsKX4600")));
    const TwipRect heading = geometry.places.value(QStringLiteral("Settings"));
    const TwipRect key = geometry.places.value(QStringLiteral("FunctionKey3"));
    const TwipRect parameter = geometry.places.value(QStringLiteral("FK3Parameter1"));
    QVERIFY(heading.left.count >= right(key));
    QCOMPARE(heading.top + parameter.top, key.top);
}

void FormLayoutTest::manyFramesStandInTwoColumns() {
    const FixedTexts texts(FixedTexts::Labels::OfTheirIds);
    const FormGeometry geometry = FormLayout(texts).arrange(mCatalogue.form(QStringLiteral("usrctlNetworkFeatures")));
    QSet<qint32> columns;
    for (const auto *frame : {u"frmFeatures", u"frmAutoAckRec", u"fraRMR", u"fraToneBlanking"})
        columns.insert(geometry.places.value(QString::fromUtf16(frame)).left.count);
    QCOMPARE(columns.size(), 2);
}

void FormLayoutTest::brokenCaptionMakesItsRowHigher() {
    const FixedTexts texts(FixedTexts::Labels::FullLength);
    const FormGeometry geometry = FormLayout(texts).arrange(mCatalogue.form(QStringLiteral("usrctlNetworkFeatures")));
    const TwipRect broken = geometry.places.value(QStringLiteral("NoAckRetryNumber"));
    const TwipRect above = geometry.places.value(QStringLiteral("WaitForAckTime"));
    QVERIFY(broken.height >= Twips{400} && above.height >= Twips{400});
    QCOMPARE(bottom(above), broken.top.count);
    const FormGeometry narrow = FormLayout(texts).arrange(mCatalogue.form(QStringLiteral("usrctlDTMFPatch")));
    QVERIFY(narrow.places.value(QStringLiteral("DTMFPatchLineCapturedSeq1")).height > Twips{400});
}

void FormLayoutTest::onlyFramesGridsAndTabsGrowWithTheForm() {
    const TwipRect design{{900}, {600}, {3000}, {400}};
    const TwipSize doubled{{18690}, {12860}};
    const TwipRect moved{{1800}, {1200}, {3000}, {400}};
    const TwipRect grown{{1800}, {1200}, {6000}, {800}};
    for (const auto *type : {u"fldTextField", u"fldComboField", u"fldCheckboxField", u"fldIdTrackerField",
                             u"fldPageNavigator", u"fldSubFormCallUp"})
        QCOMPARE(clsCtlFact(QString::fromUtf16(type), design).scaled(doubled), moved);
    for (const auto *type : {u"fldFrame", u"Frame", u"SSTab", u"fldGridField"})
        QCOMPARE(clsCtlFact(QString::fromUtf16(type), design).scaled(doubled), grown);
    QCOMPARE(clsCtlFact(QStringLiteral("Label"), design).scaled(doubled), design);
    // Rounded to the nearest twip, and from the design each time: no drift.
    QCOMPARE(clsCtlFact(QStringLiteral("fldFrame"), design).scaled({{9346}, {6431}}).width, Twips{3000});
}

void FormLayoutTest::captionsBreakWhereALabelBreaksThem_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("characters");
    QTest::addColumn<int>("lines");
    QTest::newRow("empty") << QString() << 10 << 0;
    QTest::newRow("fits exactly") << QStringLiteral("Power Mode") << 10 << 1;
    QTest::newRow("one too wide") << QStringLiteral("Power Modes") << 10 << 2;
    QTest::newRow("word wider than the label") << QStringLiteral("Acknowledgement") << 10 << 1;
    QTest::newRow("broken behind a hyphen") << QStringLiteral("De-key on Hook") << 9 << 2;
    QTest::newRow("long word with a hyphen") << QStringLiteral("Pre-emphasised") << 11 << 2;
    QTest::newRow("blank at the end") << QStringLiteral("Power Mode ") << 10 << 1;
    QTest::newRow("wide word in the middle") << QStringLiteral("On Acknowledgement On") << 10 << 3;
    QTest::newRow("no width") << QStringLiteral("A B C") << 0 << 3;
}

void FormLayoutTest::captionsBreakWhereALabelBreaksThem() {
    QFETCH(QString, text);
    QFETCH(int, characters);
    QFETCH(int, lines);
    const auto measure = [](const QString &part) { return Twips{qint32(part.size())}; };
    QCOMPARE(CaptionFit::lines(measure, text, Twips{characters}), lines);
}

QTEST_GUILESS_MAIN(FormLayoutTest)
#include "tst_form_layout.moc"
