#include "cls_menu_builder.h"

#include "run_time_error.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace {
[[noreturn]] void refuseArgument(const QString &what) {
    throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("clsBuildMenu.BuildMenu"),
                       QStringLiteral("Invalid procedure call or argument: ") + what);
}

QMenu *menuAt(const QWidget &owner, qint32 place) {
    const QList<QAction *> actions = owner.actions();
    return place >= 0 && place < actions.size() ? actions.at(place)->menu() : nullptr;
}
} // namespace

void clsMenuBuilder::BuildMenu(QMenuBar *lHwndOwner, qint32 lngTopPos, std::optional<qint32> lngSubPos) {
    if (lHwndOwner == nullptr)
        refuseArgument(QStringLiteral("lHwndOwner must be a valid window handle"));
    QMenu *menu = menuAt(*lHwndOwner, lngTopPos);
    if (menu == nullptr)
        refuseArgument(QStringLiteral("Specified top level menu index (lngTopPos) does not exist"));
    if (lngSubPos) {
        menu = menuAt(*menu, *lngSubPos);
        if (menu == nullptr)
            refuseArgument(QStringLiteral("Specified sub menu index (lngSubPos) does not exist"));
    }
    mItems.ParentPosition = lngTopPos;
    addItems(mItems, *menu);
}

void clsMenuBuilder::addItems(colMenuItems &items, QMenu &menu) {
    items.MenuHandle = &menu;
    for (qint32 index = 1; index <= items.Count(); ++index) {
        clsMenuItem &item = items.Item(index);
        item.Position = qint32(menu.actions().size());
        const bool opensMore = item.SubItems().Count() > 0;
        QAction *action = opensMore ? menu.addMenu(QString())->menuAction() : menu.addAction(QString());
        mActions.push_back(action);
        item.Handle = qint32(mActions.size());
        Refresh(item);
        if (!opensMore)
            continue;
        item.SubItems().ParentMenu = &item;
        item.SubItems().ParentPosition = item.Position;
        addItems(item.SubItems(), *action->menu());
    }
}

void clsMenuBuilder::DeleteDynamicMenu() {
    if (mItems.MenuHandle != nullptr) {
        for (qint32 index = 1; index <= mItems.Count(); ++index) {
            QAction *action = mActions[std::size_t(mItems.Item(index).Handle - 1)];
            if (QMenu *menu = action->menu())
                delete menu;
            else
                delete action;
        }
    }
    mActions.clear();
    mItems.RemoveAll();
    mItems.MenuHandle = nullptr;
}

void clsMenuBuilder::Refresh(const clsMenuItem &item) const {
    QAction *action = mActions.at(std::size_t(item.Handle - 1));
    action->setText(item.Caption);
    action->setEnabled(item.Enabled);
    action->setCheckable(item.Checked);
    action->setChecked(item.Checked);
}
