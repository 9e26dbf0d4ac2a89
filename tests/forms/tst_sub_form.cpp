#include "component_listener.h"
#include "control_registry.h"
#include "data_form.h"
#include "field_control.h"
#include "field_properties.h"
#include "fld_sub_form_call_up.h"
#include "focus_guard.h"
#include "form_factory.h"
#include "frm_sub_form.h"
#include "ienabler.h"
#include "inavigator.h"
#include "test_services.h"
#include "value_text.h"
#include "window_input.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace {
const QString kForm = QStringLiteral("usrctlFreeFormatDetail");
const QString kBurst = QStringLiteral("FreeFormBurstB");
const QString kGap = QStringLiteral("FreeFormGap1");
const QString kDigits = QStringLiteral("FreeForm2DigitStatus");

// A navigator that shows nothing, and always moves where it is told.
class PlainNavigator final : public FieldControl, public Inavigator {
  public:
    using FieldControl::FieldControl;
    qint32 position = 0;

    QVariant Ifield_GetValue() override { return position; }
    QVariant Ifield_SetName(const QString &Name) override { return Name; }
    QString Ifield_GetName() const override { return {}; }
    bool Ifield_SetValue(const QVariant & /*Value*/, bool /*blnValidate*/) override { return true; }
    void Ifield_SetEnabled() override {}
    void Ifield_SetDisabled() override {}
    void Ifield_SetInvisible() override {}
    bool Ifield_GetEnabled() const override { return true; }
    void Ifield_UIIDNotFound() override {}
    QString Ifield_GetTypeName() const override { return QStringLiteral("fldPageNavigator"); }
    void Ifield_SetFocus() override {}
    TwipSize SetControlSize(const TwipSize &size) override { return size; }
    bool ControlEnabled() const override { return true; }

    qint32 Inavigator_NumberRecords() const override { return 7; }
    QString Inavigator_GridID() const override { return {}; }
    QString Inavigator_GuideUIID() const override { return {}; }
    QVariant Inavigator_GuideValue() const override { return {}; }
    void Inavigator_NumberRecords(qint32 /*NewNumber*/) override {}
    qint32 Inavigator_NavigatorStream() const override { return 1; }
    qint32 Inavigator_Position() const override { return position; }
    void Inavigator_Position(qint32 NewPosition) override {
        position = NewPosition;
        raise(FieldEvent(QStringLiteral("ChangedPosition"), in(QString()), in(qint32(1)), in(position)));
    }
    QString Inavigator_SubNavigator() const override { return {}; }
    void Inavigator_ForcePositionChange(qint32 lngPosition) override { Inavigator_Position(lngPosition); }
    QString Inavigator_StoragePositionUIID() const override { return {}; }
    QString Inavigator_GridControl() const override { return {}; }
};

// Passes the component's events on as the main window does.
class Relay {
  public:
    Relay(Transformer &component, TestServices &services) : mServices(services) {
        mListener.onEvent = [this](const QString &line) { hear(line); };
        component.AddListener(&mListener);
    }
    QStringList messages; // those that the user would have seen

  private:
    void hear(const QString &line) {
        const QStringList words = line.split(u' ');
        const QStringList &told = mServices.shell.told;
        if (words.first() == u"MsgBox" && (told.isEmpty() || told.last() != u"SilentMode(true)"))
            messages << line;
        for (const auto &enabler : mServices.process.colEnablers.All()) {
            if (words.first() == u"UpdateUIFieldByUIID")
                enabler->Ienabler_UpdateUIFieldByUIID(words.at(1), words.at(2).toInt(), words.mid(3).join(u' '));
            if (words.first() == u"SetEnableDisableByUIID")
                enabler->Ienabler_SetEnableDisableByUIID(words.at(1), words.at(2) == u"1");
        }
    }

    TestServices &mServices;
    ComponentListener mListener;
};

// The window of free format sequences on the real component.
struct Bench {
    TransformerComponent component{ComponentPlaces{}};
    TestServices services{&component};
    Relay relay{component, services};
    FocusGuard guard{services.errors};
    FormFactory factory;
    QWidget main;
    QString keyInside; // the current enabler key while the window was open

