#include "features_menu.h"

#include "common_error_handler.h"
#include "form_nodes.h"
#include "translation.h"

#include <functional>
#include <memory>

namespace {
clsMenuItem *findItem(const colMenuItems &items, const std::function<bool(const clsMenuItem &)> &isWanted) {
    for (qint32 index = 1; index <= items.Count(); ++index) {
        clsMenuItem &item = items.Item(index);
        if (isWanted(item))
            return &item;
        if (clsMenuItem *below = findItem(item.SubItems(), isWanted))
            return below;
    }
    return nullptr;
}

clsMenuItem &categoryItem(colMenuItems &items, const QString &category) {
    if (items.Exists(category))
        return items.Item(category);
    auto item = std::make_shared<clsMenuItem>();
    item->Caption = category;
    item->Category = category;
    return items.Add(std::move(item), category);
}
} // namespace

FeaturesMenu::FeaturesMenu(QMenuBar &menuBar, const Translation &translation, ErrorReport &errors)
    : mMenuBar(menuBar), mTranslation(translation), mErrors(errors) {}

void FeaturesMenu::BuildFeaturesMenu(const FormLists &lists) try {
    static const QString kChildPrefix = QStringLiteral("->");
    DeleteDynamicMenu();
    clsMenuItem *parent = nullptr;
    for (qsizetype i = 0; i < lists.formList.size(); ++i) {
        auto item = std::make_shared<clsMenuItem>();
        item->Caption = mTranslation.NLSStr(lists.formDescList.value(i));
        item->FormUsrCtl = lists.formList.at(i);
        item->Category = lists.formTypeList.value(i);
        const bool child = item->FormUsrCtl.startsWith(kChildPrefix);
        if (child)
            item->FormUsrCtl.remove(0, kChildPrefix.size());
        const QString key = item->FormUsrCtl;
        if (child && parent != nullptr)
            parent->SubItems().Add(std::move(item), key);
        else
            parent = &categoryItem(mBuilder.MenuItems(), item->Category).SubItems().Add(item, key);
    }
    mBuilder.BuildMenu(&mMenuBar, kTopPosition);
}
ERROR_TAIL()

void FeaturesMenu::DeleteDynamicMenu() try { mBuilder.DeleteDynamicMenu(); }
ERROR_TAIL()

void FeaturesMenu::EnableDynamicMenuItem(const QString &name, bool Enable) try {
    clsMenuItem *item = FindMenuItemByCaption(mBuilder.MenuItems(), name);
    if (item == nullptr)
        return;
    item->Enabled = Enable;
    mBuilder.Refresh(*item);
}
ERROR_TAIL()

clsMenuItem *FeaturesMenu::FindMenuItemByCaption(const colMenuItems &items, const QString &caption) {
    return findItem(items, [&caption](const clsMenuItem &item) { return item.Caption == caption; });
}

clsMenuItem *FeaturesMenu::FindMenuItemByCtrlId(const colMenuItems &items, qint32 id) {
    return findItem(items, [id](const clsMenuItem &item) { return item.Handle == id; });
}
