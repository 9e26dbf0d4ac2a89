#include "component_state.h"
#include "data_form.h"
#include "frm_main.h"
#include "ifield.h"
#include "process_values.h"
#include "program_bench.h"
#include "transformer_component.h"
#include "value_text.h"
#include "window_input.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

namespace {
// A component that raises an event of its own from inside the first value that the window sets.
class InterruptingComponent final : public TransformerComponent {
  public:
    using TransformerComponent::TransformerComponent;
    std::function<void(TransformerEvents &)> inside;
    QStringList set;

    void SetValue(const QString &UIID, const QVariant &Value, qint32 RecordNr, bool Validate, bool &OK) override {
        set << UIID + u' ' + ValueText::of(Value);
        TransformerComponent::SetValue(UIID, Value, RecordNr, Validate, OK);
        if (inside)
            state().events.raise(std::exchange(inside, nullptr));
    }
};

using Event = std::function<void(TransformerEvents &)>;
using Edit = std::function<void(const ProgramBench &)>;

void typeInto(const ProgramBench &bench) {
    auto &editor = bench.part<QLineEdit>(QStringLiteral("EconomyTimer"), "Text1");
    WindowInput::click(editor);
    editor.selectAll();
    WindowInput::type(QStringLiteral("25"));
    WindowInput::key(Qt::Key_Tab);
}

void chooseByKey(const ProgramBench &bench) {
    bench.field(QStringLiteral("EconomyDutyCycle"))->Ifield_SetFocus();
    WindowInput::key(Qt::Key_Down);
    WindowInput::key(Qt::Key_Tab);
}

void tick(const ProgramBench &bench) {
    WindowInput::click(*bench.widget(QStringLiteral("ResetOnError"))->findChild<QAbstractButton *>());
}

void typeIntoCell(const ProgramBench &bench) {
    constexpr int kColumn = 1;
    const auto &table = bench.part<QTableView>(QStringLiteral("fldChannelsKX4600"), "TDBGrid1");
    WindowInput::clickAt(*table.viewport(), table.visualRect(table.model()->index(0, kColumn)).center());
    WindowInput::type(QStringLiteral("161.5"));
    WindowInput::key(Qt::Key_Return);
}
} // namespace

// The window while the component tells it things, or has it open another form, from inside the setting of a value.
class tst_re_entry final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void windowStandsWhatComesFromInsideSetValue_data();
    void windowStandsWhatComesFromInsideSetValue();
};

void tst_re_entry::windowStandsWhatComesFromInsideSetValue_data() {
    struct EditRow {
        const char *name;
        const char *form;
        const char *uiid;
        Edit edit;
    };
    struct EventRow {
        const char *name;
        Event event;
    };
    const EditRow edits[] = {{"text", "Economy", "EconomyTimer", &typeInto},
                             {"list", "Economy", "EconomyDutyCycle", &chooseByKey},
                             {"check box", "Start-up", "ResetOnError", &tick},
                             {"cell", "Channels", "RxFreq_q7r", &typeIntoCell}};
    const EventRow events[] = {
        {"update",
         [](TransformerEvents &to) {
             to.TransformerEvents_UpdateUIFieldByUIID(QStringLiteral("EconomyTimer"), 0, 30);
         }},
        {"grid refresh",
         [](TransformerEvents &to) { to.TransformerEvents_RefreshGridByUIID(QStringLiteral("ChannelID_q7r")); }},
        {"other form",
         [](TransformerEvents &to) {
             to.TransformerEvents_ChangeToForm(QStringLiteral("usrctlSpecificationsKX4600"));
         }},
        {"network", [](TransformerEvents &to) { to.TransformerEvents_ChangeToNetwork(); }}};
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("uiid");
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<Event>("event");
    for (const EditRow &edit : edits) {
        for (const EventRow &event : events)
            QTest::addRow("%s, %s", edit.name, event.name)
                << QString::fromLatin1(edit.form) << QString::fromLatin1(edit.uiid) << edit.edit << event.event;
    }
}

void tst_re_entry::windowStandsWhatComesFromInsideSetValue() {
    QFETCH(const QString, form);
    QFETCH(const QString, uiid);
    QFETCH(const Edit, edit);
    QFETCH(const Event, event);
    InterruptingComponent *component = nullptr;
    ProgramBench bench([&component] {
        auto made = std::make_unique<InterruptingComponent>(ComponentPlaces());
        component = made.get();
        return made;
    });
    QVERIFY(bench.openForm(form));
    const QString before = bench.value(uiid);
    component->set.clear();
    component->inside = event;
    edit(bench);
    QVERIFY2(!component->inside, "nothing was set");
    component->set.removeDuplicates(); // closing a form commits its field once more
    QCOMPARE(component->set.filter(uiid + u' ').size(), 1);
    QVERIFY(bench.value(uiid) != before);
    QVERIFY(!bench.errors.HasReported());
    QCOMPARE(bench.window().Services().process.colEnablers.Count(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(bench.window().findChildren<DataForm *>().size(), 1);
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

QTEST_MAIN(tst_re_entry)
#include "tst_re_entry.moc"