    Bench() {
        component.ChangeTier(QStringLiteral("Advanced"));
        qint32 added = 0;
        bool ok = false;
        component.AddRecord(QStringLiteral("SignalSystemId_q7r"), QString(), added, ok); // with seven sequences
        if (!ok)
            qFatal("no selcall system");
        component.SaveForm(QStringLiteral("Advanced"));
        services.process.CurrentEnablerKey = QStringLiteral("Main");
        factory.Registry().Add(QStringLiteral("fldPageNavigator"),
                               [](const FieldServices &with, const FieldProperties & /*properties*/, QWidget *parent) {
                                   return new PlainNavigator(with, parent);
                               });
        main.resize(300, 200);
        WindowInput::activate(main);
    }
    ~Bench() { component.ShutDown(); }

    // Opens the window on a record and runs user in its loop; a window that is then still open is an error.
    void open(qint32 record, const std::function<void(frmSubForm &)> &user) {
        frmSubForm window(factory, services.fieldServices(), &main);
        window.Tag(kForm);
        QTimer::singleShot(0, &window, [&] {
            QTRY_COMPARE(QApplication::activeWindow(), &window);
            keyInside = services.process.CurrentEnablerKey;
            user(window);
            if (window.isVisible())
                window.hide(); // as the main window ends it after an error
        });
        window.OpenSubForm(record);
        QCOMPARE(services.process.CurrentEnablerKey, QStringLiteral("Main"));
        QVERIFY(services.process.colEnablers.Item(QStringLiteral("Sub")) == nullptr);
    }
    [[nodiscard]] QString stored(const QString &uiid, qint32 record) {
        return ValueText::of(component.GetValue(uiid, record));
    }
    // Burst, gap and digits of a record.
    [[nodiscard]] QString record(qint32 number) {
        return QStringList{stored(kBurst, number), stored(kGap, number), stored(kDigits, number)}.join(u' ');
    }
};

template <class Part>
Part &partOf(const frmSubForm &window, const QString &field, const char *part) {
    auto *control = window.findChild<QWidget *>(field);
    auto *found = control == nullptr ? nullptr : control->findChild<Part *>(QString::fromLatin1(part));
    if (found == nullptr)
        qFatal("no part %s of %s", part, qPrintable(field));
    return *found;
}
void type(const frmSubForm &window, const QString &text) {
    auto &box = partOf<QLineEdit>(window, kBurst, "Text1");
    WindowInput::click(box);
    box.selectAll();
    WindowInput::type(text);
}
// One edit of each kind of field.
void editAll(const frmSubForm &window, const QString &burst) {
    type(window, burst);
    WindowInput::key(Qt::Key_Return); // the first gap needs it
    auto &gap = partOf<QComboBox>(window, kGap, "Combo1");
    gap.setFocus();
    WindowInput::key(Qt::Key_Down);
    WindowInput::click(partOf<QWidget>(window, kDigits, "Check1"));
}
void press(const frmSubForm &window, const char *button) {
    WindowInput::click(*window.findChild<QPushButton *>(QString::fromLatin1(button)));
}
PlainNavigator &navigatorOf(const frmSubForm &window) {
    return dynamic_cast<PlainNavigator &>(*window.findChild<QWidget *>(QStringLiteral("fldPageNavigator1")));
}
} // namespace

class tst_sub_form final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("setTabOrder"))); }
    void okKeepsTheEditsOfItsRecord();
    void leavingPutsEverythingBack_data();
    void leavingPutsEverythingBack();
    void closingByCodePutsNothingBack();
    void eachRecordGetsItsOwnBack();
    void refusedTextHoldsTheWindow();
    void enterAndEscapeBelongToTheFields();
    void firstFieldHasTheFocus();
    void unknownFormIsReportedAndLeavesNothing();
    void callUpOpensTheWindowOnce();
    void callUpsFollowTheirNavigator();
};

