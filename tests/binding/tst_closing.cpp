#include "bound_form.h"
#include "rows.h"

#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
struct FullForm : BoundForm {
    FullForm() {
        addText(u"txtName"_s);
        add<FakeCombo>(u"cboTone"_s).value = 1;
        add<FakeIdTracker>(u"idtScan"_s);
        add<FakeSlider>(u"sldVolume"_s);
        addCheckbox(u"chkBeep"_s).value = 1;
        add<FakeGrid>(u"grdList"_s, u"A"_s);
        add<FakeGrid>(u"grdOther"_s, u"A"_s);
        navigator.gridControl = u"grdList"_s;
        component.when(u"GetComboItems"_s).answers(QStringList(u"A|1"_s));
        component.when(u"GetGridData"_s).answers(QStringList(u"1"_s));
        component.when(u"GetProgramAsAvailable"_s).answers(true);
        component.when(u"GetRecordDeletedRefreshNeeded"_s).answers(true);
        bind();
        field(u"txtName"_s).value = u"typed"_s;
    }
    FakeNavigator &navigator = add<FakeNavigator>(u"navGuide"_s);

    [[nodiscard]] FakeField &field(const QString &name) const {
        const auto isNamed = [&](const HostControl *control) { return control->Name() == name; };
        return dynamic_cast<FakeField &>(**std::ranges::find_if(controls, isNamed));
    }
    // True: the event holds the focus.
    bool run(const QString &name, const QString &event) {
        bool flag = false;
        const std::shared_ptr<ctlFormEnabler> held = event.isEmpty() || event == u"Refresh" ? enabler : nullptr;
        if (event.isEmpty())
            held->InitialiseField(itemOf(field(name)));
        else if (event == u"Refresh")
            held->Ienabler_RefreshGridByUIID(u"A"_s);
        else if (event == u"Position")
            navigator.Inavigator_Position(2);
        else if (event == u"DeleteRecord" || event == u"ManualValidate")
            field(name).raise(FieldEvent(event, out(flag)));
        else
            field(name).raise(FieldEvent(event, in(u"A"_s), out(flag)));
        return flag && event == u"ManualValidate";
    }
};
} // namespace

// A form that is closed while the component is asked: nothing of it is touched any more, nothing holds the focus, and
// no error arises.
class tst_Closing : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void nothingIsTouchedBehindIt() {
        // event: none for the field's initialisation; operations: those in which the form is closed, one at a time
        for (const auto &[name, event, operations] : Rows<QString, QString, QStringList>{
                 {"text", u"txtName"_s, {}, {u"GetLabel"_s, u"GetValue"_s, u"GetFieldEnabled"_s, u"GetHelpID"_s}},
                 {"combo", u"cboTone"_s, {}, {u"GetComboItems"_s, u"GetIsComboIndex"_s, u"GetValue"_s}},
                 {"ID tracker", u"idtScan"_s, {}, {u"GetValue"_s, u"GetComboItems"_s, u"GetVersionLevel"_s}},
                 {"slider", u"sldVolume"_s, {}, {u"GetMinValue"_s, u"GetMaxValue"_s, u"GetStepValue"_s}},
                 {"check box", u"chkBeep"_s, {}, {u"GetValue"_s, u"GetFieldVersionLevel"_s}},
                 {"grid", u"grdList"_s, {}, {u"GetGridData"_s}},
                 {"navigator", u"navGuide"_s, {}, {u"GetNavigatorLabel"_s, u"GetNumberOfRecords"_s}},
                 {"choice", u"cboTone"_s, u"Click"_s, {u"SetValue"_s}},
                 {"leaving a text", u"txtName"_s, u"ManualValidate"_s, {u"SetValue"_s}},
                 {"escape", u"chkBeep"_s, u"Escape"_s, {u"SetValue"_s}},
                 {"move", u"navGuide"_s, u"Position"_s, {u"GetValue"_s}},
                 {"navigator add", u"navGuide"_s, u"AddRecordNavigator"_s, {u"AddRecord"_s}},
                 {"navigator repeat", u"navGuide"_s, u"RepeatRecordNavigator"_s, {u"GetNumberOfRecords"_s}},
                 {"navigator delete", u"navGuide"_s, u"DeleteRecordNavigator"_s, {u"DeleteRecord"_s}},
                 {"grid add", u"grdList"_s, u"AddRecord"_s, {u"AddRecord"_s}},
                 {"grid insert", u"grdList"_s, u"InsertRecord"_s, {u"GetGridData"_s}},
                 {"grid repeat", u"grdList"_s, u"RepeatRecord"_s, {u"GetNumberOfRecords"_s}},
                 {"grid delete", u"grdList"_s, u"DeleteRecord"_s, {u"GetRecordDeletedRefreshNeeded"_s}},
                 {"grid sort", u"grdList"_s, u"SortColumnByUIID"_s, {u"SortColumn"_s}},
                 {"refresh of two grids", u"grdList"_s, u"Refresh"_s, {u"GetGridData"_s}},
             }) {
            for (const QString &operation : operations) {
                for (const bool accepted : {true, false}) {
                    FullForm form;
                    if (event == u"Escape")
                        form.field(name).gotFocus();
                    if (event == u"Position")
                        form.navigator.storageUIID = u"Pos"_s;
                    if (operation == u"SetValue")
                        form.component.when(operation).answers(accepted);
                    form.component.when(operation).runs([&form] {
                        form.close();
                        (void)form.log.take();
                    });
                    QVERIFY(!form.run(name, event));
                    QVERIFY2(form.enabler == nullptr, qPrintable(operation));
                    QCOMPARE(form.log.lines().filter(u"."_s), QStringList());
                    QVERIFY(!form.services.process.gblnInitialisingFields);
                    if (event == u"Refresh")
                        QCOMPARE(form.log.take(), QStringList()); // the second grid is not asked for
                }
            }
        }
    }

    // A development run raises the error through every tail, when item and enabler are held by nobody but the stack.
    void anErrorBehindItKeepsItsTrace() {
        BoundForm form;
        ErrorReport tracing(true);
        form.enabler = std::make_shared<ctlFormEnabler>(form.controls,
                                                        FieldServices{.process = form.services.process,
                                                                      .translation = form.services.translation,
                                                                      .errors = tracing,
                                                                      .boxes = form.services.boxes,
                                                                      .clipboard = form.services.clipboard,
                                                                      .shell = form.services.shell},
                                                        nullptr);
        auto &field = form.addCheckbox(u"chkTone"_s);
        form.bind();
        form.component.when(u"SetValue"_s).raises({ErrorNumber::kBadArgument, QString(), u"broken"_s}).runs([&form] {
            form.close();
        });
        QString trace;
        try {
            field.raise(FieldEvent(u"Click"_s));
        } catch (const RunTimeError &error) {
            trace = error.Description;
        }
        const QString title = u"KX4600 Programming Application: "_s;
        QCOMPARE(trace, title + u"frmField_ObjectEvent\r\n"_s + title + u"Notify_Click\r\n"_s + title +
                            u"Notify_Change\r\nbroken"_s);
    }
};

QTEST_GUILESS_MAIN(tst_Closing)
#include "tst_closing.moc"
