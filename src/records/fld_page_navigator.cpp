#include "fld_page_navigator.h"

#include "combo_list.h"
#include "common_error_handler.h"
#include "field_properties.h"
#include "form_controls_of.h"
#include "host_control.h"
#include "navigator_grid.h"
#include "navigator_slider.h"
#include "process_values.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

#include <QPushButton>

#include <algorithm>

struct fldPageNavigator::ButtonCommand {
    NavigatorButton button;
    void (fldPageNavigator::*click)();
};

const fldPageNavigator::ButtonCommand fldPageNavigator::kButtonCommands[] = {
    {NavigatorButton::kFirst, &fldPageNavigator::cmdFirst_Click},
    {NavigatorButton::kBack, &fldPageNavigator::cmdBack_Click},
    {NavigatorButton::kForward, &fldPageNavigator::cmdForward_Click},
    {NavigatorButton::kLast, &fldPageNavigator::cmdLast_Click},
    {NavigatorButton::kAdd, &fldPageNavigator::cmdAdd_Click},
    {NavigatorButton::kInsert, &fldPageNavigator::cmdInsert_Click},
    {NavigatorButton::kRepeat, &fldPageNavigator::cmdRepeat_Click},
    {NavigatorButton::kDelete, &fldPageNavigator::cmdDelete_Click},
    {NavigatorButton::kRestart, &fldPageNavigator::cmdRestart_Click},
    {NavigatorButton::kPreviousStep, &fldPageNavigator::cmdPreviousStep_Click},
    {NavigatorButton::kNextStep, &fldPageNavigator::cmdNextStep_Click},
    {NavigatorButton::kGotoStep, &fldPageNavigator::cmdGotoStep_Click},
};

struct fldPageNavigator::RecordCommand {
    const char16_t *event; // without a grid
    void (NavigatorGrid::*byGrid)();
};

const fldPageNavigator::RecordCommand fldPageNavigator::kAdd{u"AddRecordNavigator", &NavigatorGrid::Add};
const fldPageNavigator::RecordCommand fldPageNavigator::kInsert{u"InsertRecordNavigator", &NavigatorGrid::Insert};
const fldPageNavigator::RecordCommand fldPageNavigator::kRepeat{u"RepeatRecordNavigator", &NavigatorGrid::Repeat};

namespace {
constexpr qint32 kStyleOfSteps = 0;
constexpr qint32 kStyleWithoutSlider = 1; // as far as Ifield_SetEnabled goes
constexpr qint32 kStyleWithAllButtons = 2;

constexpr NavigatorButton kRecordButtons[] = {NavigatorButton::kAdd, NavigatorButton::kInsert, NavigatorButton::kRepeat,
                                              NavigatorButton::kDelete};
constexpr NavigatorButton kStepButtons[] = {NavigatorButton::kRestart, NavigatorButton::kPreviousStep,
                                            NavigatorButton::kNextStep, NavigatorButton::kGotoStep};

NavigatorParts::Style styleOf(qint32 sliderStyle) {
    return sliderStyle == kStyleOfSteps ? NavigatorParts::Style::kSteps : NavigatorParts::Style::kRecords;
}

NavigatorParts::ButtonSet recordButtons(PropertyReader &reader, qint32 sliderStyle) {
    const QString keys[] = {QStringLiteral("ButtonAdd"), QStringLiteral("ButtonInsert"), QStringLiteral("ButtonRepeat"),
                            QStringLiteral("ButtonDelete")};
    NavigatorParts::ButtonSet shown;
    for (std::size_t i = 0; i < std::size(keys); ++i)
        shown.set(std::size_t(kRecordButtons[i]), reader.flag(keys[i], sliderStyle == kStyleWithAllButtons));
    return shown;
}
} // namespace

fldPageNavigator::fldPageNavigator(const FieldServices &services, const FieldProperties &properties, QWidget *parent)
    : fldPageNavigator(services, PropertyReader(properties), parent) {}

fldPageNavigator::fldPageNavigator(const FieldServices &services, PropertyReader reader, QWidget *parent)
    : EditableField(services, parent), mNavigatorStream(reader.integer(QStringLiteral("NavigatorStream"), 0)),
      mGridID(reader.text(QStringLiteral("GridID"), {})), mGuideUIID(reader.text(QStringLiteral("GuideUIID"), {})),
      mPositionStorageUIID(reader.text(QStringLiteral("PositionStorageUIID"), {})),
      mGotoNumber(reader.integer(QStringLiteral("GotoNumber"), 1)),
      mSliderStyle(reader.integer(QStringLiteral("SliderStyle"), kStyleOfSteps)),
      mParts(*this, styleOf(mSliderStyle), recordButtons(reader, mSliderStyle)),
      mGridControl(reader.text(QStringLiteral("GridControl"), {})),
      mSubNavigator(reader.text(QStringLiteral("SubNavigator"), {})), mNamePrefix(mGuideUIID),
      mPosition(mParts.sldSelector(), *this), mNames(mParts.cboSelector()) {
    setLogicalEnabled(reader.flag(QStringLiteral("Enabled"), true));
    reader.refuseUnknown();
    connectParts();
    mParts.translate(services.translation, mGotoNumber);
    mParts.describe(mNamePrefix, {});
    SetActionkeysEnabledDisabled();
    SetControlSize(mSize);
}

