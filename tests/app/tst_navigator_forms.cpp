#include "combo_list.h"
#include "data_form.h"
#include "frm_main.h"
#include "ifield.h"
#include "inavigator.h"
#include "program_bench.h"
#include "transformer.h"
#include "value_text.h"
#include "window_input.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {
const QString kNavigator = QStringLiteral("fldPageNavigator1");
const QString kNetworks = QStringLiteral("Basic Settings");
const QString kName = QStringLiteral("NetworkID");
const QString kStored = QStringLiteral("CurrentNetworkNr");
const QString kTimer = QStringLiteral("TxDurationTimer");

// The networks form of the largest tier, with three networks of different settings, the third shown.
class Networks : public ProgramBench {
  public:
    Networks() {
        chooseTier(QStringLiteral("Advanced"));
        (void)openForm(kNetworks);
        click("cmdAdd");
        click("cmdAdd");
        for (qint32 record = 1; record <= 3; ++record) {
            setValue(kTimer, record, 10 * record);
            setValue(QStringLiteral("SubaudGenerate_q7r"), record, record % 2);
        }
    }
    void click(const char *button) { WindowInput::click(part<QPushButton>(kNavigator, button)); }
    [[nodiscard]] qint32 position() const {
        return dynamic_cast<Inavigator *>(field(kNavigator))->Inavigator_Position();
    }
    [[nodiscard]] ComboList &list() const { return part<ComboList>(kNavigator, "cboSelector"); }
    void type(const QString &name, const QString &text) {
        auto &editor = part<QLineEdit>(name, "Text1");
        WindowInput::click(editor);
        editor.selectAll();
        WindowInput::type(text);
    }
    // Names of the fields of the stream that do not show the record of the position.
    [[nodiscard]] QString strangers() const {
        QStringList names;
        for (HostControl *control : form()->Iusrfrm_Controls()) {
            Ifield *shown = control->object();
            if (shown == nullptr || shown->Ifield_GetNavigatorStream() != 1 || control->Name() == kNavigator)
                continue;
            const QString stored = value(shown->Ifield_GetUIID(), position());
            const bool same = ValueText::isUndefined(stored) || ValueText::of(shown->Ifield_GetValue()) == stored;
            if (!same || shown->Ifield_GetRecordNr() != position())
                names << control->Name() + u' ' + ValueText::of(shown->Ifield_GetValue()) + u' ' + stored;
        }
        return names.join(QStringLiteral(", "));
    }
};
} // namespace

// The navigator on forms of the catalogue, before the real component.
class tst_navigator_forms final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void fieldsFollowTheNavigator();
    void refusedValueHoldsTheRecord();
    void editGoesIntoTheRecordOnShow();
    void positionIsSharedByTheForms();
    void deletedRecordMovesToTheLastOne();
    void recordInUseIsNotDeleted();
    void capacityIsToldAndKeepsTheRecord();
    void systemsComeAndGo_data();
    void systemsComeAndGo();
};

void tst_navigator_forms::fieldsFollowTheNavigator() {
    Networks bench;
    QCOMPARE(bench.position(), 3);
    for (const char *button : {"cmdFirst", "cmdForward", "cmdLast", "cmdBack"}) {
        bench.click(button);
        QCOMPARE(bench.strangers(), QString());
        QCOMPARE(bench.value(kTimer, bench.position()), ValueText::of(bench.field(kTimer)->Ifield_GetValue()));
        QCOMPARE(bench.value(kStored), QString::number(bench.position()));
        QCOMPARE(bench.list().currentIndex(), bench.position() - 1);
    }
    QCOMPARE(bench.position(), 2);
}

void tst_navigator_forms::refusedValueHoldsTheRecord() {
    Networks bench;
    bench.type(kTimer, QStringLiteral("77"));
    bench.boxes.expect(QStringLiteral("%0:S must lie between %1:S and %2:S in steps of %3:S."), 1);
    bench.click("cmdFirst");
    QCOMPARE(bench.position(), 3);
    QCOMPARE(bench.value(kTimer, 3), QStringLiteral("30"));
}

