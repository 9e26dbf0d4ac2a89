#include "table_keys.h"

#include "cell_editor.h"
#include "tdb_grid.h"

#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>
#include <iterator>

struct TableKeys::Key {
    int key;
    Qt::KeyboardModifiers modifiers;
    bool alsoWhileEditing;
    void (TableKeys::*act)();
};

const TableKeys::Key TableKeys::kKeys[] = {
    {Qt::Key_Up, Qt::NoModifier, true, &TableKeys::up},
    {Qt::Key_Down, Qt::NoModifier, true, &TableKeys::down},
    {Qt::Key_PageUp, Qt::NoModifier, true, &TableKeys::pageUp},
    {Qt::Key_PageDown, Qt::NoModifier, true, &TableKeys::pageDown},
    {Qt::Key_Return, Qt::NoModifier, true, &TableKeys::enter},
    {Qt::Key_Enter, Qt::NoModifier, true, &TableKeys::enter},
    {Qt::Key_F4, Qt::NoModifier, true, &TableKeys::openList},
    {Qt::Key_Down, Qt::AltModifier, true, &TableKeys::openList},
    {Qt::Key_Left, Qt::NoModifier, false, &TableKeys::left},
    {Qt::Key_Right, Qt::NoModifier, false, &TableKeys::right},
    {Qt::Key_Home, Qt::NoModifier, false, &TableKeys::home},
    {Qt::Key_End, Qt::NoModifier, false, &TableKeys::end},
    {Qt::Key_F2, Qt::NoModifier, false, &TableKeys::edit},
    {Qt::Key_Delete, Qt::NoModifier, false, &TableKeys::empty},
    {Qt::Key_Backspace, Qt::NoModifier, false, &TableKeys::empty},
    {Qt::Key_Space, Qt::NoModifier, false, &TableKeys::toggle},
};

bool TableKeys::take(QKeyEvent &key) {
    const bool editing = mTable.EditActive();
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    const auto *const found = std::ranges::find_if(kKeys, [&](const Key &entry) {
        return entry.key == key.key() && entry.modifiers == modifiers && (entry.alsoWhileEditing || !editing);
    });
    if (found == std::end(kKeys) || (key.key() == Qt::Key_Space && !mTable.isCheckNow()))
        return false;
    (this->*found->act)();
    return true;
}

bool TableKeys::typeIntoCell(QKeyEvent &key) {
    const bool shortcut = (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    if (shortcut || key.text().isEmpty() || !key.text().at(0).isPrint())
        return false;
    mTable.StartEdit();
    if (!mTable.EditActive())
        return true;
    mTable.editor().forward(key);
    if (!mTable.editor().changed() && !mTable.hasListNow())
        mTable.finishEdit(); // none of it may be typed here
    return true;
}

int TableKeys::page() const { return std::max(1, mTable.VisibleRows() - 1); }

void TableKeys::stepRows(int rows) {
    const qint32 last = mTable.ApproxCount() - 1;
    if (const auto row = mTable.Bookmark())
        mTable.MoveTo({std::clamp(*row + rows, 0, last), mTable.Col()});
}

void TableKeys::stepColumns(int columns) {
    const int last = mTable.horizontalHeader()->count() - 1;
    if (last >= 0)
        mTable.SetCol(std::clamp(mTable.Col() + columns, 0, last));
}

void TableKeys::home() { mTable.SetCol(0); }

void TableKeys::end() { mTable.SetCol(mTable.horizontalHeader()->count() - 1); }

void TableKeys::enter() {
    const auto row = mTable.Bookmark();
    if (!row || !mTable.commitCell())
        return;
    mTable.finishEdit();
    stepRows(1);
}

void TableKeys::edit() {
    if (mTable.isCheckNow())
        return;
    mTable.StartEdit();
    if (mTable.EditActive() && mTable.hasListNow())
        mTable.openDropDown();
}

void TableKeys::empty() {
    if (!mTable.isEditableNow() || mTable.isCheckNow())
        return;
    mTable.StartEdit();
    if (mTable.EditActive())
        mTable.editor().replaceText(QString());
}

void TableKeys::openList() { mTable.openDropDown(); }

void TableKeys::toggle() { mTable.ToggleCell(); }
