#include "grid_menu.h"

#include "common_error_handler.h"
#include "grid_clipboard.h"
#include "grid_surface.h"
#include "transformer.h"
#include "translation.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>

GridMenu::GridMenu(GridSurface &grid, const FieldServices &services, GridClipboard &clipboard)
    : mGrid(grid), mServices(services), mErrors(services.errors), mClipboard(clipboard),
      mMenu(new QMenu(grid.Control())), mCut(addCommand("mnuCut", "Cu&t", &GridClipboard::mnuCut_Click)),
      mCopy(addCommand("mnuCopy", "&Copy", &GridClipboard::mnuCopy_Click)),
      mPaste(addCommand("mnuPaste", "&Paste", &GridClipboard::mnuPaste_Click)) {
    mMenu->setObjectName(QStringLiteral("mnuPopup"));
    mMenu->addSeparator();
    addCommand("mnuSelectAll", "Select &All", &GridClipboard::Ifield_SelectAll);
    mGrid.Table().CellsSurface().installEventFilter(this);
}

QAction *GridMenu::addCommand(const char *name, const char *text, void (GridClipboard::*command)()) {
    QAction *action = mMenu->addAction(mServices.translation.NLSStr(QString::fromLatin1(text)));
    action->setObjectName(QString::fromLatin1(name));
    connect(action, &QAction::triggered, this, [&clipboard = mClipboard, command] { (clipboard.*command)(); });
    return action;
}

bool GridMenu::eventFilter(QObject *watched, QEvent *event) try {
    if (event->type() == QEvent::MouseButtonPress)
        TDBGrid1_MouseDown();
    if (event->type() != QEvent::ContextMenu)
        return QObject::eventFilter(watched, event);
    const auto &asked = static_cast<QContextMenuEvent &>(*event);
    if (asked.reason() == QContextMenuEvent::Keyboard)
        ShowAtCell();
    else
        show(asked.globalPos());
    return true;
}
ERROR_TAIL(false)

void GridMenu::TDBGrid1_MouseDown() { mPaste->setEnabled(!mGrid.Component().GetFormIsDirty()); }

void GridMenu::mnuPopup_Click() {
    const qint32 operations = mClipboard.Ifield_GetEditOperations();
    mCut->setEnabled((operations & EditOperation::kCut) != 0);
    mCopy->setEnabled((operations & EditOperation::kCopy) != 0);
    mPaste->setEnabled((operations & EditOperation::kPaste) != 0);
}

void GridMenu::ShowAtCell() {
    const QWidget &cells = mGrid.Table().CellsSurface();
    show(cells.mapToGlobal(mGrid.Table().CellRect().bottomLeft()));
}

void GridMenu::show(const QPoint &globalPosition) {
    if (mMenu->isVisible())
        return;
    mnuPopup_Click();
    mMenu->popup(globalPosition);
}
