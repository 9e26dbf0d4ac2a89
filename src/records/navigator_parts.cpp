#include "navigator_parts.h"

#include "combo_list.h"
#include "field_label.h"
#include "navigator_slider.h"
#include "plain_caption.h"
#include "program_icons.h"
#include "translation.h"

#include <QPushButton>

#include <algorithm>
#include <optional>

namespace {
enum class Group { kMovement, kRecord, kStep };

struct ButtonLook {
    const char16_t *name;
    Group group;
    std::optional<ProgramIcon> icon;
    const char16_t *caption; // untranslated; of a movement button its tool tip
    int key;                 // with Alt; 0: the caption's access key
};

// By NavigatorButton.
constexpr ButtonLook kLooks[] = {
    {u"cmdFirst", Group::kMovement, ProgramIcon::kFirst, u"First record", Qt::Key_Home},
    {u"cmdBack", Group::kMovement, ProgramIcon::kBack, u"Previous record", Qt::Key_Left},
    {u"cmdForward", Group::kMovement, ProgramIcon::kForward, u"Next record", Qt::Key_Right},
    {u"cmdLast", Group::kMovement, ProgramIcon::kLast, u"Last record", Qt::Key_End},
    {u"cmdAdd", Group::kRecord, ProgramIcon::kRecordAdd, u"&Add", 0},
    {u"cmdInsert", Group::kRecord, ProgramIcon::kRecordInsert, u"&Insert", 0},
    {u"cmdRepeat", Group::kRecord, ProgramIcon::kRecordRepeat, u"&Repeat", 0},
    {u"cmdDelete", Group::kRecord, ProgramIcon::kRecordDelete, u"&Delete", 0},
    {u"cmdRestart", Group::kStep, std::nullopt, u"&Restart", 0},
    {u"cmdPreviousStep", Group::kStep, std::nullopt, u"&Previous Step", 0},
    {u"cmdNextStep", Group::kStep, std::nullopt, u"&Next Step", 0},
    {u"cmdGotoStep", Group::kStep, std::nullopt, u"&Go To Step ", 0},
};
static_assert(std::size(kLooks) == NavigatorParts::kButtons);

constexpr int kIconSize = 16; // pixels, as the paddings
constexpr int kMovementWidth = 26;
constexpr int kTextPadding = 16;
constexpr int kIconGap = 6;
} // namespace

NavigatorParts::NavigatorParts(QWidget &strip, Style style, const ButtonSet &recordButtons)
    : mStrip(strip), mStyle(style), mSlider(new NavigatorSlider(&strip)), mDescription(new FieldLabel(&strip)),
      mList(new ComboList(&strip)) {
    mSlider->setObjectName(QStringLiteral("sldSelector"));
    mList->setObjectName(QStringLiteral("cboSelector"));
    mDescription->setObjectName(QStringLiteral("lblComboDescription"));
    mDescription->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    mDescription->setBuddy(mList);
    mList->setVisible(style == Style::kRecords);
    for (std::size_t i = 0; i < kButtons; ++i) {
        const bool ofStyle = (kLooks[i].group == Group::kStep) == (style == Style::kSteps);
        const bool wanted = kLooks[i].group != Group::kRecord || recordButtons.test(i);
        mShown.set(i, ofStyle && wanted);
        mButtons[i] = new QPushButton(&strip);
        mButtons[i]->setObjectName(QString::fromUtf16(kLooks[i].name));
        mButtons[i]->setAutoDefault(false);
        mButtons[i]->setIconSize({kIconSize, kIconSize});
        mButtons[i]->setVisible(isShown(i));
        if (kLooks[i].group == Group::kMovement)
            mButtons[i]->setIcon(loadIcon(*kLooks[i].icon));
    }
    setTabStop(true);
}

std::vector<QWidget *> NavigatorParts::editingParts() const {
    std::vector<QWidget *> parts{mSlider, mList};
    parts.insert(parts.end(), mButtons.begin(), mButtons.end());
    return parts;
}

