#include "shell_tool_bar.h"

#include "run_time_error.h"
#include "translated_texts.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include <utility>

namespace {
[[noreturn]] void raiseMissing(const QString &what) {
    throw RunTimeError(ErrorNumber::kIndexOutOfRange, QStringLiteral("ShellToolBar"),
                       QStringLiteral("There is no button ") + what);
}
} // namespace

ShellToolBar::ShellToolBar(QWidget *parent, const QString &name, const QString &title,
                           const std::vector<ToolBarRow> &rows, TranslatedTexts &texts,
                           std::function<void(const QString &)> clicked)
    : mBar(new QToolBar(parent)), mClicked(std::move(clicked)) {
    mBar->setObjectName(name);
    mBar->setIconSize(QSize(20, 20));
    texts.Add(title, [this](const QString &text) { mBar->setAccessibleName(text); });
    for (const ToolBarRow &row : rows) {
        if (*row.key == '\0') {
            mButtons.push_back(mBar->addSeparator());
            continue;
        }
        const QString key = QString::fromLatin1(row.key);
        QAction *action = mBar->addAction(loadIcon(row.icon), QString());
        action->setObjectName(key);
        texts.Add(QString::fromLatin1(row.toolTip), [action](const QString &text) {
            action->setText(text);
            action->setToolTip(text);
        });
        QObject::connect(action, &QAction::triggered, mBar, [this, key] { mClicked(key); });
        mBar->widgetForAction(action)->setFocusPolicy(Qt::NoFocus);
        mButtons.push_back(action);
    }
}

QAction &ShellToolBar::Button(int index) const {
    if (index < 1 || index > int(mButtons.size()))
        raiseMissing(QString::number(index));
    return *mButtons[std::size_t(index - 1)];
}

QAction &ShellToolBar::Button(const QString &key) const {
    for (QAction *button : mButtons) {
        if (!button->isSeparator() && button->objectName() == key)
            return *button;
    }
    raiseMissing(key);
}

void ShellToolBar::AddButtonMenu(const QString &buttonKey, const QString &key, const QString &caption,
                                 TranslatedTexts &texts) {
    QAction &button = Button(buttonKey);
    if (button.menu() == nullptr) {
        button.setMenu(new QMenu(mBar));
        qobject_cast<QToolButton *>(mBar->widgetForAction(&button))->setPopupMode(QToolButton::MenuButtonPopup);
    }
    QAction *entry = button.menu()->addAction(QString());
    entry->setObjectName(key);
    texts.Add(caption, [entry](const QString &text) { entry->setText(text); });
    QObject::connect(entry, &QAction::triggered, mBar, [this, key] { mClicked(key); });
}

const std::vector<ToolBarRow> &ShellToolBars::standardRows() {
    static const std::vector<ToolBarRow> kRows{
        {"New", "New", ProgramIcon::kNew},
        {"Open", "Open", ProgramIcon::kOpen},
        {"Save", "Save", ProgramIcon::kSave},
        {"", ""},
        {"Print", "Print", ProgramIcon::kPrint},
        {"", ""},
        {"Revert", "Revert the form", ProgramIcon::kRevert},
        {"Validate", "Validate the form", ProgramIcon::kValidate},
        {"Accept", "Accept the form's changes", ProgramIcon::kAccept},
        {"Reject", "Reject the form's changes", ProgramIcon::kReject},
        {"", ""},
        {"Help What's This", "What's This?", ProgramIcon::kWhatsThis},
        {"Help", "Help", ProgramIcon::kHelp},
    };
    return kRows;
}

const std::vector<ToolBarRow> &ShellToolBars::radioRows() {
    static const std::vector<ToolBarRow> kRows{
        {"Read", "Read the radio", ProgramIcon::kRead},
        {"Program", "Program the radio", ProgramIcon::kProgram},
        {"Interrogate", "Interrogate the radio", ProgramIcon::kInterrogate},
    };
    return kRows;
}
