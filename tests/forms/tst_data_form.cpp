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

namespace {
// A window with one form in it, opened as the main window does it.
struct Bench {
    CallLog log;
    RecordingTransformer component{log};
    TestServices services{&component};
    FormFactory factory;
    QWidget window;

    Bench() {
        component.when(QStringLiteral("GetComboItems"))
            .answers(QStringList{QStringLiteral("Off"), QStringLiteral("On")});
        component.when(QStringLiteral("GetValue")).answers(QStringLiteral("0"));
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
} // namespace

class DataFormTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("setTabOrder"))); }
    void formWithAControlThatCannotBeMadeIsRefused_data();
    void formWithAControlThatCannotBeMadeIsRefused();
    void firstFocusIsTheFirstEnabledFieldOfTheFirstPage();
    void focusChainFollowsTheTabOrder();
    void onlyTheShownPageHasTabStops();
    void parkedControlsStandFarToTheLeft();
    void pageWithoutVisibleFieldsIsHidden();
    void fixedFormKeepsItsPlacesWhenItGrows();
    void activeControlIsTheFieldNotItsFrame();
    void closingFromInsideItsOwnFieldIsSafe();
    void terminatedFormHearsNothingMore();
    void outerNavigatorSendsTheInnerOneToItsFirstRecord();
    void calibrationFormOpensEmpty();
    void invalidFormHoldsTheNavigator();
};

void DataFormTest::formWithAControlThatCannotBeMadeIsRefused_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown form") << QStringLiteral("usrctlNothing");
    QTest::newRow("empty name") << QString();
    QTest::newRow("class that nobody makes") << QStringLiteral("usrctlTest");
}

void DataFormTest::formWithAControlThatCannotBeMadeIsRefused() {
    QFETCH(QString, name);
    Bench bench;
    try {
        if (name != u"usrctlTest") {
            QVERIFY(!bench.factory.CanCreate(name));
            (void)bench.create(name);
        } else {
            FormDefinition definition;
            definition.name = name;
            definition.enabler.typeName = QStringLiteral("ctlFormEnabler");
            definition.controls.push_back({QStringLiteral("a"), QStringLiteral("fldNothing"), {}, {}});
            DataForm form(definition, bench.services.fieldServices(), nullptr);
            form.Build(ControlRegistry());
        }
        QFAIL("it was made");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.Number, ErrorNumber::kCollectionKey);
    }
    QVERIFY(bench.window.children().isEmpty());
}

void DataFormTest::firstFocusIsTheFirstEnabledFieldOfTheFirstPage() {
    Bench bench;
    bench.component.when(QStringLiteral("GetFieldEnabled"), QStringLiteral("PTTPressCallSetup1_q7r")).refuses();
    DataForm *form = bench.open(QStringLiteral("usrctlPTT"), {700, 500});
    QVERIFY(form->Iusrfrm_ActiveControl() != nullptr);
    QCOMPARE(form->Iusrfrm_ActiveControl()->Name(), QStringLiteral("De-keyAfterPTTCallSetup1_q7r"));
    QCOMPARE(form->findChild<QTabWidget *>()->currentIndex(), 0);
}

void DataFormTest::focusChainFollowsTheTabOrder() {
    Bench bench;
    DataForm *form = bench.open(QStringLiteral("usrctlKeySettingsKX4600"), {700, 500});
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
    QCOMPARE(order.join(u' '), QStringLiteral("FunctionKey1 FunctionKey2 FunctionKey3 FunctionKey4 FK1Parameter1 "
                                              "FK2Parameter1 FK3Parameter1 FK4Parameter1"));
}

void DataFormTest::onlyTheShownPageHasTabStops() {
    Bench bench;
    bench.component.when(QStringLiteral("GetFieldEnabled"), QStringLiteral("PTTPriority2_q7r")).refuses();
    DataForm *form = bench.open(QStringLiteral("usrctlPTT"), {700, 500});
    const auto stop = [&](const char *name) { return controlOf(*form, QString::fromLatin1(name))->TabStop(); };
    QVERIFY(stop("PTTMonitor1_q7r") && !stop("PTTMonitor2_q7r") && !stop("fldFrame1"));
    form->findChild<QTabWidget *>()->setCurrentIndex(1);
    QVERIFY(!stop("PTTMonitor1_q7r") && stop("PTTMonitor2_q7r") && !stop("PTTPriority2_q7r") && !stop("fldFrame4"));
}