void tst_sub_form::okKeepsTheEditsOfItsRecord() {
    Bench bench;
    const QString third = bench.record(3);
    bench.open(2, [](const frmSubForm &window) {
        editAll(window, QStringLiteral("12345"));
        press(window, "OKButton");
        QVERIFY(!window.isVisible());
    });
    QCOMPARE(bench.keyInside, QStringLiteral("Sub"));
    QCOMPARE(bench.record(2), QStringLiteral("12345 1 1"));
    QCOMPARE(bench.record(3), third);
    QVERIFY(!bench.component.GetFormIsDirty());
}

void tst_sub_form::leavingPutsEverythingBack_data() {
    QTest::addColumn<QString>("way");
    QTest::newRow("cancel") << "cancel";
    QTest::newRow("close box") << "close box";
    QTest::newRow("cancel by Enter") << "enter";
}

void tst_sub_form::leavingPutsEverythingBack() {
    QFETCH(QString, way);
    Bench bench;
    const QString before = bench.record(2);
    bench.open(2, [&](frmSubForm &window) {
        editAll(window, QStringLiteral("12345"));
        QCOMPARE(bench.record(2), QStringLiteral("12345 1 1"));
        auto *cancel = window.findChild<QPushButton *>(QStringLiteral("cmdCancel"));
        if (way == u"enter") {
            cancel->setFocus();
            WindowInput::key(Qt::Key_Return);
        } else if (way == u"cancel") {
            press(window, "cmdCancel");
        } else {
            window.close();
        }
        QVERIFY(!window.isVisible());
    });
    QCOMPARE(bench.record(2), before);
    QVERIFY(bench.relay.messages.isEmpty());
    QCOMPARE(bench.services.shell.told.last(), QStringLiteral("SilentMode(false)"));
}

void tst_sub_form::closingByCodePutsNothingBack() {
    Bench bench;
    bench.open(2, [](frmSubForm &window) {
        editAll(window, QStringLiteral("12345"));
        window.hide();
    });
    QCOMPARE(bench.record(2), QStringLiteral("12345 1 1"));
}

void tst_sub_form::eachRecordGetsItsOwnBack() {
    Bench bench;
    const QStringList before{bench.record(2), bench.record(3), bench.record(4)};
    for (const bool endOnFirst : {false, true}) {
        bench.open(2, [&](const frmSubForm &window) {
            editAll(window, QStringLiteral("111"));
            for (const qint32 record : {3, 4}) {
                navigatorOf(window).Inavigator_Position(record);
                editAll(window, QString::number(record));
            }
            if (endOnFirst)
                navigatorOf(window).Inavigator_Position(2);
            QCOMPARE(bench.stored(kBurst, 3), QStringLiteral("3"));
            press(window, "cmdCancel");
        });
        QCOMPARE((QStringList{bench.record(2), bench.record(3), bench.record(4)}), before);
    }
}

void tst_sub_form::refusedTextHoldsTheWindow() {
    Bench bench;
    const QString before = bench.record(2);
    bench.open(2, [&](frmSubForm &window) {
        auto &box = partOf<QLineEdit>(window, kBurst, "Text1");
        WindowInput::click(box);
        box.setText(QStringLiteral("?!"));
        press(window, "OKButton");
        QVERIFY(window.isVisible());
        QVERIFY(box.hasFocus());
        QCOMPARE(box.text(), QStringLiteral("?!"));
        QCOMPARE(bench.relay.messages.size(), 1);
        window.close(); // the frame's box asks no field
        QVERIFY(!window.isVisible());
    });
    QCOMPARE(bench.record(2), before);
    QCOMPARE(bench.relay.messages.size(), 1);
}

void tst_sub_form::enterAndEscapeBelongToTheFields() {
    Bench bench;
    bench.open(2, [&](const frmSubForm &window) {
        type(window, QStringLiteral("123"));
        WindowInput::key(Qt::Key_Return);
        QCOMPARE(bench.stored(kBurst, 2), QStringLiteral("123"));
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
            partOf<QWidget>(window, kDigits, "Check1").setFocus();
            WindowInput::key(key);
            QVERIFY(window.isVisible());
        }
        for (const QPushButton *button : window.findChildren<QPushButton *>())
            QVERIFY(!button->isDefault());
        window.findChild<QPushButton *>(QStringLiteral("OKButton"))->setFocus();
        WindowInput::key(Qt::Key_Escape);
        QVERIFY(window.isVisible());
        WindowInput::key(Qt::Key_Enter);
        QVERIFY(!window.isVisible());
    });
    QCOMPARE(bench.stored(kBurst, 2), QStringLiteral("123"));
}

