#include "component_listener.h"
#include "data_form.h"
#include "field_properties.h"
#include "fld_sub_form_call_up.h"
#include "focus_guard.h"
#include "form_factory.h"
#include "frm_sub_form.h"
#include "ienabler.h"
#include "inavigator.h"
#include "rows.h"
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

using namespace Qt::StringLiterals;

namespace {
const QString kForm = u"usrctlFreeFormatDetail"_s;
const QString kBurst = u"FreeFormBurstB"_s;
const QString kGap = u"FreeFormGap1"_s;
const QString kDigits = u"FreeForm2DigitStatus"_s;

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
        component.ChangeTier(u"Advanced"_s);
        qint32 added = 0;
        bool ok = false;
        for (int system = 0; system < 3; ++system) { // with seven sequences each
            component.AddRecord(u"SignalSystemId_q7r"_s, QString(), added, ok);
            QVERIFY(ok);
        }
        component.SaveForm(u"Advanced"_s);
        services.process.CurrentEnablerKey = u"Main"_s;
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
        QCOMPARE(services.process.CurrentEnablerKey, u"Main"_s);
        QVERIFY(services.process.colEnablers.Item(u"Sub"_s) == nullptr);
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
Inavigator &navigatorOf(const QWidget &form) {
    return dynamic_cast<Inavigator &>(*form.findChild<QWidget *>(u"fldPageNavigator1"_s));
}
} // namespace