void DataFormTest::parkedControlsStandFarToTheLeft() {
    Bench bench;
    DataForm *form = bench.open(QStringLiteral("usrctlPTT"), {700, 500});
    HostControl *parked = controlOf(*form, QStringLiteral("fldFrame6"));
    const qint32 before = parked->Left();
    QVERIFY(before < -10000 && controlOf(*form, QStringLiteral("fldFrame1"))->Left() >= 0);
    form->resize(1400, 1000);
    QVERIFY(parked->Left() > before && parked->Left() < -10000);
    const qint32 scaled = parked->Left();
    form->findChild<QTabWidget *>()->setCurrentIndex(1);
    QCOMPARE(parked->Left(), scaled + 75000);
}

void DataFormTest::pageWithoutVisibleFieldsIsHidden() {
    Bench bench;
    bench.component.when(QStringLiteral("GetProgramAsAvailable")).answers(true);
    bench.component.when(QStringLiteral("GetVersionLevel")).answers(1);
    for (const PlacedControl &placed : FormCatalogue().form(QStringLiteral("usrctlPTT")).placedControls()) {
        if (placed.page == 0)
            bench.component.when(QStringLiteral("GetFieldVersionLevel"), placed.control->id()).answers(2);
    }
    DataForm *form = bench.open(QStringLiteral("usrctlPTT"), {700, 500});
    const QTabWidget *tabs = form->findChild<QTabWidget *>();
    QVERIFY(!tabs->isTabVisible(0) && tabs->isTabVisible(1) && tabs->isTabVisible(2));
    QCOMPARE(tabs->currentIndex(), 1);
}

void DataFormTest::fixedFormKeepsItsPlacesWhenItGrows() {
    Bench bench;
    DataForm *fixed = bench.open(QStringLiteral("usrctlEconomyKX4600"), {700, 500});
    const QRect before = fixed->findChild<QWidget *>(QStringLiteral("fldFrame2"))->geometry();
    fixed->resize(1400, 1000);
    QCOMPARE(fixed->findChild<QWidget *>(QStringLiteral("fldFrame2"))->geometry(), before);
    DataForm *growing = bench.open(QStringLiteral("usrctlRxMonitorKX4600"), {700, 500});
    const int width = growing->findChild<QWidget *>(QStringLiteral("fldFrame2"))->width();
    growing->resize(1400, 1000);
    QCOMPARE(growing->findChild<QWidget *>(QStringLiteral("fldFrame2"))->width(), 2 * width);
}

void DataFormTest::activeControlIsTheFieldNotItsFrame() {
    Bench bench;
    DataForm *form = bench.open(QStringLiteral("usrctlEconomyKX4600"), {700, 500});
    controlOf(*form, QStringLiteral("EconomyDutyCycle"))->SetFocus();
    QCOMPARE(form->Iusrfrm_ActiveControl()->Name(), QStringLiteral("EconomyDutyCycle"));
    bench.window.setFocusPolicy(Qt::StrongFocus);
    bench.window.setFocus();
    QCOMPARE(form->Iusrfrm_ActiveControl(), nullptr);
}

// The component may ask for another form while a field's value is on its way to it.
void DataFormTest::closingFromInsideItsOwnFieldIsSafe() {
    Bench bench;
    QPointer<DataForm> form = bench.open(QStringLiteral("usrctlEconomyKX4600"), {700, 500});
    bench.component.when(QStringLiteral("SetValue")).runs([&] {
        form->hide();
        form->Iusrfrm_Terminate();
        form->deleteLater();
    });
    Ifield *field = controlOf(*form, QStringLiteral("EconomyTimer"))->object();
    field->Ifield_SetValue(QStringLiteral("7"), true);
    QCOMPARE(bench.log.linesOf(QStringLiteral("SetValue")).size(), 1);
    QVERIFY(!form.isNull());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(form.isNull());
}

