#include "field_bench.h"
#include "field_label.h"
#include "fld_checkbox_field.h"
#include "fld_combo_field.h"
#include "fld_text_field.h"
#include "focus_guard.h"
#include "rows.h"
#include "window_input.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolBar>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {
QStringList names(std::initializer_list<const char *> list) {
    QStringList result;
    for (const char *name : list)
        result << QString::fromLatin1(name);
    return result;
}

// Field "a" with the focus, and one of everything that a press can meet.
class Desk {
  public:
    Desk()
        : a(bench.add<fldTextField>(u"a"_s)), b(bench.add<fldTextField>(u"b"_s, {{u"Caption"_s, u"&Bravo"_s}})),
          check(bench.add<fldCheckboxField>(u"c"_s)), disabled(bench.add<fldTextField>(u"d"_s)) {
        b.Ifield_SetName(u"&Bravo"_s);
        disabled.Ifield_SetDisabled();
        place(button, 0);
        place(tree, 1);
        place(tabs, 2);
        place(toolBar, 3);
        place(scrollBar, 4);
        toolButton = toolBar.widgetForAction(toolBar.addAction(u"Tool"_s));
        QObject::connect(&button, &QPushButton::clicked, &button, [this] { bench.heard << u"clicked"_s; });
        tree.addTopLevelItem(new QTreeWidgetItem({u"Form"_s}));
        tabs.addTab(new QWidget, u"&One"_s);
        tabs.addTab(new QWidget, u"&Two"_s);
        bench.showWithFocus(a);
    }

    void refuse(bool refused) { bench.listener(u"a"_s).refuseManualValidate = refused; }
    [[nodiscard]] bool stillInA() const { return text(a).hasFocus(); }
    [[nodiscard]] static QLineEdit &text(const QWidget &field) { return FieldBench::part<QLineEdit>(field, "Text1"); }
    [[nodiscard]] QWidget &target(const QString &name);

    FieldBench bench;
    FocusGuard guard{bench.services.errors};
    fldTextField &a;
    fldTextField &b;
    fldCheckboxField &check;
    fldTextField &disabled;
    QPushButton button{u"&Press"_s, &bench.window};
    QTreeWidget tree{&bench.window};
    QTabWidget tabs{&bench.window};
    QToolBar toolBar{&bench.window};
    QScrollBar scrollBar{&bench.window};
    QWidget *toolButton = nullptr;

  private:
    static void place(QWidget &widget, int row) { widget.setGeometry(450, 10 + row * 90, 200, 80); }
};

QWidget &Desk::target(const QString &name) {
    const std::map<QString, QWidget *> targets{
        {u"box of b"_s, &text(b)},
        {u"caption of b"_s, &FieldBench::part<QWidget>(b, "Label1")},
        {u"check box"_s, &FieldBench::part<QWidget>(check, "Check1")},
        {u"disabled field"_s, &text(disabled)},
        {u"button"_s, &button},
        {u"tree"_s, tree.viewport()},
        {u"page tab"_s, tabs.tabBar()},
        {u"tool bar"_s, toolButton},
        {u"scroll bar"_s, &scrollBar},
        {u"caption of a"_s, &FieldBench::part<QWidget>(a, "Label1")},
    };
    return *targets.at(name);
}
} // namespace

class tst_focus_guard final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void orderWhenAFieldIsLeft() {
        Desk desk;
        WindowInput::click(Desk::text(desk.b));
        QCOMPARE(desk.bench.takeHeard(), names({"a.Validate", "a.ManualValidate", "a.LostFocus", "b.GotFocus"}));
        WindowInput::key(Qt::Key_Tab);
        QCOMPARE(desk.bench.takeHeard(), names({"b.Validate", "b.ManualValidate", "b.LostFocus", "c.GotFocus"}));
        WindowInput::key(Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(desk.bench.takeHeard(), names({"c.Validate", "c.LostFocus", "b.GotFocus"}));
    }

    void pressLeavesOnlyForWhatCanBeEntered() {
        for (const auto &[name, leaves] : {std::pair(u"box of b"_s, true),
                                           {u"caption of b"_s, true},
                                           {u"check box"_s, true},
                                           {u"button"_s, true},
                                           {u"tree"_s, true},
                                           {u"page tab"_s, true},
                                           {u"disabled field"_s, false},
                                           {u"tool bar"_s, false},
                                           {u"scroll bar"_s, false},
                                           {u"caption of a"_s, false}}) {
            Desk desk;
            desk.refuse(true);
            QWidget &target = desk.target(name);
            WindowInput::click(target);
            const QStringList heard = desk.bench.takeHeard();
            QVERIFY2(heard == (leaves ? names({"a.Validate", "a.ManualValidate"}) : QStringList()), qPrintable(name));
            QVERIFY(desk.stillInA());
            QCOMPARE(desk.tree.currentItem(), nullptr);
            QCOMPARE(desk.check.Ifield_GetValue().toInt(), 0);
            desk.refuse(false);
            WindowInput::click(target);
            QCOMPARE(desk.bench.takeHeard().contains(u"a.LostFocus"_s), leaves);
            QCOMPARE(desk.stillInA(), !leaves);
        }
    }

