#include "bound_form.h"
#include "cls_tab_manager.h"
#include "mod_ss_tab_fix.h"
#include "rows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr qint32 kParked = -75000;

// A form with a shown page, a parked page and something outside the tab control.
struct PagedForm {
    BoundForm form;
    FakeTab &tab = form.add<FakeTab>(u"SSTab1"_s, QStringList({u"One"_s, u"Two"_s}));
    FakeField &frame = form.add<FakeField>(u"fraShown"_s, u"fldFrame"_s);
    FakeField &inside = form.addText(u"txtInside"_s);
    FakeField &parkedFrame = form.add<FakeField>(u"fraParked"_s, u"fldFrame"_s);
    FakeField &parked = form.addText(u"txtParked"_s);
    FakeField &outside = form.addText(u"txtOutside"_s);

    PagedForm() {
        frame.container = parkedFrame.container = &tab;
        inside.container = &frame;
        parked.container = &parkedFrame;
        parkedFrame.left = kParked + 120;
        parked.left = 90; // relative to its frame: only the control on the tab itself is parked
    }
};
} // namespace

class tst_TabStops : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void onlyTheShownPageHasTabStops() {
        PagedForm page;
        SetPageTabStops(page.tab, page.form.controls);
        QVERIFY(page.tab.tabStop);
        QVERIFY(!page.frame.tabStop);
        QVERIFY(page.inside.tabStop);
        QVERIFY(!page.parkedFrame.tabStop);
        QVERIFY(!page.parked.tabStop);
        QVERIFY(!page.outside.tabStop);

        page.inside.hostEnabled = false;
        SetPageTabStops(page.tab, page.form.controls);
        QVERIFY(!page.inside.tabStop);
        page.inside.hostEnabled = true;
        SetPageTabStops(page.tab, page.form.controls);
        QVERIFY(page.inside.tabStop);
    }

    void anUnreadableControlIsPassedOver() {
        PagedForm page;
        page.frame.failsToRead = true;
        page.form.controls.insert(page.form.controls.begin(), nullptr);
        SetPageTabStops(page.tab, page.form.controls);
        QVERIFY(page.frame.tabStop);
        QVERIFY(page.inside.tabStop);
        QVERIFY(!page.outside.tabStop);
    }

    void lastStopIsTheLastThatCanTakeTheFocus() {
        PagedForm page;
        clsTabManager manager(page.form.services.errors);
        QVERIFY(manager.ClassConstruct(&page.form.controls));
        QCOMPARE(manager.GetLastFocusableTabStop(), &page.outside);
        page.outside.hostEnabled = false;
        QCOMPARE(manager.GetLastFocusableTabStop(), &page.parked);
        page.parked.hostVisible = false;
        QCOMPARE(manager.GetLastFocusableTabStop(), &page.parkedFrame);
        page.parkedFrame.tabStop = false;
        QCOMPARE(manager.GetLastFocusableTabStop(), &page.inside);
        page.inside.failsToRead = true;
        QCOMPARE(manager.GetLastFocusableTabStop(), &page.frame);
        QVERIFY(!manager.ProcessEnterFocus());
        QVERIFY(manager.ProcessExitFocus());
        manager.ClassDeconstruct();
        QVERIFY(manager.GetLastFocusableTabStop() == nullptr);
    }

    void tabIndexesThatDoNotFit() {
        BoundForm form;
        auto &first = form.addText(u"txtFirst"_s);
        auto &second = form.addText(u"txtSecond"_s);
        auto &beyond = form.addText(u"txtBeyond"_s);
        auto &negative = form.addText(u"txtNegative"_s);
        first.tabIndex = 1;
        second.tabIndex = 0;
        beyond.tabIndex = 4;
        negative.tabIndex = -1;
        form.controls.push_back(nullptr);
        beyond.tabIndex = 5;
        clsTabManager manager(form.services.errors);
        QVERIFY(manager.ClassConstruct(&form.controls));
        QCOMPARE(manager.GetLastFocusableTabStop(), &first);
    }
};

QTEST_GUILESS_MAIN(tst_TabStops)
#include "tst_tab_stops.moc"
