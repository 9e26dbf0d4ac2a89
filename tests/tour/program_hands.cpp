#include "program_hands.h"

#include "frm_main.h"
#include "ifield.h"
#include "transformer.h"
#include "value_text.h"
#include "window_input.h"

#include <QAction>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>

template <class Part>
Part &ProgramHands::visiblePart(const QString &name) const {
    for (Part *part : mWindow.findChildren<Part *>(name)) {
        if (part->isVisible())
            return *part;
    }
    throw TourFailure(QStringLiteral("the window shows no %1").arg(name));
}

void ProgramHands::openForm(const QString &caption) const {
    auto &tree = visiblePart<QTreeWidget>(QStringLiteral("FormTree"));
    const QList<QTreeWidgetItem *> items = tree.findItems(caption, Qt::MatchExactly | Qt::MatchRecursive);
    require(items.size() == 1, QStringLiteral("the tree has no node %1").arg(caption));
    tree.scrollToItem(items.constFirst());
    WindowInput::clickAt(*tree.viewport(), tree.visualItemRect(items.constFirst()).center());
    require(mComponent.GetCurrentFormName() == caption,
            QStringLiteral("a click on %1 opened %2").arg(caption, mComponent.GetCurrentFormName()));
}

void ProgramHands::chooseTier(const QString &key) const {
    WindowInput::click(visiblePart<QToolButton>(key));
    require(mComponent.GetCurrentTier() == key, QStringLiteral("the tier is not %1").arg(key));
}

void ProgramHands::trigger(const QString &command) const {
    auto *found = mWindow.findChild<QAction *>(command);
    require(found != nullptr, QStringLiteral("there is no command %1").arg(command));
    require(found->isEnabled(), QStringLiteral("the command %1 is disabled").arg(command));
    found->trigger();
}

QLineEdit &ProgramHands::editorOf(const QString &uiid) const {
    for (QWidget *widget : mWindow.findChildren<QWidget *>()) {
        const auto *field = dynamic_cast<const Ifield *>(widget);
        if (field == nullptr || field->Ifield_GetUIID() != uiid)
            continue;
        auto *editor = widget->findChild<QLineEdit *>();
        require(editor != nullptr && editor->isVisible(), QStringLiteral("%1 shows no text box").arg(uiid));
        return *editor;
    }
    throw TourFailure(QStringLiteral("the open form has no field %1").arg(uiid));
}

void ProgramHands::typeOver(QLineEdit &editor, const QString &text) const {
    WindowInput::activate(mWindow);
    WindowInput::click(editor);
    WindowInput::key(Qt::Key_Home);
    WindowInput::key(Qt::Key_End, Qt::ShiftModifier);
    WindowInput::type(text);
}

QTableView &ProgramHands::table() const { return visiblePart<QTableView>(QStringLiteral("TDBGrid1")); }

void ProgramHands::clickCell(int row, int column) const {
    QTableView &grid = table();
    grid.scrollTo(grid.model()->index(row, column));
    WindowInput::clickAt(*grid.viewport(), grid.visualRect(grid.model()->index(row, column)).center());
}

void ProgramHands::clickButton(const QString &name) const { WindowInput::click(visiblePart<QPushButton>(name)); }

QString ProgramHands::value(const QString &uiid, qint32 record) const {
    return ValueText::of(mComponent.GetValue(uiid, record));
}
