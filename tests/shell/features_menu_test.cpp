#include "features_menu.h"
#include "form_nodes.h"
#include "run_time_error.h"
#include "test_services.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <functional>
#include <memory>

namespace {
// Menu texts, children in brackets, disabled ones with a minus.
QString textOf(const QMenu &menu) {
    QStringList texts;
    for (const QAction *action : menu.actions()) {
        const QString below = action->menu() != nullptr ? u'[' + textOf(*action->menu()) + u']' : QString();
        texts.push_back((action->isEnabled() ? QString() : QStringLiteral("-")) + action->text() + below);
    }
    return texts.join(u' ');
}

FormLists lists() {
    FormLists result;
    result.formList = {QStringLiteral("radio"), QStringLiteral("->startup"), QStringLiteral("channels"),
                       QStringLiteral("->zones")};
    result.formDescList = {QStringLiteral("Radio"), QStringLiteral("Start-up"), QStringLiteral("Channels"),
                           QStringLiteral("Zones")};
    result.formTypeList = {QStringLiteral("All"), QStringLiteral("All"), QStringLiteral("Air"), QStringLiteral("Air")};
    return result;
}

std::shared_ptr<clsMenuItem> item() { return std::make_shared<clsMenuItem>(); }
} // namespace

class FeaturesMenuTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void entriesStandByCategoryAndParent();
    void buildingAgainAndDeletingLeaveNoOldEntries();
    void refusals_data();
    void refusals();
    void itemsStandWhereTheyWerePut();

  private:
    std::unique_ptr<TestServices> mServices;
    std::unique_ptr<QMenuBar> mBar;
    QMenu *mMenu = nullptr;
};

void FeaturesMenuTest::init() {
    mServices = std::make_unique<TestServices>(nullptr);
    mBar = std::make_unique<QMenuBar>();
    for (int place = 0; place <= FeaturesMenu::kTopPosition; ++place)
        mMenu = mBar->addMenu(QString::number(place));
}

void FeaturesMenuTest::entriesStandByCategoryAndParent() {
    FeaturesMenu features(*mBar, mServices->translation, mServices->errors);
    features.BuildFeaturesMenu(lists());
    QCOMPARE(textOf(*mMenu), QStringLiteral("All[Radio[Start-up]] Air[Channels[Zones]]"));

    features.EnableDynamicMenuItem(QStringLiteral("Zones"), false);
    features.EnableDynamicMenuItem(QStringLiteral("nowhere"), false);
    QCOMPARE(textOf(*mMenu), QStringLiteral("All[Radio[Start-up]] Air[Channels[-Zones]]"));

    const clsMenuItem *zones = FeaturesMenu::FindMenuItemByCaption(features.Items(), QStringLiteral("Zones"));
    QVERIFY(zones != nullptr);
    QCOMPARE(zones->FormUsrCtl, QStringLiteral("zones"));
    QCOMPARE(FeaturesMenu::FindMenuItemByCtrlId(features.Items(), zones->Handle), zones);
    QCOMPARE(FeaturesMenu::FindMenuItemByCtrlId(features.Items(), 99), nullptr);
}

void FeaturesMenuTest::buildingAgainAndDeletingLeaveNoOldEntries() {
    mMenu->addAction(QStringLiteral("Fixed"));
    FeaturesMenu features(*mBar, mServices->translation, mServices->errors);
    features.BuildFeaturesMenu(lists());
    features.BuildFeaturesMenu(lists());
    QCOMPARE(textOf(*mMenu), QStringLiteral("Fixed All[Radio[Start-up]] Air[Channels[Zones]]"));
    features.DeleteDynamicMenu();
    QCOMPARE(textOf(*mMenu), QStringLiteral("Fixed"));
    QCOMPARE(features.Items().Count(), 0);
}

void FeaturesMenuTest::refusals_data() {
    QTest::addColumn<std::function<void(QMenuBar &)>>("act");
    QTest::addColumn<qint32>("number");
    QTest::addColumn<QString>("description");
    using Act = std::function<void(QMenuBar &)>;
    const QString invalid = QStringLiteral("Invalid procedure call or argument: ");
    QTest::newRow("no menu bar") << Act([](QMenuBar &) { clsMenuBuilder().BuildMenu(nullptr, 0); })
                                 << ErrorNumber::kBadArgument
                                 << invalid + QStringLiteral("lHwndOwner must be a valid window handle");
    QTest::newRow("no such menu") << Act([](QMenuBar &bar) { clsMenuBuilder().BuildMenu(&bar, 4); })
                                  << ErrorNumber::kBadArgument
                                  << invalid +
                                         QStringLiteral("Specified top level menu index (lngTopPos) does not exist");
    QTest::newRow("no such submenu") << Act([](QMenuBar &bar) { clsMenuBuilder().BuildMenu(&bar, 0, 0); })
                                     << ErrorNumber::kBadArgument
                                     << invalid + QStringLiteral("Specified sub menu index (lngSubPos) does not exist");
    QTest::newRow("both places") << Act([](QMenuBar &) {
        colMenuItems().Add(item(), QStringLiteral("a"), {QStringLiteral("b"), QStringLiteral("c")});
    }) << ErrorNumber::kBadArgument
                                 << QStringLiteral("Cannot specify 'before' and 'after'");
    QTest::newRow("unknown key") << Act([](QMenuBar &) { colMenuItems().Remove(QStringLiteral("a")); })
                                 << ErrorNumber::kCollectionKey << QStringLiteral("There is no item a");
}

void FeaturesMenuTest::refusals() {
    QFETCH(std::function<void(QMenuBar &)>, act);
    QFETCH(qint32, number);
    QFETCH(QString, description);
    try {
        act(*mBar);
        QFAIL("nothing was raised");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.Number, number);
        QCOMPARE(error.Description, description);
    }
}

void FeaturesMenuTest::itemsStandWhereTheyWerePut() {
    colMenuItems items;
    items.Add(item(), QStringLiteral("b")).Caption = QStringLiteral("b");
    items.Add(item(), QStringLiteral("a"), {QStringLiteral("B"), std::nullopt}).Caption = QStringLiteral("a");
    items.Add(item(), QStringLiteral("ab"), {std::nullopt, QStringLiteral("a")}).Caption = QStringLiteral("ab");
    QStringList order;
    for (qint32 index = 1; index <= items.Count(); ++index)
        order.push_back(items.Item(index).Caption);
    QCOMPARE(order.join(u' '), QStringLiteral("a ab b"));
}

QTEST_MAIN(FeaturesMenuTest)
#include "features_menu_test.moc"