    void refusedPressIsEatenWhole() {
        Desk desk;
        desk.refuse(true);
        bool pressed = false;
        QObject::connect(&desk.button, &QPushButton::pressed, &desk.button, [&pressed] { pressed = true; });
        WindowInput::doubleClick(desk.button);
        QVERIFY(!pressed);
        QVERIFY(!desk.bench.takeHeard().contains(u"clicked"_s));
        desk.refuse(false);
        WindowInput::click(desk.button);
        QVERIFY(desk.bench.takeHeard().endsWith(u"clicked"_s));
    }

    void refusedTabKeepsTheFocus() {
        for (const auto &[key, modifiers] :
             {std::pair(Qt::Key_Tab, Qt::NoModifier), std::pair(Qt::Key_Backtab, Qt::ShiftModifier)}) {
            Desk desk;
            desk.refuse(true);
            WindowInput::key(key, modifiers);
            QVERIFY(desk.stillInA());
            QCOMPARE(desk.bench.takeHeard(), names({"a.Validate", "a.ManualValidate"}));
            desk.refuse(false);
            WindowInput::key(key, modifiers);
            QVERIFY(!desk.stillInA());
            QCOMPARE(desk.bench.takeHeard().count(u"a.ManualValidate"_s), 1);
        }
    }

    void hostValidateRefusesBeforeTheFieldItself() {
        Desk desk;
        desk.bench.listener(u"a"_s).refuseValidate = true;
        WindowInput::click(Desk::text(desk.b));
        QCOMPARE(desk.bench.takeHeard(), names({"a.Validate"}));
        QVERIFY(desk.stillInA());
    }

    void accessKeys() {
        // last: what happens last when it is not refused
        for (const auto &[key, last] : Rows<int, QString>{
                 {"label", int(Qt::Key_B), u"b.GotFocus"_s},
                 {"button takes the focus, then clicks", int(Qt::Key_P), u"clicked"_s},
                 {"page", int(Qt::Key_T), u"a.LostFocus"_s},
             }) {
            Desk desk;
            desk.refuse(true);
            WindowInput::key(Qt::Key(key), Qt::AltModifier);
            QCOMPARE(desk.bench.takeHeard(), names({"a.Validate", "a.ManualValidate"}));
            QVERIFY(desk.stillInA());
            QCOMPARE(desk.tabs.currentIndex(), 0);
            desk.refuse(false);
            WindowInput::key(Qt::Key(key), Qt::AltModifier);
            QTRY_COMPARE(desk.bench.heard.value(desk.bench.heard.size() - 1),
                         last); // a button clicks when it has been seen
            const QStringList heard = desk.bench.takeHeard();
            QVERIFY(heard.contains(u"a.LostFocus"_s));
            QCOMPARE(desk.tabs.currentIndex(), key == Qt::Key_T ? 1 : 0);
        }
    }

