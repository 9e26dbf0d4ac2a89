#include "window_walk.h"

#include "frm_main.h"
#include "message_style.h"
#include "window_input.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <QWhatsThis>
#include <QWindow>

#include <span>

namespace {
// What would leave the program, or open a window of the system.
const QStringList kNotForTheWalk{QStringLiteral("mnuExit"),
                                 QStringLiteral("mnuPrint"),
                                 QStringLiteral("Print"),
                                 QStringLiteral("mnuPrinterSettings"),
                                 QStringLiteral("mnuMobilesSupport"),
                                 QStringLiteral("mnuHomePage")};

const char *const kKeys[] = {"Tab",      "Tab",      "Tab",       "Shift+Backtab", "Return",   "Return",   "Esc",
                             "Up",       "Down",     "Down",      "Left",          "Right",    "Home",     "End",
                             "PgUp",     "PgDown",   "Space",     "Backspace",     "Del",      "F2",       "F4",
                             "Shift+F1", "Ctrl+A",   "Ctrl+C",    "Ctrl+X",        "Ctrl+V",   "Ctrl+D",   "Ctrl+F",
                             "Ctrl+S",   "Ctrl+Tab", "Ctrl+Home", "Ctrl+End",      "Alt+Down", "Alt+Left", "Alt+Right",
                             "Alt+Home", "Alt+End"};
const char *const kTexts[] = {"0",  "1",   "2",   "5",     "10",       "20", "45",
                              "99", "120", "999", "160.5", "155.0125", "a",  "A B"};
} // namespace

qint32 HastyBoxes::MsgBox(const QString &Text, qint32 Buttons, const QString & /*Title*/) {
    mLast = Text;
    QCoreApplication::processEvents(); // as a box does while it is open
    constexpr qint32 kAnswers[][3] = {{MessageAnswer::kOk, MessageAnswer::kOk, MessageAnswer::kOk},
                                      {MessageAnswer::kOk, MessageAnswer::kOk, MessageAnswer::kCancel},
                                      {MessageAnswer::kAbort, MessageAnswer::kRetry, MessageAnswer::kIgnore},
                                      {MessageAnswer::kYes, MessageAnswer::kNo, MessageAnswer::kCancel},
                                      {MessageAnswer::kYes, MessageAnswer::kYes, MessageAnswer::kNo},
                                      {MessageAnswer::kCancel, MessageAnswer::kCancel, MessageAnswer::kRetry}};
    constexpr qint32 kButtonBits = 7;
    return kAnswers[Buttons & kButtonBits][Campaign::below(mRandom, 3)];
}

qint32 HastyBoxes::TranslateMsgBox(const QString &Prompt, qint32 Buttons, const QString &Title,
                                   const QString & /*Parameters*/) {
    return MsgBox(Prompt, Buttons, Title);
}

std::optional<FileDialogChoice> HastyFileDialogs::ShowLoad(const FileDialogRequest & /*request*/) {
    const QString name = QStringLiteral("%1/walk%2.k4p").arg(mFolder).arg(Campaign::below(mRandom, 4));
    return Campaign::below(mRandom, 3) == 0 ? std::nullopt : std::optional(FileDialogChoice{name, 1, 0});
}

std::optional<FileDialogChoice> HastyFileDialogs::ShowSave(const FileDialogRequest &request) {
    const QString name = QStringLiteral("%1/walk%2.%3").arg(mFolder).arg(Campaign::below(mRandom, 3));
    const auto version = qint32(Campaign::below(mRandom, request.versions.size() + 1));
    return Campaign::below(mRandom, 3) == 0 ? std::nullopt
                                            : std::optional(FileDialogChoice{name.arg(request.extension), 1, version});
}

