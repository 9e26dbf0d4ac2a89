#include "field_bench.h"
#include "field_label.h"
#include "fld_checkbox_field.h"
#include "fld_combo_field.h"
#include "fld_text_field.h"
#include "focus_guard.h"
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
        : a(bench.add<fldTextField>(QStringLiteral("a"))),
          b(bench.add<fldTextField>(QStringLiteral("b"), {{QStringLiteral("Caption"), QStringLiteral("&Bravo")}})),
          check(bench.add<fldCheckboxField>(QStringLiteral("c"))),
          disabled(bench.add<fldTextField>(QStringLiteral("d"))) {
        b.Ifield_SetName(QStringLiteral("&Bravo"));
        disabled.Ifield_SetDisabled();
        place(button, 0);
        place(tree, 1);
        place(tabs, 2);
        place(toolBar, 3);
        place(scrollBar, 4);
        toolButton = toolBar.widgetForAction(toolBar.addAction(QStringLiteral("Tool")));
        QObject::connect(&button, &QPushButton::clicked, &button, [this] { bench.heard << QStringLiteral("clicked"); });
        tree.addTopLevelItem(new QTreeWidgetItem({QStringLiteral("Form")}));
        tabs.addTab(new QWidget, QStringLiteral("&One"));
        tabs.addTab(new QWidget, QStringLiteral("&Two"));
        bench.show();
        a.Ifield_SetFocus();
        bench.takeHeard();
    }

    void refuse(bool refused) { bench.listener(QStringLiteral("a")).refuseManualValidate = refused; }
    [[nodiscard]] bool stillInA() const { return text(a).hasFocus(); }
    [[nodiscard]] static QLineEdit &text(const QWidget &field) { return FieldBench::part<QLineEdit>(field, "Text1"); }
    [[nodiscard]] QWidget &target(const QString &name);

    FieldBench bench;
    FocusGuard guard{bench.services.errors};
    fldTextField &a;
    fldTextField &b;
    fldCheckboxField &check;
    fldTextField &disabled;
    QPushButton button{QStringLiteral("&Press"), &bench.window};
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
        {QStringLiteral("box of b"), &text(b)},
        {QStringLiteral("caption of b"), &FieldBench::part<QWidget>(b, "Label1")},
        {QStringLiteral("check box"), &FieldBench::part<QWidget>(check, "Check1")},
        {QStringLiteral("disabled field"), &text(disabled)},
        {QStringLiteral("button"), &button},
        {QStringLiteral("tree"), tree.viewport()},
        {QStringLiteral("page tab"), tabs.tabBar()},
        {QStringLiteral("tool bar"), toolButton},
        {QStringLiteral("scroll bar"), &scrollBar},
        {QStringLiteral("caption of a"), &FieldBench::part<QWidget>(a, "Label1")},
    };
    return *targets.at(name);
}
} // namespace

class tst_focus_guard final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void orderWhenAFieldIsLeft();
    void pressLeavesOnlyForWhatCanBeEntered_data();
    void pressLeavesOnlyForWhatCanBeEntered();
    void refusedPressIsEatenWhole();
    void refusedTabKeepsTheFocus();
    void hostValidateRefusesBeforeTheFieldItself();
    void accessKeys_data();
    void accessKeys();
    void refusedPageKeyKeepsThePage();
    void focusMovedByCodeComesBack();
    void focusMovedByCodeMayLeave();
    void disabledOrHiddenFieldIsNotAsked();
    void menuAndOtherWindowAreNoLeaving();
    void messageBoxInsideTheSequenceIsIgnored();
    void pendingChoiceComesBeforeLostFocus();
    void openListIsPartOfItsField();
    void captionPressFocusesItsField();
    void countedToolBarIsEntered();
    void targetThatGoesAwayIsNotPressed();
};

void tst_focus_guard::orderWhenAFieldIsLeft() {
    Desk desk;
    WindowInput::click(Desk::text(desk.b));
    QCOMPARE(desk.bench.takeHeard(), names({"a.Validate", "a.ManualValidate", "a.LostFocus", "b.GotFocus"}));
    WindowInput::key(Qt::Key_Tab);
    QCOMPARE(desk.bench.takeHeard(), names({"b.Validate", "b.ManualValidate", "b.LostFocus", "c.GotFocus"}));
    WindowInput::key(Qt::Key_Tab, Qt::ShiftModifier);
    QCOMPARE(desk.bench.takeHeard(), names({"c.Validate", "c.LostFocus", "b.GotFocus"}));
}