void tst_navigator_forms::editGoesIntoTheRecordOnShow() {
    Networks bench;
    bench.click("cmdBack");
    bench.type(kTimer, QStringLiteral("70"));
    bench.click("cmdForward");
    QCOMPARE(bench.value(kTimer, 1) + u' ' + bench.value(kTimer, 2) + u' ' + bench.value(kTimer, 3),
             QStringLiteral("10 70 30"));
    QCOMPARE(bench.position(), 3);
}

void tst_navigator_forms::positionIsSharedByTheForms() {
    Networks bench;
    bench.click("cmdBack");
    QVERIFY(bench.openForm(QStringLiteral("Network PTT")));
    QCOMPARE(bench.position(), 2);
    QCOMPARE(bench.strangers(), QString());
    bench.click("cmdFirst");
    QVERIFY(bench.openForm(kNetworks));
    QCOMPARE(bench.position(), 1);
    QCOMPARE(bench.strangers(), QString());
}

void tst_navigator_forms::deletedRecordMovesToTheLastOne() {
    Networks bench;
    bench.click("cmdDelete");
    QCOMPARE(bench.component().GetNumberOfRecords(kName), 2);
    QCOMPARE(bench.position(), 2);
    QCOMPARE(bench.strangers(), QString());
    bench.click("cmdFirst");
    QCOMPARE(bench.value(kTimer, bench.position()), QStringLiteral("10"));
    QCOMPARE(bench.list().count(), 2);
}

void tst_navigator_forms::recordInUseIsNotDeleted() {
    Networks bench;
    bench.click("cmdFirst");
    bench.boxes.expect(QStringLiteral("%0:S: the record cannot be deleted while %1:S %2:S uses it as its %3:S."), 1);
    bench.click("cmdDelete");
    QCOMPARE(bench.component().GetNumberOfRecords(kName), 3);
    QCOMPARE(bench.position(), 1);
}

void tst_navigator_forms::capacityIsToldAndKeepsTheRecord() {
    Networks bench;
    while (bench.component().GetNumberOfRecords(kName) < 32)
        bench.click("cmdAdd");
    bench.click("cmdFirst");
    bench.boxes.expect(QStringLiteral("%0:S: no more records can be added. The greatest number is %1:S."), 1);
    bench.click("cmdAdd");
    QCOMPARE(bench.component().GetNumberOfRecords(kName), 32);
    QCOMPARE(bench.position(), 1);
}

void tst_navigator_forms::systemsComeAndGo_data() {
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("name");
    QTest::newRow("Type 99") << QStringLiteral("Type 99") << QStringLiteral("T99MinGapPeriod_q7r");
    QTest::newRow("MDC1200") << QStringLiteral("MDC1200") << QStringLiteral("MDC1200LeadInDelay");
}

// From none to one and back.
void tst_navigator_forms::systemsComeAndGo() {
    QFETCH(QString, form);
    QFETCH(QString, name);
    ProgramBench bench;
    bench.chooseTier(QStringLiteral("Advanced"));
    QVERIFY(bench.openForm(form));
    const auto click = [&](const char *button) { WindowInput::click(bench.part<QPushButton>(kNavigator, button)); };
    const auto *navigator = dynamic_cast<Inavigator *>(bench.field(kNavigator));
    QCOMPARE(navigator->Inavigator_NumberRecords(), 0);
    click("cmdAdd");
    QCOMPARE(navigator->Inavigator_NumberRecords(), 1);
    QCOMPARE(navigator->Inavigator_Position(), 1);
    QVERIFY(bench.field(name)->Ifield_GetEnabled());
    QCOMPARE(ValueText::of(bench.field(name)->Ifield_GetValue()), bench.value(bench.field(name)->Ifield_GetUIID()));
    click("cmdDelete");
    QCOMPARE(navigator->Inavigator_NumberRecords(), 0);
    QVERIFY(!bench.field(name)->Ifield_GetEnabled());
}

QTEST_MAIN(tst_navigator_forms)
#include "tst_navigator_forms.moc"