void WindowWalk::run(int actions) {
    mActionsLeft = actions;
    while (mActionsLeft > 0)
        step();
    while (QApplication::activePopupWidget() != nullptr)
        QApplication::activePopupWidget()->close();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void WindowWalk::step() {
    --mActionsLeft;
    // Goes on inside an event loop that the action opens, until that has ended.
    const QWidget *const before = windowWithLoop();
    QTimer inside;
    QObject::connect(&inside, &QTimer::timeout, &inside, [this, before] {
        const QWidget *const opened = windowWithLoop();
        if (QWhatsThis::inWhatsThisMode())
            QWhatsThis::leaveWhatsThisMode();
        else if (opened != nullptr && opened != before)
            mActionsLeft > 0 ? step() : closeWindow();
    });
    inside.start(0);
    act();
}

// A menu over the window, or a modal window; null for none.
const QWidget *WindowWalk::windowWithLoop() {
    const QWidget *popup = QApplication::activePopupWidget();
    return qobject_cast<const QMenu *>(popup) != nullptr ? popup : QApplication::activeModalWidget();
}

void WindowWalk::did(const QString &what) {
    constexpr qsizetype kKept = 25;
    mLast << what;
    if (mLast.size() > kKept)
        mLast.removeFirst();
}

QWidget &WindowWalk::target() {
    if (QWidget *popup = QApplication::activePopupWidget())
        return *popup;
    if (QWidget *modal = QApplication::activeModalWidget())
        return *modal;
    return mWindow;
}

void WindowWalk::act() {
    struct Choice {
        int weight;
        void (WindowWalk::*action)();
    };
    constexpr Choice kInMainWindow[] = {
        {24, &WindowWalk::typeText},  {26, &WindowWalk::pressKey},  {24, &WindowWalk::clickAnything},
        {12, &WindowWalk::clickCell}, {3, &WindowWalk::clickNode},  {4, &WindowWalk::clickPage},
        {2, &WindowWalk::dragRows},   {3, &WindowWalk::runCommand}, {2, &WindowWalk::clickSubForm}};
    constexpr Choice kElsewhere[] = {{25, &WindowWalk::typeText},
                                     {30, &WindowWalk::pressKey},
                                     {35, &WindowWalk::clickAnything},
                                     {10, &WindowWalk::closeWindow}};
    const std::span<const Choice> choices = &target() == &mWindow ? std::span<const Choice>(kInMainWindow) : kElsewhere;
    if (!target().isActiveWindow())
        QApplication::setActiveWindow(&target());
    int pick = below(100);
    for (const Choice &choice : choices) {
        pick -= choice.weight;
        if (pick < 0)
            return (this->*choice.action)();
    }
}

void WindowWalk::typeText() {
    const char *text = kTexts[below(qsizetype(std::size(kTexts)))];
    did(QStringLiteral("type ") + QString::fromLatin1(text));
    if (auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget()); editor != nullptr && below(4) != 0)
        editor->selectAll();
    WindowInput::type(QString::fromLatin1(text));
    if (below(3) != 0)
        WindowInput::key(below(4) == 0 ? Qt::Key_Return : Qt::Key_Tab);
}

void WindowWalk::pressKey() {
    const QString name = QString::fromLatin1(kKeys[below(qsizetype(std::size(kKeys)))]);
    const QKeyCombination key = QKeySequence(name)[0];
    did(name);
    WindowInput::key(key.key(), key.keyboardModifiers());
}

template <class Kind>
Kind *WindowWalk::any(const QWidget &window, bool (*accepts)(const Kind &)) {
    QList<Kind *> found;
    for (Kind *candidate : window.findChildren<Kind *>()) {
        if (candidate->window() == &window && candidate->isVisible() && accepts(*candidate))
            found << candidate;
    }
    return found.isEmpty() ? nullptr : found[below(found.size())];
}

void WindowWalk::clickAnything() {
    auto *widget = any<QWidget>(target(), [](const QWidget &candidate) {
        const auto *tool = qobject_cast<const QToolButton *>(&candidate);
        const bool leaves = tool != nullptr && tool->defaultAction() != nullptr &&
                            kNotForTheWalk.contains(tool->defaultAction()->objectName());
        const QWidget *parent = candidate.parentWidget();
        const bool acts = qobject_cast<const QAbstractButton *>(&candidate) != nullptr ||
                          qobject_cast<const QLineEdit *>(&candidate) != nullptr ||
                          qobject_cast<const QComboBox *>(&candidate) != nullptr ||
                          qobject_cast<const QAbstractSlider *>(&candidate) != nullptr ||
                          qobject_cast<const QPlainTextEdit *>(&candidate) != nullptr ||
                          qobject_cast<const QAbstractItemView *>(parent) != nullptr;
        return acts && !leaves && !candidate.visibleRegion().isEmpty();
    });
    if (widget == nullptr)
        return pressKey();
    did(QStringLiteral("click ") + widget->objectName() + u'/' +
        QString::fromLatin1(widget->metaObject()->className()));
    const QRect seen = widget->visibleRegion().boundingRect();
    WindowInput::clickAt(*widget, seen.topLeft() + QPoint(below(seen.width()), below(seen.height())));
}