void tst_focus_guard::pressLeavesOnlyForWhatCanBeEntered_data() {
    QTest::addColumn<bool>("leaves");
    for (const char *target : {"box of b", "caption of b", "check box", "button", "tree", "page tab"})
        QTest::newRow(target) << true;
    for (const char *target : {"disabled field", "tool bar", "scroll bar", "caption of a"})
        QTest::newRow(target) << false;
}

void tst_focus_guard::pressLeavesOnlyForWhatCanBeEntered() {
    QFETCH(bool, leaves);
    Desk desk;
    desk.refuse(true);
    QWidget &target = desk.target(QString::fromLatin1(QTest::currentDataTag()));
    WindowInput::click(target);
    QCOMPARE(desk.bench.takeHeard(), leaves ? names({"a.Validate", "a.ManualValidate"}) : QStringList());
    QVERIFY(desk.stillInA());
    QCOMPARE(desk.tree.currentItem(), nullptr);
    QCOMPARE(desk.check.Ifield_GetValue().toInt(), 0);
    desk.refuse(false);
    WindowInput::click(target);
    QCOMPARE(desk.bench.takeHeard().contains(QStringLiteral("a.LostFocus")), leaves);
    QCOMPARE(desk.stillInA(), !leaves);
}

void tst_focus_guard::refusedPressIsEatenWhole() {
    Desk desk;
    desk.refuse(true);
    bool pressed = false;
    QObject::connect(&desk.button, &QPushButton::pressed, &desk.button, [&pressed] { pressed = true; });
    WindowInput::doubleClick(desk.button);
    QVERIFY(!pressed);
    QVERIFY(!desk.bench.takeHeard().contains(QStringLiteral("clicked")));
    desk.refuse(false);
    WindowInput::click(desk.button);
    QVERIFY(desk.bench.takeHeard().endsWith(QStringLiteral("clicked")));
}

void tst_focus_guard::refusedTabKeepsTheFocus() {
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
        QCOMPARE(desk.bench.takeHeard().count(QStringLiteral("a.ManualValidate")), 1);
    }
}

void tst_focus_guard::hostValidateRefusesBeforeTheFieldItself() {
    Desk desk;
    desk.bench.listener(QStringLiteral("a")).refuseValidate = true;
    WindowInput::click(Desk::text(desk.b));
    QCOMPARE(desk.bench.takeHeard(), names({"a.Validate"}));
    QVERIFY(desk.stillInA());
}

void tst_focus_guard::accessKeys_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("last"); // what happens last when it is not refused
    QTest::newRow("label") << int(Qt::Key_B) << QStringLiteral("b.GotFocus");
    QTest::newRow("button takes the focus, then clicks") << int(Qt::Key_P) << QStringLiteral("clicked");
    QTest::newRow("page") << int(Qt::Key_T) << QStringLiteral("a.LostFocus");
}

void tst_focus_guard::accessKeys() {
    QFETCH(int, key);
    QFETCH(QString, last);
    Desk desk;
    desk.refuse(true);
    WindowInput::key(Qt::Key(key), Qt::AltModifier);
    QCOMPARE(desk.bench.takeHeard(), names({"a.Validate", "a.ManualValidate"}));
    QVERIFY(desk.stillInA());
    QCOMPARE(desk.tabs.currentIndex(), 0);
    desk.refuse(false);
    WindowInput::key(Qt::Key(key), Qt::AltModifier);
    QTRY_COMPARE(desk.bench.heard.value(desk.bench.heard.size() - 1), last); // a button clicks when it has been seen
    const QStringList heard = desk.bench.takeHeard();
    QVERIFY(heard.contains(QStringLiteral("a.LostFocus")));
    QCOMPARE(desk.tabs.currentIndex(), key == Qt::Key_T ? 1 : 0);
}