void fldPageNavigator::connectParts() {
    connect(&mParts.sldSelector(), &QSlider::valueChanged, this, &fldPageNavigator::sldSelector_Change);
    connect(&mParts.sldSelector(), &QSlider::sliderMoved, this, &fldPageNavigator::sldSelector_Scroll);
    // Only the user's choices: a change by code is not heard of.
    connect(&mParts.cboSelector(), &QComboBox::activated, this, &fldPageNavigator::cboSelector_Click);
    for (const ButtonCommand &command : kButtonCommands)
        connect(&mParts.button(command.button), &QPushButton::clicked, this, command.click);
    for (QWidget *part : mParts.editingParts())
        part->installEventFilter(this);
}

void fldPageNavigator::sldSelector_Change() try { mPosition.sldSelector_Change(); }
ERROR_TAIL()

void fldPageNavigator::sldSelector_Scroll(int thumb) try { mPosition.sldSelector_Scroll(thumb); }
ERROR_TAIL()

void fldPageNavigator::cboSelector_Click(int index) try {
    if (index + 1 != mPosition.Position())
        mPosition.Position(index + 1);
}
ERROR_TAIL()

void fldPageNavigator::cmdFirst_Click() try { mPosition.First(); }
ERROR_TAIL()

void fldPageNavigator::cmdBack_Click() try { mPosition.Back(); }
ERROR_TAIL()

void fldPageNavigator::cmdForward_Click() try { mPosition.Forward(); }
ERROR_TAIL()

void fldPageNavigator::cmdLast_Click() try { mPosition.Last(); }
ERROR_TAIL()

void fldPageNavigator::cmdPreviousStep_Click() { cmdBack_Click(); }

void fldPageNavigator::cmdNextStep_Click() { cmdForward_Click(); }

void fldPageNavigator::cmdRestart_Click() { Inavigator_Position(1); }

void fldPageNavigator::cmdGotoStep_Click() { Inavigator_Position(mGotoNumber); }

void fldPageNavigator::cmdAdd_Click() try { run(kAdd); }
ERROR_TAIL()

void fldPageNavigator::cmdInsert_Click() try { run(kInsert); }
ERROR_TAIL()

void fldPageNavigator::cmdRepeat_Click() try { run(kRepeat); }
ERROR_TAIL()

// A record that is about to be deleted need not be valid.
void fldPageNavigator::cmdDelete_Click() try {
    if (!mGridID.isEmpty())
        deleteRecord();
    if (!isTerminated())
        SetActionkeysEnabledDisabled();
}
ERROR_TAIL()

void fldPageNavigator::run(const RecordCommand &command) {
    if (!formIsValid() || isTerminated())
        return;
    if (!mGridID.isEmpty()) {
        if (NavigatorGrid *const byGrid = grid())
            (byGrid->*command.byGrid)();
        else
            raise(FieldEvent(QString::fromUtf16(command.event), in(static_cast<Inavigator *>(this))));
    }
    if (!isTerminated())
        SetActionkeysEnabledDisabled();
}

void fldPageNavigator::deleteRecord() {
    if (NavigatorGrid *const byGrid = grid())
        return byGrid->Delete();
    bool deleted = false;
    raise(FieldEvent(QStringLiteral("DeleteRecordNavigator"), in(static_cast<Inavigator *>(this)), out(deleted)));
    if (!isTerminated())
        mPosition.sldSelector_Change();
}

bool fldPageNavigator::formIsValid() {
    bool valid = false;
    raise(FieldEvent(QStringLiteral("ValidateForm"), out(valid)));
    return valid;
}

NavigatorGrid *fldPageNavigator::grid() const {
    if (mGridControl.isEmpty() || isTerminated())
        return nullptr;
    const HostControls *controls = formControlsOf(*this);
    if (controls == nullptr)
        return nullptr;
    const auto found = std::ranges::find(*controls, mGridControl, &HostControl::Name);
    return found == controls->end() ? nullptr : dynamic_cast<NavigatorGrid *>((*found)->object());
}

void fldPageNavigator::Ifield_SetRecordNumber(qint32 lngNewRecordNumber) {
    mParts.sldSelector().setValue(lngNewRecordNumber);
}

