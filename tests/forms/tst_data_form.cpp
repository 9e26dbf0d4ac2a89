#include "data_form.h"
#include "form_factory.h"
#include "ienabler.h"
#include "ifield.h"
#include "inavigator.h"
#include "recording_transformer.h"
#include "test_services.h"

#include <QPointer>
#include <QTabWidget>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {
// A window with one form in it, opened as the main window does it.
struct Bench {
    CallLog log;
    RecordingTransformer component{log};
    TestServices services{&component};
    FormFactory factory;
    QWidget window;

    Bench() {
        component.when(u"GetComboItems"_s).answers(QStringList{u"Off"_s, u"On"_s});
        component.when(u"GetValue"_s).answers(u"0"_s);
    }
    DataForm *create(const QString &name) { return factory.CreateForm(name, services.fieldServices(), &window); }
    DataForm *open(const QString &name, QSize size) {
        DataForm *form = create(name);
        form->Iusrfrm_Enabler()->Ienabler_InitialiseFields(-1);
        window.resize(size);
        form->resize(size);
        form->show();
        window.show();
        form->UserControl_Show();
        return form;
    }
};

HostControl *controlOf(DataForm &form, const QString &name) {
    for (HostControl *control : form.Iusrfrm_Controls()) {
        if (control->Name() == name)
            return control;
    }
    return nullptr;
}

ControlDefinition navigator(const QString &name, int stream, const QString &inner) {
    return {name,
            u"fldPageNavigator"_s,
            {{u"NavigatorStream"_s, stream},
             {u"GuideUIID"_s, name + u"Guide"_s},
             {u"PositionStorageUIID"_s, name + u"Stored"_s},
             {u"SliderStyle"_s, 1},
             {u"SubNavigator"_s, inner}},
            {}};
}

// Two navigators of five records each, at the records 2 and 4, and a text field in the stream of each.
struct NestedNavigators {
    Bench bench;
    FormDefinition definition;
    std::unique_ptr<DataForm> form;

    NestedNavigators() {
        bench.component.when(u"GetNumberOfRecords"_s).answers(5);
        bench.component.when(u"GetValue"_s, u"navOuterStored"_s).answers(2);
        bench.component.when(u"GetValue"_s, u"navInnerStored"_s).answers(4);
        definition.name = u"usrctlTest"_s;
        definition.enabler.typeName = u"ctlFormEnabler"_s;
        for (const int stream : {1, 2}) {
            const QString name = u"Text%1"_s.arg(stream);
            definition.controls.push_back(
                {name, u"fldTextField"_s, {{u"ID"_s, name}, {u"NavigatorStream"_s, stream}}, {}});
        }
        definition.controls.push_back(navigator(u"navInner"_s, 2, {}));
        definition.controls.push_back(navigator(u"navOuter"_s, 1, u"navInner"_s));
        form = std::make_unique<DataForm>(definition, bench.services.fieldServices(), &bench.window);
        form->Build(ControlRegistry());
        form->Iusrfrm_Enabler()->Ienabler_InitialiseFields(-1);
        (void)bench.log.take();
    }
    [[nodiscard]] Inavigator &at(const char *name) const {
        return dynamic_cast<Inavigator &>(*controlOf(*form, QString::fromLatin1(name))->object());
    }
    [[nodiscard]] QString records() const {
        QStringList shown;
        for (const char *name : {"navOuter", "Text1", "navInner", "Text2"})
            shown << QString::number(controlOf(*form, QString::fromLatin1(name))->object()->Ifield_GetRecordNr());
        return shown.join(u' ');
    }
};
} // namespace

class DataFormTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"setTabOrder"_s)); }
    void formThatCannotBeMadeIsRefused() {
        Bench bench;
        for (const QString &name : {u"usrctlNothing"_s, QString()}) {
            QVERIFY(!bench.factory.CanCreate(name));
            QVERIFY_THROWS_EXCEPTION(RunTimeError, (void)bench.create(name));
        }
        FormDefinition definition; // with a class that nobody makes
        definition.name = u"usrctlTest"_s;
        definition.enabler.typeName = u"ctlFormEnabler"_s;
        definition.controls.push_back({u"a"_s, u"fldNothing"_s, {}, {}});
        DataForm form(definition, bench.services.fieldServices(), nullptr);
        QVERIFY_THROWS_EXCEPTION(RunTimeError, form.Build(ControlRegistry()));
        QVERIFY(bench.window.children().isEmpty());
    }

    void firstFocusIsTheFirstEnabledFieldOfTheFirstPage() {
        Bench bench;
        bench.component.when(u"GetFieldEnabled"_s, u"PTTPressCallSetup1_q7r"_s).refuses();
        DataForm *form = bench.open(u"usrctlPTT"_s, {700, 500});
        QVERIFY(form->Iusrfrm_ActiveControl() != nullptr);
        QCOMPARE(form->Iusrfrm_ActiveControl()->Name(), u"De-keyAfterPTTCallSetup1_q7r"_s);
        QCOMPARE(form->findChild<QTabWidget *>()->currentIndex(), 0);
    }

    void focusChainFollowsTheTabOrder() {
        Bench bench;
        DataForm *form = bench.open(u"usrctlKeySettingsKX4600"_s, {700, 500});
        QStringList order;
        const QWidget *start = bench.window.focusWidget();
        for (QWidget *widget = bench.window.focusWidget(); order.size() < 8; widget = widget->nextInFocusChain()) {
            QVERIFY(!(widget == start && !order.isEmpty()));
            if ((widget->focusPolicy() & Qt::TabFocus) == 0 || !widget->isVisible())
                continue;
            const QWidget *control = widget;
            while (control != nullptr && controlOf(*form, control->objectName()) == nullptr)
                control = control->parentWidget();
            if (control != nullptr)
                order.push_back(control->objectName());
        }
        QCOMPARE(
            order.join(u' '),
            u"FunctionKey1 FunctionKey2 FunctionKey3 FunctionKey4 FK1Parameter1 FK2Parameter1 FK3Parameter1 FK4Parameter1"_s);
    }

    void onlyTheShownPageHasTabStops() {
        Bench bench;
        bench.component.when(u"GetFieldEnabled"_s, u"PTTPriority2_q7r"_s).refuses();
        DataForm *form = bench.open(u"usrctlPTT"_s, {700, 500});
        const auto stop = [&](const char *name) { return controlOf(*form, QString::fromLatin1(name))->TabStop(); };
        QVERIFY(stop("PTTMonitor1_q7r") && !stop("PTTMonitor2_q7r") && !stop("fldFrame1"));
        form->findChild<QTabWidget *>()->setCurrentIndex(1);
        QVERIFY(!stop("PTTMonitor1_q7r") && stop("PTTMonitor2_q7r") && !stop("PTTPriority2_q7r") && !stop("fldFrame4"));
    }

    void parkedControlsStandFarToTheLeft() {
        Bench bench;
        DataForm *form = bench.open(u"usrctlPTT"_s, {700, 500});
        HostControl *parked = controlOf(*form, u"fldFrame6"_s);
        const qint32 before = parked->Left();
        QVERIFY(before < -10000 && controlOf(*form, u"fldFrame1"_s)->Left() >= 0);
        form->resize(1400, 1000);
        QVERIFY(parked->Left() > before && parked->Left() < -10000);
        const qint32 scaled = parked->Left();
        form->findChild<QTabWidget *>()->setCurrentIndex(1);
        QCOMPARE(parked->Left(), scaled + 75000);
    }

    void pageWithoutVisibleFieldsIsHidden() {
        Bench bench;
        bench.component.when(u"GetProgramAsAvailable"_s).answers(true);
        bench.component.when(u"GetVersionLevel"_s).answers(1);
        FormCatalogue catalogue;
        for (const PlacedControl &placed : catalogue.form(u"usrctlPTT"_s).placedControls()) {
            if (placed.page == 0)
                bench.component.when(u"GetFieldVersionLevel"_s, placed.control->id()).answers(2);
        }
        DataForm *form = bench.open(u"usrctlPTT"_s, {700, 500});
        const QTabWidget *tabs = form->findChild<QTabWidget *>();
        QVERIFY(!tabs->isTabVisible(0) && tabs->isTabVisible(1) && tabs->isTabVisible(2));
        QCOMPARE(tabs->currentIndex(), 1);
    }

    void fixedFormKeepsItsPlacesWhenItGrows() {
        Bench bench;
        DataForm *fixed = bench.open(u"usrctlEconomyKX4600"_s, {700, 500});
        const QRect before = fixed->findChild<QWidget *>(u"fldFrame2"_s)->geometry();
        fixed->resize(1400, 1000);
        QCOMPARE(fixed->findChild<QWidget *>(u"fldFrame2"_s)->geometry(), before);
        DataForm *growing = bench.open(u"usrctlRxMonitorKX4600"_s, {700, 500});
        const int width = growing->findChild<QWidget *>(u"fldFrame2"_s)->width();
        growing->resize(1400, 1000);
        QCOMPARE(growing->findChild<QWidget *>(u"fldFrame2"_s)->width(), 2 * width);
    }

    // The component may ask for another form while a field's value is on its way to it.
    void closingFromInsideItsOwnFieldIsSafe() {
        Bench bench;
        QPointer<DataForm> form = bench.open(u"usrctlEconomyKX4600"_s, {700, 500});
        bench.component.when(u"SetValue"_s).runs([&] {
            form->hide();
            form->Iusrfrm_Terminate();
            form->deleteLater();
        });
        Ifield *field = controlOf(*form, u"EconomyTimer"_s)->object();
        field->Ifield_SetValue(u"7"_s, true);
        QCOMPARE(bench.log.linesOf(u"SetValue"_s).size(), 1);
        QVERIFY(!form.isNull());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(form.isNull());
    }

    void outerNavigatorSendsTheInnerOneToItsFirstRecord() {
        const NestedNavigators nested;
        // The outer stands behind the inner: restoring its position has moved the inner one already.
        QCOMPARE(nested.records(), u"2 2 1 1"_s);
        nested.at("navInner").Inavigator_Position(3);
        QCOMPARE(nested.records(), u"2 2 3 3"_s);
        nested.at("navOuter").Inavigator_Position(5);
        QCOMPARE(nested.records(), u"5 5 1 1"_s);
        const QStringList stored = nested.bench.log.linesOf(u"SetValue"_s);
        QCOMPARE(
            stored.join(u' '),
            u"SetValue(navInnerStored, 3, 1, true) SetValue(navOuterStored, 5, 1, true) SetValue(navInnerStored, 1, 1, true)"_s);
    }

    void calibrationFormOpensEmpty() { // the route to it must not end the program
        Bench bench;
        DataForm *form = bench.open(u"usrctlCalSpecifications"_s, {700, 500});
        QVERIFY(form->isVisible() && form->Iusrfrm_Controls().empty());
        QVERIFY(form->Iusrfrm_Enabler()->Ienabler_ValidateForm(false));
    }

    void invalidFormHoldsTheNavigator() {
        NestedNavigators nested;
        nested.bench.component.when(u"ValidateForm"_s).refuses();
        nested.at("navOuter").Inavigator_Position(5);
        QCOMPARE(nested.records(), u"2 2 1 1"_s);
        QCOMPARE(nested.bench.log.linesOf(u"SetValue"_s), QStringList());
    }
};

QTEST_MAIN(DataFormTest)
#include "tst_data_form.moc"