void tst_sub_form::firstFieldHasTheFocus() {
    Bench bench;
    bench.open(5, [](const frmSubForm &window) {
        QVERIFY(partOf<QLineEdit>(window, QStringLiteral("FreeFormBurstB"), "Text1").hasFocus());
        QVERIFY(window.findChild<QWidget *>(QStringLiteral("currentlyOpenUsrctl")) != nullptr);
    });
}

void tst_sub_form::unknownFormIsReportedAndLeavesNothing() {
    Bench bench;
    bench.services.errorSink.expectReport();
    frmSubForm window(bench.factory, bench.services.fieldServices(), &bench.main);
    window.Tag(QStringLiteral("usrctlNothing"));
    window.OpenSubForm(1);
    QVERIFY(bench.services.errors.HasReported());
    QVERIFY(!window.isVisible());
    QCOMPARE(bench.services.process.CurrentEnablerKey, QStringLiteral("Main"));
}

void tst_sub_form::callUpOpensTheWindowOnce() {
    Bench bench;
    bench.services.translate({QStringLiteral("Call 2|Appel 2")});
    const FieldProperties properties{QStringLiteral("bench.json"),
                                     QStringLiteral("callUp"),
                                     {{QStringLiteral("SubFormControlName"), kForm},
                                      {QStringLiteral("SubFormDescription"), QStringLiteral("Call 2")},
                                      {QStringLiteral("SubFormRecordNr"), 6}}};
    QWidget *callUp = bench.factory.Registry().Make(QStringLiteral("fldSubFormCallUp"), bench.services.fieldServices(),
                                                    properties, &bench.main);
    callUp->show();
    auto *button = callUp->findChild<QPushButton *>();
    int opened = 0;
    QTimer::singleShot(0, callUp, [&] {
        auto *window = qobject_cast<frmSubForm *>(QApplication::activeModalWidget());
        QVERIFY(window != nullptr);
        ++opened;
        QCOMPARE(window->windowTitle(), QStringLiteral("Appel 2"));
        QCOMPARE(navigatorOf(*window).position, 6);
        button->click(); // by an assistive tool: there is one window only
        QCOMPARE(QApplication::activeModalWidget(), window);
        window->close();
    });
    button->click();
    QCOMPARE(opened, 1);
}

void tst_sub_form::callUpsFollowTheirNavigator() {
    Bench bench;
    const std::unique_ptr<DataForm> form(bench.factory.CreateForm(QStringLiteral("usrctlFreeFormatKX4600"),
                                                                  bench.services.fieldServices(), &bench.main));
    const auto records = [&form] {
        QStringList result;
        for (int k = 1; k <= 7; ++k) {
            auto *callUp = form->findChild<fldSubFormCallUp *>(QStringLiteral("fldFreeFormatDetail%1").arg(k));
            result << QString::number(callUp == nullptr ? -1 : callUp->SubFormRecordNr());
        }
        return result.join(u' ');
    };
    auto &navigator = dynamic_cast<PlainNavigator &>(*form->findChild<QWidget *>(QStringLiteral("fldPageNavigator1")));
    navigator.Inavigator_Position(1);
    QCOMPARE(records(), QStringLiteral("1 2 3 4 5 6 7"));
    navigator.Inavigator_Position(3);
    QCOMPARE(records(), QStringLiteral("15 16 17 18 19 20 21"));
    navigator.Inavigator_Position(0); // no record: nothing to open
    QCOMPARE(records(), QStringLiteral("15 16 17 18 19 20 21"));
}

QTEST_MAIN(tst_sub_form)
#include "tst_sub_form.moc"