QVariant fldPageNavigator::Ifield_SetName(const QString &Name) try {
    mNamePrefix = Name.section(u'|', 0, 0);
    mDescription = Name.section(u'|', 1);
    mParts.describe(mNamePrefix, mDescription);
    mParts.translate(services().translation, mGotoNumber);
    SetControlSize(mSize);
    return Name;
}
ERROR_TAIL_AS("SetName", {})

void fldPageNavigator::Ifield_SetEnabled() {
    const bool styleOne = mSliderStyle == kStyleWithoutSlider;
    setLogicalEnabled(true);
    setShown(true);
    Ifield_GetUIIDNotFound(false);
    enableAs(!styleOne, styleOne, !styleOne);
}

void fldPageNavigator::Ifield_SetDisabled() {
    setLogicalEnabled(false);
    setShown(true);
    enableAs(false, false, false);
}

void fldPageNavigator::Ifield_SetInvisible() {
    setShown(false);
    mParts.sldSelector().hide();
    for (const NavigatorButton step : kStepButtons)
        mParts.button(step).hide();
}

void fldPageNavigator::Ifield_UIIDNotFound() {
    mNames.Clear();
    Ifield_SetDisabled();
    Ifield_GetUIIDNotFound(true);
}

void fldPageNavigator::enableAs(bool slider, bool steps, bool records) {
    mParts.sldSelector().setEnabled(slider);
    for (const NavigatorButton step : kStepButtons)
        mParts.button(step).setEnabled(steps);
    for (const NavigatorButton record : kRecordButtons)
        mParts.button(record).setEnabled(records);
}

void fldPageNavigator::Inavigator_NumberRecords(qint32 NewNumber) try { mPosition.NumberRecords(NewNumber); }
ERROR_TAIL()

void fldPageNavigator::Inavigator_Position(qint32 NewPosition) try { mPosition.MoveTo(NewPosition); }
ERROR_TAIL()

void fldPageNavigator::Inavigator_ForcePositionChange(qint32 lngPosition) try {
    mPosition.ForcePositionChange(lngPosition);
}
ERROR_TAIL()

bool fldPageNavigator::AskPosition(qint32 position) {
    bool accepted = false;
    raise(FieldEvent(QStringLiteral("ChangePositionStorage"), in(mPositionStorageUIID), out(position), out(accepted)));
    return accepted;
}

void fldPageNavigator::TellPosition(qint32 position) {
    raise(
        FieldEvent(QStringLiteral("ChangedPosition"), in(mPositionStorageUIID), out(mNavigatorStream), out(position)));
}

void fldPageNavigator::StoreIfNone(qint32 position) {
    constexpr qint32 kNoneStored = 0;
    if (!HasStorage() || services().process.objTransformer == nullptr)
        return;
    const QVariant stored = component().GetValue(mPositionStorageUIID, 1);
    if (!isTerminated() && ValueText::toIntegerOr(stored, position) == kNoneStored)
        (void)AskPosition(position);
}

void fldPageNavigator::UpdateTheLocationTextbox(qint32 position) {
    if (position <= 0)
        mNames.Clear();
    else if (services().process.objTransformer != nullptr)
        mNames.Show(component(), mGuideUIID, mNamePrefix, position);
}

void fldPageNavigator::EnableSteps(qint32 position) {
    mParts.button(NavigatorButton::kNextStep).setEnabled(position != mPosition.NumberRecords());
    mParts.button(NavigatorButton::kPreviousStep).setEnabled(position != 1);
    mParts.button(NavigatorButton::kRestart).setEnabled(position != 1);
    mParts.button(NavigatorButton::kGotoStep).setEnabled(position != mGotoNumber);
}

void fldPageNavigator::SetActionkeysEnabledDisabled() {
    const bool any = mPosition.NumberRecords() >= 1;
    mParts.cboSelector().setEnabled(any);
    mParts.sldSelector().setEnabled(any);
}

TwipSize fldPageNavigator::SetControlSize(const TwipSize &size) {
    mSize = mParts.layOut(size.width);
    resize(TwipScale::of(*this).toPixels(mSize));
    return mSize;
}

void fldPageNavigator::SetTabStop(bool tabStop) {
    EditableField::SetTabStop(tabStop);
    mParts.setTabStop(tabStop);
}

bool fldPageNavigator::TakesFocus() const {
    return std::ranges::any_of(mParts.editingParts(),
                               [](const QWidget *part) { return part->isEnabled() && part->isVisible(); });
}

QWidget *fldPageNavigator::editingPart() const { return &mParts.sldSelector(); }

bool fldPageNavigator::eventFilter(QObject *watched, QEvent *event) try {
    return handleWhatsThisKey(*event) || EditableField::eventFilter(watched, event);
}
ERROR_TAIL(false)