void NavigatorParts::translate(const Translation &translation, qint32 gotoNumber) {
    for (std::size_t i = 0; i < kButtons; ++i) {
        const QString caption = translation.NLSStr(QString::fromUtf16(kLooks[i].caption));
        if (kLooks[i].group == Group::kMovement) {
            const QKeySequence key(Qt::ALT | Qt::Key(kLooks[i].key));
            mButtons[i]->setAccessibleName(caption);
            mButtons[i]->setToolTip(QStringLiteral("%1 (%2)").arg(caption, key.toString(QKeySequence::NativeText)));
            mButtons[i]->setShortcut(key);
        } else {
            mButtons[i]->setText(caption);
        }
    }
    QPushButton &step = button(NavigatorButton::kGotoStep);
    step.setText(step.text() + QString::number(gotoNumber));
}

void NavigatorParts::describe(const QString &recordName, const QString &description) {
    mDescription->setText(description);
    mSlider->setAccessibleName(plainCaption(recordName));
    mList->setAccessibleName(plainCaption(description.isEmpty() ? recordName : description));
}

void NavigatorParts::setTabStop(bool tabStop) {
    for (QWidget *part : editingParts())
        part->setFocusPolicy(tabStop ? Qt::StrongFocus : Qt::ClickFocus);
    for (std::size_t i = 0; i < kButtons; ++i) {
        if (kLooks[i].group == Group::kMovement)
            mButtons[i]->setFocusPolicy(Qt::ClickFocus);
    }
}

TwipSize NavigatorParts::layOut(Twips width) {
    width = std::max(width, NavigatorLayout::kLeastWidth);
    NavigatorLayout::Places chosen;
    for (const Trim trim : {Trim::kNothing, Trim::kIcons, Trim::kIconsAndDescription}) {
        apply(trim);
        chosen = places(width);
        if (!chosen.cramped)
            break;
    }
    place(chosen);
    return {width, chosen.height};
}

void NavigatorParts::apply(Trim trim) {
    mDescription->setVisible(mStyle == Style::kRecords && trim != Trim::kIconsAndDescription);
    for (std::size_t i = 0; i < kButtons; ++i) {
        if (kLooks[i].group == Group::kRecord && isShown(i))
            mButtons[i]->setIcon(trim == Trim::kNothing ? loadIcon(*kLooks[i].icon) : QIcon());
    }
}

Twips NavigatorParts::widthOf(const QPushButton &button) const {
    const TwipScale scale = TwipScale::of(mStrip);
    const int text = button.fontMetrics().horizontalAdvance(plainCaption(button.text()));
    const int icon = button.icon().isNull() ? 0 : kIconSize + kIconGap;
    return scale.ofMeasure({button.text().isEmpty() ? kMovementWidth : text + icon + kTextPadding});
}

NavigatorLayout::Places NavigatorParts::places(Twips width) const {
    const TwipScale scale = TwipScale::of(mStrip);
    NavigatorLayout::Needs needs{
        width,
        std::max(NavigatorLayout::kPartHeight, scale.ofMeasure({mList->minimumSizeHint().height()})),
        {},
        {},
        {}};
    if (!mDescription->isHidden() && !mDescription->text().isEmpty())
        needs.description = scale.ofMeasure({mDescription->captionWidth() + 1});
    for (std::size_t i = 0; i < kButtons; ++i) {
        if (isShown(i))
            (kLooks[i].group == Group::kMovement ? needs.movement : needs.buttons).push_back(widthOf(*mButtons[i]));
    }
    return mStyle == Style::kSteps ? NavigatorLayout::steps(needs) : NavigatorLayout::records(needs);
}

void NavigatorParts::place(const NavigatorLayout::Places &places) {
    const TwipScale scale = TwipScale::of(mStrip);
    mSlider->setGeometry(scale.toPixels(places.slider));
    mList->setGeometry(scale.toPixels(places.list));
    mDescription->setGeometry(scale.toPixels(places.description));
    std::size_t movement = 0;
    std::size_t others = 0;
    for (std::size_t i = 0; i < kButtons; ++i) {
        if (!isShown(i))
            continue;
        const TwipRect &rect =
            kLooks[i].group == Group::kMovement ? places.movement[movement++] : places.buttons[others++];
        mButtons[i]->setGeometry(scale.toPixels(rect));
    }
}