void WindowWalk::clickCell() {
    auto *table = any<QTableView>(target(), [](const QTableView &candidate) { return candidate.model() != nullptr; });
    if (table == nullptr || table->model()->rowCount() == 0)
        return clickAnything();
    const int row = qMax(0, table->rowAt(below(table->viewport()->height())));
    const QModelIndex index = table->model()->index(row, below(table->model()->columnCount()));
    did(QStringLiteral("cell %1 %2").arg(row).arg(index.column()));
    if (!table->visualRect(index).isEmpty())
        WindowInput::clickAt(*table->viewport(), table->visualRect(index).center());
    if (below(2) == 0)
        typeText();
}

void WindowWalk::dragRows() {
    auto *table = any<QTableView>(target(), [](const QTableView &candidate) { return candidate.model() != nullptr; });
    if (table == nullptr || !table->verticalHeader()->isVisible() || table->model()->rowCount() == 0)
        return clickCell();
    QWidget &heads = *table->verticalHeader()->viewport();
    const int height = qMin(heads.height(), table->verticalHeader()->length());
    did(QStringLiteral("rows"));
    const auto at = [&] { return QPoint(heads.width() / 2, below(height)); };
    const QPoint from = heads.mapTo(heads.window(), at());
    const QPoint to = heads.mapTo(heads.window(), at());
    QTest::mousePress(heads.window()->windowHandle(), Qt::LeftButton, {}, from);
    QTest::mouseMove(heads.window()->windowHandle(), to);
    QTest::mouseRelease(heads.window()->windowHandle(), Qt::LeftButton, {}, to);
}

void WindowWalk::clickNode() { clickNode(QString()); }

// The node with that text, or any.
void WindowWalk::clickNode(const QString &text) {
    auto *tree = mWindow.findChild<QTreeWidget *>(QStringLiteral("FormTree"));
    QList<QTreeWidgetItem *> nodes;
    for (QTreeWidgetItemIterator at(tree); *at != nullptr; ++at) {
        if (text.isEmpty() || (*at)->text(0) == text)
            nodes << *at;
    }
    if (nodes.isEmpty())
        return;
    QTreeWidgetItem *node = nodes[below(nodes.size())];
    did(QStringLiteral("node ") + node->text(0));
    tree->scrollToItem(node);
    WindowInput::clickAt(*tree->viewport(), tree->visualItemRect(node).center());
}

void WindowWalk::clickPage() {
    auto *tabs = any<QTabWidget>(target(), [](const QTabWidget &candidate) { return candidate.count() > 1; });
    if (tabs == nullptr)
        return clickNode();
    const int page = below(tabs->count());
    did(QStringLiteral("page %1").arg(page));
    if (tabs->isTabVisible(page))
        WindowInput::clickAt(*tabs->tabBar(), tabs->tabBar()->tabRect(page).center());
}

void WindowWalk::clickSubForm() {
    auto *button = any<QPushButton>(target(), [](const QPushButton &candidate) {
        return candidate.parentWidget()->inherits("fldSubFormCallUp") && candidate.isEnabled();
    });
    if (button == nullptr)
        return clickNode(QStringLiteral("Free Format Bursts"));
    did(QStringLiteral("sub-form"));
    mTally.add(QStringLiteral("sub-forms"));
    WindowInput::click(*button);
}

void WindowWalk::runCommand() {
    QList<QAction *> commands;
    for (QAction *action : mWindow.findChildren<QAction *>()) {
        const bool named = action->objectName().startsWith(QStringLiteral("mnu"));
        if (named && action->isVisible() && action->isEnabled() && !kNotForTheWalk.contains(action->objectName()))
            commands << action;
    }
    QAction *command = commands[below(commands.size())];
    did(command->objectName());
    mTally.add(command->objectName() == u"mnuOptions" ? QStringLiteral("preferences") : QStringLiteral("commands"));
    command->trigger();
}

void WindowWalk::closeWindow() {
    did(QStringLiteral("close ") + QString::fromLatin1(target().metaObject()->className()));
    target().close();
}