void DataFormTest::terminatedFormHearsNothingMore() {
    Bench bench;
    std::unique_ptr<DataForm> form(bench.open(QStringLiteral("usrctlEconomyKX4600"), {700, 500}));
    const std::shared_ptr<Ienabler> enabler = form->Iusrfrm_Enabler();
    Ifield *field = controlOf(*form, QStringLiteral("EconomyTimer"))->object();
    form->Iusrfrm_Terminate();
    form->Iusrfrm_Terminate();
    (void)bench.log.take();
    field->Ifield_SetValue(QStringLiteral("9"), true);
    QCOMPARE(bench.log.lines(), QStringList());
    QCOMPARE(field->Ifield_WrapperCtrlItem(), nullptr);
    form.reset();
    QCOMPARE(enabler->Ienabler_GetActiveControl(), nullptr);
}

namespace {
ControlDefinition navigator(const QString &name, int stream, const QString &inner) {
    return {name,
            QStringLiteral("fldPageNavigator"),
            {{QStringLiteral("NavigatorStream"), stream},
             {QStringLiteral("GuideUIID"), name + QStringLiteral("Guide")},
             {QStringLiteral("PositionStorageUIID"), name + QStringLiteral("Stored")},
             {QStringLiteral("SliderStyle"), 1},
             {QStringLiteral("SubNavigator"), inner}},
            {}};
}

// Two navigators of five records each, at the records 2 and 4, and a text field in the stream of each.
struct NestedNavigators {
    Bench bench;
    FormDefinition definition;
    std::unique_ptr<DataForm> form;

    NestedNavigators() {
        bench.component.when(QStringLiteral("GetNumberOfRecords")).answers(5);
        bench.component.when(QStringLiteral("GetValue"), QStringLiteral("navOuterStored")).answers(2);
        bench.component.when(QStringLiteral("GetValue"), QStringLiteral("navInnerStored")).answers(4);
        definition.name = QStringLiteral("usrctlTest");
        definition.enabler.typeName = QStringLiteral("ctlFormEnabler");
        for (const int stream : {1, 2}) {
            const QString name = QStringLiteral("Text%1").arg(stream);
            definition.controls.push_back({name,
                                           QStringLiteral("fldTextField"),
                                           {{QStringLiteral("ID"), name}, {QStringLiteral("NavigatorStream"), stream}},
                                           {}});
        }
        definition.controls.push_back(navigator(QStringLiteral("navInner"), 2, {}));
        definition.controls.push_back(navigator(QStringLiteral("navOuter"), 1, QStringLiteral("navInner")));
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

void DataFormTest::outerNavigatorSendsTheInnerOneToItsFirstRecord() {
    const NestedNavigators nested;
    // The outer stands behind the inner: restoring its position has moved the inner one already.
    QCOMPARE(nested.records(), QStringLiteral("2 2 1 1"));
    nested.at("navInner").Inavigator_Position(3);
    QCOMPARE(nested.records(), QStringLiteral("2 2 3 3"));
    nested.at("navOuter").Inavigator_Position(5);
    QCOMPARE(nested.records(), QStringLiteral("5 5 1 1"));
    const QStringList stored = nested.bench.log.linesOf(QStringLiteral("SetValue"));
    QCOMPARE(stored.join(u' '),
             QStringLiteral("SetValue(navInnerStored, 3, 1, true) SetValue(navOuterStored, 5, 1, true) "
                            "SetValue(navInnerStored, 1, 1, true)"));
}

// The route to it must not end the program.
void DataFormTest::calibrationFormOpensEmpty() {
    Bench bench;
    QVERIFY(bench.factory.CanCreate(QStringLiteral("USRCTLCALSPECIFICATIONS")));
    DataForm *form = bench.open(QStringLiteral("usrctlCalSpecifications"), {700, 500});
    QVERIFY(form->isVisible() && form->Iusrfrm_Controls().empty());
    QCOMPARE(form->TypeName(), QStringLiteral("usrctlCalSpecifications"));
    QVERIFY(form->Iusrfrm_Enabler()->Ienabler_ValidateForm(false));
}

void DataFormTest::invalidFormHoldsTheNavigator() {
    NestedNavigators nested;
    nested.bench.component.when(QStringLiteral("ValidateForm")).refuses();
    nested.at("navOuter").Inavigator_Position(5);
    QCOMPARE(nested.records(), QStringLiteral("2 2 1 1"));
    QCOMPARE(nested.bench.log.linesOf(QStringLiteral("SetValue")), QStringList());
}

QTEST_MAIN(DataFormTest)
#include "tst_data_form.moc"