    void refusedPageKeyKeepsThePage() {
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_PageDown}) {
            Desk desk;
            auto &onPage = desk.bench.add<fldTextField>(u"page"_s, {}, desk.tabs.widget(0));
            onPage.move(0, 0);
            onPage.show();
            onPage.Ifield_SetFocus();
            QVERIFY(Desk::text(onPage).hasFocus());
            desk.bench.takeHeard();
            desk.bench.listener(u"page"_s).refuseManualValidate = true;
            WindowInput::key(key, Qt::ControlModifier);
            QCOMPARE(desk.bench.takeHeard(), names({"page.Validate", "page.ManualValidate"}));
            QCOMPARE(desk.tabs.currentIndex(), 0);
            QVERIFY(Desk::text(onPage).hasFocus());
        }
    }

    void focusMovedByCodeComesBack() {
        Desk desk;
        desk.refuse(true);
        Desk::text(desk.b).setFocus();
        QCOMPARE(desk.bench.takeHeard(), names({"a.Validate", "a.ManualValidate"}));
        QCoreApplication::processEvents();
        QVERIFY(desk.stillInA());
        QCOMPARE(desk.bench.takeHeard(), QStringList()); // it never left
        desk.refuse(false);
        WindowInput::click(Desk::text(desk.b));
        QCOMPARE(desk.bench.takeHeard(), names({"a.Validate", "a.ManualValidate", "a.LostFocus", "b.GotFocus"}));
    }

    void focusMovedByCodeMayLeave() {
        Desk desk;
        desk.tree.setFocus();
        QCOMPARE(desk.bench.takeHeard(), names({"a.Validate", "a.ManualValidate", "a.LostFocus"}));
    }

    void disabledOrHiddenFieldIsNotAsked() {
        for (void (fldTextField::*const goAway)() :
             {&fldTextField::Ifield_SetInvisible, &fldTextField::Ifield_SetDisabled}) {
            Desk desk;
            desk.refuse(true);
            (desk.a.*goAway)();
            const QStringList heard = desk.bench.takeHeard();
            QCOMPARE(heard.value(0), u"a.LostFocus"_s);
            QVERIFY(!heard.contains(u"a.Validate"_s));
        }
    }

    void menuAndOtherWindowAreNoLeaving() {
        Desk desk;
        desk.refuse(true);
        QMenu menu;
        menu.addAction(u"Item"_s);
        menu.popup(desk.bench.window.mapToGlobal(QPoint(5, 5)));
        QVERIFY(QApplication::activePopupWidget() != nullptr);
        menu.close();
        QWidget other;
        WindowInput::activate(other);
        other.close();
        WindowInput::activate(desk.bench.window);
        QVERIFY(desk.stillInA());
        QCOMPARE(desk.bench.takeHeard(), QStringList());
    }

    void messageBoxInsideTheSequenceIsIgnored() {
        Desk desk;
        desk.refuse(true);
        desk.bench.listener(u"a"_s).on = [&desk](const QString &event) {
            if (event != u"ManualValidate"_s)
                return;
            QMessageBox box(&desk.bench.window);
            box.setText(u"Refused"_s);
            QPushButton *ok = box.addButton(QMessageBox::Ok);
            QMetaObject::invokeMethod(
                &box, [ok] { WindowInput::click(*ok); }, Qt::QueuedConnection);
            box.exec();
        };
        WindowInput::click(Desk::text(desk.b));
        QCOMPARE(desk.bench.takeHeard(), names({"a.Validate", "a.ManualValidate"}));
        // Not every platform makes the window active again by itself.
        QCOMPARE(desk.bench.window.focusWidget(), &Desk::text(desk.a));
    }

    void pendingChoiceComesBeforeLostFocus() {
        Desk desk;
        auto &list = desk.bench.add<fldComboField>(u"list"_s);
        list.AddItem(u"Low"_s);
        list.AddItem(u"High"_s);
        list.show();
        list.Ifield_SetFocus();
        WindowInput::key(Qt::Key_Down);
        desk.bench.takeHeard();
        WindowInput::click(Desk::text(desk.b));
        QCOMPARE(desk.bench.takeHeard(), names({"list.Validate", "list.Click", "list.LostFocus", "b.GotFocus"}));
    }

    void openListIsPartOfItsField() {
        Desk desk;
        auto &list = desk.bench.add<fldComboField>(u"list"_s);
        list.AddItem(u"Low"_s);
        list.AddItem(u"High"_s);
        list.show();
        list.Ifield_SetFocus();
        desk.bench.takeHeard();
        auto &combo = FieldBench::part<QComboBox>(list, "Combo1");
        combo.showPopup();
        WindowInput::key(Qt::Key_Down);
        WindowInput::key(Qt::Key_Return);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QVERIFY(combo.hasFocus());
        QCOMPARE(desk.bench.takeHeard(), QStringList());
    }

    void captionPressFocusesItsField() {
        Desk desk;
        desk.tree.setFocus();
        desk.bench.takeHeard();
        WindowInput::press(FieldBench::part<QWidget>(desk.b, "Label1"));
        QVERIFY(Desk::text(desk.b).hasFocus());
        WindowInput::release(FieldBench::part<QWidget>(desk.b, "Label1"));
        QCOMPARE(desk.bench.takeHeard(), names({"b.GotFocus"}));
    }

    void countedToolBarIsEntered() {
        Desk desk;
        desk.refuse(true);
        desk.guard.countAsEntered(desk.toolBar);
        WindowInput::click(*desk.toolButton);
        QCOMPARE(desk.bench.takeHeard(), names({"a.Validate", "a.ManualValidate"}));
    }

    void targetThatGoesAwayIsNotPressed() {
        Desk desk;
        auto *shortLived = new QPushButton(&desk.bench.window);
        shortLived->setGeometry(450, 460, 100, 30);
        shortLived->show();
        desk.bench.listener(u"a"_s).on = [&shortLived](const QString &event) {
            if (event == u"ManualValidate"_s)
                delete std::exchange(shortLived, nullptr);
        };
        WindowInput::press(*shortLived);
        QCOMPARE(desk.bench.takeHeard(), names({"a.Validate", "a.ManualValidate"}));
        QVERIFY(desk.stillInA());
    }
};

QTEST_MAIN(tst_focus_guard)
#include "tst_focus_guard.moc"
