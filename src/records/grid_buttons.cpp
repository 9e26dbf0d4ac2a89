#include "grid_buttons.h"

#include "grid_surface.h"
#include "translation.h"

#include <QPushButton>

#include <algorithm>

namespace {
// In the order in which they are enabled, and in which they stand from the left.
struct Row {
    const char *name;
    const char *caption;
    bool GridDesign::*shown;
    std::function<void()> GridButtons::Commands::*command;
};
constexpr Row kRows[] = {
    {"cmdAdd", "&Add", &GridDesign::ButtonAdd, &GridButtons::Commands::add},
    {"cmdInsert", "&Insert", &GridDesign::ButtonInsert, &GridButtons::Commands::insert},
    {"cmdRepeat", "&Repeat", &GridDesign::ButtonRepeat, &GridButtons::Commands::repeat},
    {"cmdDelete", "&Delete", &GridDesign::ButtonDelete, &GridButtons::Commands::remove},
};

constexpr Twips kWidth{1200};
constexpr Twips kHeight{315};
constexpr Twips kStride{1300};
constexpr Twips kBelow{50};
constexpr Twips kAbove{150};

QString captionOf(std::size_t button) { return QString::fromLatin1(kRows[button].caption); }
} // namespace

GridButtons::GridButtons(GridSurface &grid, const Commands &commands) : mGrid(grid) {
    QWidget *const control = grid.Control();
    for (std::size_t button = 0; button < kButtons; ++button) {
        const Row &row = kRows[button];
        if (!(grid.Design().*row.shown))
            continue;
        mButtons[button] = new QPushButton(captionOf(button), control);
        mButtons[button]->setObjectName(QString::fromLatin1(row.name));
        QObject::connect(mButtons[button], &QPushButton::clicked, control,
                         [this, command = commands.*row.command] { click(command); });
    }
}

// A button takes the focus from the table, so the current cell is asked first; a refused one gets the focus back.
void GridButtons::click(const std::function<void()> &command) {
    bool cancel = false;
    mGrid.Validate(cancel);
    if (mGrid.Terminated())
        return;
    if (cancel)
        mGrid.Table().SetFocus();
    else
        command();
}

void GridButtons::translate(const Translation &translation) {
    for (std::size_t button = 0; button < kButtons; ++button) {
        if (mButtons[button] != nullptr)
            mButtons[button]->setText(translation.NLSStr(captionOf(button)));
    }
}

void GridButtons::AcceleratorsEnabled(bool enabled) {
    for (std::size_t button = 0; button < kButtons; ++button) {
        if (mButtons[button] != nullptr)
            mButtons[button]->setText(enabled ? captionOf(button) : captionOf(button).remove(u'&'));
    }
}

void GridButtons::SetButtonEnabledState(bool enabled) {
    for (QPushButton *button : mButtons) {
        if (button == nullptr)
            continue;
        if (!enabled && button->hasFocus())
            mGrid.Table().SetFocus();
        button->setEnabled(enabled);
    }
}

TwipRect GridButtons::place(const TwipSize &control) {
    const Twips zero;
    Twips left = control.width - kWidth;
    const Twips top = control.height - kBelow - kHeight;
    bool any = false;
    for (auto button = mButtons.rbegin(); button != mButtons.rend(); ++button) {
        if (*button == nullptr)
            continue;
        (*button)->setGeometry(TwipScale::of(**button).toPixels(TwipRect{left, top, kWidth, kHeight}));
        left = left - kStride;
        any = true;
    }
    return {zero, zero, control.width, any ? control.height - kHeight - kAbove : control.height};
}