void tst_focus_guard::refusedPageKeyKeepsThePage() {
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_PageDown}) {
        Desk desk;
        auto &onPage = desk.bench.add<fldTextField>(QStringLiteral("page"), {}, desk.tabs.widget(0));
        onPage.move(0, 0);
        onPage.show();
        onPage.Ifield_SetFocus();
        QVERIFY(Desk::text(onPage).hasFocus());
        desk.bench.takeHeard();
        desk.bench.listener(QStringLiteral("page")).refuseManualValidate = true;
        WindowInput::key(key, Qt::ControlModifier);
        QCOMPARE(desk.bench.takeHeard(), names({"page.Validate", "page.ManualValidate"}));
        QCOMPARE(desk.tabs.currentIndex(), 0);
        QVERIFY(Desk::text(onPage).hasFocus());
    }
}

void tst_focus_guard::focusMovedByCodeComesBack() {
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

void tst_focus_guard::focusMovedByCodeMayLeave() {
    Desk desk;
    desk.tree.setFocus();
    QCOMPARE(desk.bench.takeHeard(), names({"a.Validate", "a.ManualValidate", "a.LostFocus"}));
}

void tst_focus_guard::disabledOrHiddenFieldIsNotAsked() {
    for (void (fldTextField::*const goAway)() :
         {&fldTextField::Ifield_SetInvisible, &fldTextField::Ifield_SetDisabled}) {
        Desk desk;
        desk.refuse(true);
        (desk.a.*goAway)();
        const QStringList heard = desk.bench.takeHeard();
        QCOMPARE(heard.value(0), QStringLiteral("a.LostFocus"));
        QVERIFY(!heard.contains(QStringLiteral("a.Validate")));
    }
}

void tst_focus_guard::menuAndOtherWindowAreNoLeaving() {
    Desk desk;
    desk.refuse(true);
    QMenu menu;
    menu.addAction(QStringLiteral("Item"));
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

void tst_focus_guard::messageBoxInsideTheSequenceIsIgnored() {
    Desk desk;
    desk.refuse(true);
    desk.bench.listener(QStringLiteral("a")).on = [&desk](const QString &event) {
        if (event != QStringLiteral("ManualValidate"))
            return;
        QMessageBox box(&desk.bench.window);
        box.setText(QStringLiteral("Refused"));
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

void tst_focus_guard::pendingChoiceComesBeforeLostFocus() {
    Desk desk;
    auto &list = desk.bench.add<fldComboField>(QStringLiteral("list"));
    list.AddItem(QStringLiteral("Low"));
    list.AddItem(QStringLiteral("High"));
    list.show();
    list.Ifield_SetFocus();
    WindowInput::key(Qt::Key_Down);
    desk.bench.takeHeard();
    WindowInput::click(Desk::text(desk.b));
    QCOMPARE(desk.bench.takeHeard(), names({"list.Validate", "list.Click", "list.LostFocus", "b.GotFocus"}));
}

void tst_focus_guard::openListIsPartOfItsField() {
    Desk desk;
    auto &list = desk.bench.add<fldComboField>(QStringLiteral("list"));
    list.AddItem(QStringLiteral("Low"));
    list.AddItem(QStringLiteral("High"));
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

void tst_focus_guard::captionPressFocusesItsField() {
    Desk desk;
    desk.tree.setFocus();
    desk.bench.takeHeard();
    WindowInput::press(FieldBench::part<QWidget>(desk.b, "Label1"));
    QVERIFY(Desk::text(desk.b).hasFocus());
    WindowInput::release(FieldBench::part<QWidget>(desk.b, "Label1"));
    QCOMPARE(desk.bench.takeHeard(), names({"b.GotFocus"}));
}

void tst_focus_guard::countedToolBarIsEntered() {
    Desk desk;
    desk.refuse(true);
    desk.guard.countAsEntered(desk.toolBar);
    WindowInput::click(*desk.toolButton);
    QCOMPARE(desk.bench.takeHeard(), names({"a.Validate", "a.ManualValidate"}));
}

void tst_focus_guard::targetThatGoesAwayIsNotPressed() {
    Desk desk;
    auto *shortLived = new QPushButton(&desk.bench.window);
    shortLived->setGeometry(450, 460, 100, 30);
    shortLived->show();
    desk.bench.listener(QStringLiteral("a")).on = [&shortLived](const QString &event) {
        if (event == QStringLiteral("ManualValidate"))
            delete std::exchange(shortLived, nullptr);
    };
    WindowInput::press(*shortLived);
    QCOMPARE(desk.bench.takeHeard(), names({"a.Validate", "a.ManualValidate"}));
    QVERIFY(desk.stillInA());
}

QTEST_MAIN(tst_focus_guard)
#include "tst_focus_guard.moc"