class tst_sub_form final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"setTabOrder"_s)); }
    void okKeepsTheEditsOfItsRecord() {
        Bench bench;
        const QString third = bench.record(3);
        bench.open(2, [](const frmSubForm &window) {
            QVERIFY(partOf<QLineEdit>(window, kBurst, "Text1").hasFocus());
            editAll(window, u"12345"_s);
            press(window, "OKButton");
            QVERIFY(!window.isVisible());
        });
        QCOMPARE(bench.keyInside, u"Sub"_s);
        QCOMPARE(bench.record(2), u"12345 1 1"_s);
        QCOMPARE(bench.record(3), third);
        QVERIFY(!bench.component.GetFormIsDirty());
    }

    void leavingPutsEverythingBack() {
        using Leave = std::function<void(frmSubForm &)>;
        for (const auto &[leave] : Rows<Leave>{
                 {"cancel", [](frmSubForm &window) { press(window, "cmdCancel"); }},
                 {"close box", [](frmSubForm &window) { window.close(); }},
                 {"cancel by Enter",
                  [](frmSubForm &window) {
                      window.findChild<QPushButton *>(u"cmdCancel"_s)->setFocus();
                      WindowInput::key(Qt::Key_Return);
                  }},
             }) {
            Bench bench;
            const QString before = bench.record(2);
            bench.open(2, [&bench, &act = leave](frmSubForm &window) {
                editAll(window, u"12345"_s);
                QCOMPARE(bench.record(2), u"12345 1 1"_s);
                act(window);
                QVERIFY(!window.isVisible());
            });
            QCOMPARE(bench.record(2), before);
            QVERIFY(bench.relay.messages.isEmpty());
            QCOMPARE(bench.services.shell.told.last(), u"SilentMode(false)"_s);
        }
    }

    void closingByCodePutsNothingBack() {
        Bench bench;
        bench.open(2, [](frmSubForm &window) {
            editAll(window, u"12345"_s);
            window.hide();
        });
        QCOMPARE(bench.record(2), u"12345 1 1"_s);
    }

    void eachRecordGetsItsOwnBack() {
        Bench bench;
        const QStringList before{bench.record(2), bench.record(3), bench.record(4)};
        for (const bool endOnFirst : {false, true}) {
            bench.open(2, [&](const frmSubForm &window) {
                editAll(window, u"111"_s);
                for (const qint32 record : {3, 4}) {
                    navigatorOf(window).Inavigator_Position(record);
                    editAll(window, QString::number(record));
                }
                if (endOnFirst)
                    navigatorOf(window).Inavigator_Position(2);
                QCOMPARE(bench.stored(kBurst, 3), u"3"_s);
                press(window, "cmdCancel");
            });
            QCOMPARE((QStringList{bench.record(2), bench.record(3), bench.record(4)}), before);
        }
    }

    void refusedTextHoldsTheWindow() {
        Bench bench;
        const QString before = bench.record(2);
        bench.open(2, [&](frmSubForm &window) {
            auto &box = partOf<QLineEdit>(window, kBurst, "Text1");
            WindowInput::click(box);
            box.setText(u"?!"_s);
            press(window, "OKButton");
            QVERIFY(window.isVisible());
            QVERIFY(box.hasFocus());
            QCOMPARE(box.text(), u"?!"_s);
            QCOMPARE(bench.relay.messages.size(), 1);
            window.close(); // the frame's box asks no field
            QVERIFY(!window.isVisible());
        });
        QCOMPARE(bench.record(2), before);
        QCOMPARE(bench.relay.messages.size(), 1);
    }

    void enterAndEscapeBelongToTheFields() {
        Bench bench;
        bench.open(2, [&](const frmSubForm &window) {
            type(window, u"123"_s);
            WindowInput::key(Qt::Key_Return);
            QCOMPARE(bench.stored(kBurst, 2), u"123"_s);
            for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
                partOf<QWidget>(window, kDigits, "Check1").setFocus();
                WindowInput::key(key);
                QVERIFY(window.isVisible());
            }
            for (const QPushButton *button : window.findChildren<QPushButton *>())
                QVERIFY(!button->isDefault());
            window.findChild<QPushButton *>(u"OKButton"_s)->setFocus();
            WindowInput::key(Qt::Key_Escape);
            QVERIFY(window.isVisible());
            WindowInput::key(Qt::Key_Enter);
            QVERIFY(!window.isVisible());
        });
        QCOMPARE(bench.stored(kBurst, 2), u"123"_s);
    }

    void unknownFormIsReportedAndLeavesNothing() {
        Bench bench;
        bench.services.errorSink.expectReport();
        frmSubForm window(bench.factory, bench.services.fieldServices(), &bench.main);
        window.Tag(u"usrctlNothing"_s);
        window.OpenSubForm(1);
        QVERIFY(bench.services.errors.HasReported());
        QVERIFY(!window.isVisible());
        QCOMPARE(bench.services.process.CurrentEnablerKey, u"Main"_s);
    }

    void callUpOpensTheWindowOnce() {
        Bench bench;
        bench.services.translate({u"Call 2|Appel 2"_s});
        const FieldProperties properties{
            u"bench.json"_s,
            u"callUp"_s,
            {{u"SubFormControlName"_s, kForm}, {u"SubFormDescription"_s, u"Call 2"_s}, {u"SubFormRecordNr"_s, 6}}};
        QWidget *callUp = bench.factory.Registry().Make(u"fldSubFormCallUp"_s, bench.services.fieldServices(),
                                                        properties, &bench.main);
        callUp->show();
        auto *button = callUp->findChild<QPushButton *>();
        int opened = 0;
        QTimer::singleShot(0, callUp, [&] {
            auto *window = qobject_cast<frmSubForm *>(QApplication::activeModalWidget());
            QVERIFY(window != nullptr);
            ++opened;
            QCOMPARE(window->windowTitle(), u"Appel 2"_s);
            QCOMPARE(navigatorOf(*window).Inavigator_Position(), 6);
            button->click(); // by an assistive tool: there is one window only
            QCOMPARE(QApplication::activeModalWidget(), window);
            window->close();
        });
        button->click();
        QCOMPARE(opened, 1);
    }

    void callUpsFollowTheirNavigator() {
        Bench bench;
        const std::unique_ptr<DataForm> form(
            bench.factory.CreateForm(u"usrctlFreeFormatKX4600"_s, bench.services.fieldServices(), &bench.main));
        const auto records = [&form] {
            QStringList result;
            for (int k = 1; k <= 7; ++k) {
                auto *callUp = form->findChild<fldSubFormCallUp *>(u"fldFreeFormatDetail%1"_s.arg(k));
                result << QString::number(callUp == nullptr ? -1 : callUp->SubFormRecordNr());
            }
            return result.join(u' ');
        };
        form->Iusrfrm_Enabler()->Ienabler_InitialiseFields(-1);
        for (const auto &[system, numbers] : {std::pair(1, u"1 2 3 4 5 6 7"_s), {3, u"15 16 17 18 19 20 21"_s}}) {
            navigatorOf(*form).Inavigator_Position(system);
            QCOMPARE(records(), numbers);
        }
    }
};

QTEST_MAIN(tst_sub_form)
#include "tst_sub_form.moc"
