#include "fld_slider_field.h"

#include "common_error_handler.h"
#include "drag_payload.h"
#include "field_properties.h"
#include "plain_caption.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

#include <algorithm>
#include <array>

namespace {
constexpr TwipSize kDefinitionSize{{7170}, {510}};
constexpr Twips kReadOutWidth{1095};
constexpr Twips kRightOfReadOut{75};
constexpr Twips kButtonWidth{315};
constexpr Twips kGap{60};
constexpr double kLabelShare = 0.2;
constexpr int kScrollsPerChange = 5;
constexpr qint32 kCopyOnly = 2;
constexpr qint32 kCopyPaste = 6;

bool isInput(const QEvent &event) {
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
        return true;
    default:
        return false;
    }
}

bool isEscape(const QEvent &event) {
    const bool key = event.type() == QEvent::KeyPress || event.type() == QEvent::ShortcutOverride;
    return key && static_cast<const QKeyEvent &>(event).key() == Qt::Key_Escape;
}
} // namespace

fldSliderField::fldSliderField(const FieldServices &services, const FieldProperties &properties, QWidget *parent)
    : LabelledField(services, parent, kDefinitionSize), mText1(new QLineEdit(this)),
      mSlider1(new QSlider(Qt::Horizontal, this)), mcmdUp(new QToolButton(this)), mcmdDown(new QToolButton(this)) {
    setUpParts();
    readProperties(properties);
    addEditor(*mSlider1, *mSlider1);
    nameParts();
    SetTabStop(true);
    enableParts(ControlEnabled());
    showParts(Ifield_GetVisible());
    layOut();
}

void fldSliderField::setUpParts() {
    mText1->setObjectName(QStringLiteral("Text1"));
    mText1->setReadOnly(true); // a read-out: the value is moved, not typed
    mText1->setFocusPolicy(Qt::NoFocus);
    mText1->setAlignment(Qt::AlignRight);
    mSlider1->setObjectName(QStringLiteral("Slider1"));
    mSlider1->setTickPosition(QSlider::NoTicks);
    mSlider1->setTracking(false); // a drag reports by Slider1_Scroll and once at its end
    mcmdUp->setObjectName(QStringLiteral("cmdUp"));
    mcmdUp->setText(QStringLiteral(">"));
    mcmdDown->setObjectName(QStringLiteral("cmdDown"));
    mcmdDown->setText(QStringLiteral("<"));
    for (QToolButton *button : {mcmdUp, mcmdDown}) {
        button->setFocusPolicy(Qt::NoFocus); // the slider has the keys
        button->setAutoRepeat(true);
        button->installEventFilter(this);
    }
    mSlider1->installEventFilter(this);
    connect(mcmdUp, &QToolButton::clicked, this, &fldSliderField::cmdUp_Click);
    connect(mcmdDown, &QToolButton::clicked, this, &fldSliderField::cmdDown_Click);
    connect(mSlider1, &QSlider::sliderMoved, this, &fldSliderField::Slider1_Scroll);
    connect(mSlider1, &QSlider::valueChanged, this, &fldSliderField::Slider1_Change);
}

void fldSliderField::readProperties(const FieldProperties &properties) {
    PropertyReader reader(properties);
    readLabel(reader, QStringLiteral("Field"), kLabelShare);
    constexpr qint32 kNotStored = -1;
    const qint32 record = reader.integer(QStringLiteral("RecordNumber"), kNotStored);
    const qint32 value = reader.integer(QStringLiteral("Value"), 0);
    mSafetyMargin = reader.real(QStringLiteral("SafetyMargin"), 1.0);
    setShown(reader.flag(QStringLiteral("Visible"), true));
    setLogicalEnabled(reader.flag(QStringLiteral("Enabled"), false));
    reader.refuseUnknown();
    if (record == kNotStored)
        Ifield_SetRecordNumber(component().GetNumberOfRecords(Ifield_GetUIID()) == 0 ? 0 : 1);
    else
        Ifield_SetRecordNumber(record);
    showNumber(value);
}

QWidget *fldSliderField::editingPart() const { return mSlider1; }

double fldSliderField::number() const { return ValueText::number(mValue).value_or(0); }

void fldSliderField::SetStep(qint32 Step) {
    mSteps.setStep(Step);
    if (!mSteps.hasLimits())
        return;
    const SliderSteps::Range range = mSteps.range();
    {
        const QSignalBlocker noChangeOfTheUsers(mSlider1);
        mSlider1->setRange(range.lowest, range.highest);
    }
    moveTo(mSteps.positionOf(number()));
    enableParts(ControlEnabled());
}

void fldSliderField::moveTo(int position) {
    const QSignalBlocker noChangeOfTheUsers(mSlider1);
    mSlider1->setValue(position);
    mSlider1->setSliderPosition(mSlider1->value()); // also in the middle of a drag
}

void fldSliderField::showNumber(const QVariant &value) {
    mValue = value;
    mText1->setText(ValueText::of(value));
    showFace();
}

void fldSliderField::cmdUp_Click() try {
    if (mSlider1->value() < mSlider1->maximum())
        mSlider1->setValue(mSlider1->value() + 1);
}
ERROR_TAIL()

void fldSliderField::cmdDown_Click() try {
    if (mSlider1->value() > mSlider1->minimum())
        mSlider1->setValue(mSlider1->value() - 1);
}
ERROR_TAIL()

void fldSliderField::Slider1_Scroll() try {
    if (++mScrolls < kScrollsPerChange)
        return;
    mScrolls = 0;
    Slider1_Change();
}
ERROR_TAIL()

void fldSliderField::Slider1_Change() try {
    const qint32 wanted = mSteps.valueOf(mSlider1->sliderPosition());
    const bool beyond = mSlider1->isEnabledTo(this) && mSteps.isBeyond(wanted, mSafetyMargin);
    if (beyond && !mShiftHeld && number() <= wanted) {
        moveTo(mSteps.positionOf(number()));
        return;
    }
    showNumber(wanted);
    raise(FieldEvent(QStringLiteral("Change")));
}
ERROR_TAIL()

bool fldSliderField::eventFilter(QObject *watched, QEvent *event) try {
    if (isInput(*event))
        noteShift(static_cast<const QInputEvent &>(*event));
    if (watched != mSlider1)
        return false;
    if (isEscape(*event)) {
        event->accept(); // a slider takes nothing back, and its form must not either
        return true;
    }
    if (event->type() == QEvent::Wheel && !mSlider1->hasFocus()) {
        event->ignore();
        return true;
    }
    return handleWhatsThisKey(*event);
}
ERROR_TAIL_AS("Slider1_KeyDown", false)

void fldSliderField::noteShift(const QInputEvent &event) {
    const bool key = event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease;
    // Shift's own event may still tell of the state before it.
    if (key && static_cast<const QKeyEvent &>(event).key() == Qt::Key_Shift)
        mShiftHeld = event.type() == QEvent::KeyPress;
    else
        mShiftHeld = (event.modifiers() & Qt::ShiftModifier) != 0;
}

void fldSliderField::Ifield_Copy() try { services().clipboard.SetText(ValueText::of(mValue)); }
ERROR_TAIL()

void fldSliderField::Ifield_Paste() try { put(services().clipboard.Text()); }
ERROR_TAIL()

qint32 fldSliderField::Ifield_GetEditOperations() {
    return mayBePut(services().clipboard.Text()) ? kCopyPaste : kCopyOnly;
}

bool fldSliderField::mayBePut(const QVariant &value) const {
    const auto given = ValueText::number(value);
    return ControlEnabled() && given && !mSteps.isBeyond(*given, mSafetyMargin);
}

void fldSliderField::put(const QVariant &value) {
    if (!mayBePut(value) || ValueText::number(value) == number())
        return;
    Ifield_SetValue(value, false);
    raise(FieldEvent(QStringLiteral("Change")));
}

bool fldSliderField::Ifield_SetValue(const QVariant &Value, bool blnValidate) try {
    if (!ValueText::isNumeric(Value))
        return true;
    showNumber(Value);
    moveTo(mSteps.positionOf(number()));
    return !blnValidate || raiseManualValidate();
}
ERROR_TAIL_AS("SliderField SetValue", false)

void fldSliderField::showNothing() {
    showNumber(0);
    mText1->clear();
    moveTo(mSlider1->minimum());
}

void fldSliderField::Ifield_SetEnabled() try {
    setLogicalEnabled(true);
    setShown(true);
    Ifield_GetUIIDNotFound(false);
    enableParts(true);
    showParts(true);
    SetTabStop(true);
}
ERROR_TAIL_AS("SliderField SetEnabled")

void fldSliderField::Ifield_SetDisabled() try {
    setLogicalEnabled(false);
    setShown(true);
    enableParts(false);
    showParts(true);
    SetTabStop(false);
}
ERROR_TAIL_AS("SliderField SetDisabled")

void fldSliderField::Ifield_SetInvisible() try {
    setShown(false);
    showParts(false);
    SetTabStop(false);
}
ERROR_TAIL_AS("SliderField SetInvisible")

void fldSliderField::enableParts(bool enabled) {
    const bool movable = enabled && !mSteps.isFixed();
    for (QWidget *part : std::array<QWidget *, 3>{mSlider1, mcmdUp, mcmdDown})
        part->setEnabled(movable);
    mText1->setEnabled(enabled);
    showFace();
}

void fldSliderField::showParts(bool shown) {
    for (QWidget *part : std::array<QWidget *, 4>{mText1, mSlider1, mcmdUp, mcmdDown})
        part->setVisible(shown);
    if (!shown)
        setLabelState(LabelState::kHidden);
    else
        setLabelState(ControlEnabled() ? LabelState::kEnabled : LabelState::kDisabled);
}

void fldSliderField::showFace() {
    const bool enabled = mText1->isEnabledTo(this);
    const bool beyond = mSlider1->isEnabledTo(this) && mSteps.isBeyond(number(), mSafetyMargin);
    if (beyond)
        applyBoxFace(*mText1, QPalette::Base, BoxFace::kAlarm);
    else
        applyBoxFace(*mText1, QPalette::Base, enabled ? BoxFace::kWindow : BoxFace::kButton);
}

QVariant fldSliderField::Ifield_SetName(const QString &Name) {
    QVariant shown = LabelledField::Ifield_SetName(Name);
    nameParts();
    return shown;
}

void fldSliderField::nameParts() {
    const QString caption = plainCaption(Ifield_GetName());
    mText1->setAccessibleName(caption);
    mcmdUp->setAccessibleName(services().translation.NLSFmt(QStringLiteral("%0:S: one step up"), caption));
    mcmdDown->setAccessibleName(services().translation.NLSFmt(QStringLiteral("%0:S: one step down"), caption));
}

Twips fldSliderField::placeEditors(const LabelLayout::Parts &parts, Twips /*givenHeight*/) {
    const Twips top = parts.editor.top;
    const Twips height = parts.editor.height;
    const Twips end = parts.editor.left + parts.editor.width;
    const Twips readOut = std::max(end - kRightOfReadOut - kReadOutWidth, parts.editor.left);
    const Twips up = std::max(readOut - kGap - kButtonWidth, parts.editor.left);
    const Twips slider = parts.editor.left + kButtonWidth + kGap;
    place(*mcmdDown, {parts.editor.left, top, kButtonWidth, height});
    place(*mSlider1, {slider, top, std::max(up - kGap - slider, Twips{0}), height});
    place(*mcmdUp, {up, top, kButtonWidth, height});
    place(*mText1, {readOut, top, kReadOutWidth, height});
    return parts.height;
}

void fldSliderField::FocusHasCome() {
    raise(FieldEvent(QStringLiteral("EnterFocus")));
    LabelledField::FocusHasCome();
}

void fldSliderField::FocusHasLeft() {
    mShiftHeld = false;
    raise(FieldEvent(QStringLiteral("ExitFocus")));
    LabelledField::FocusHasLeft();
}

QString fldSliderField::DragText() {
    return DragPayload{Ifield_GetUIID(), Ifield_GetTypeName(), ValueText::of(mValue)}.toText();
}

bool fldSliderField::AcceptsDrag(const QString &text) const {
    const auto payload = DragPayload::fromText(text);
    return payload && payload->typeName == Ifield_GetTypeName() && mayBePut(payload->value);
}

void fldSliderField::TakeDrop(const QString &text) {
    if (AcceptsDrag(text))
        put(DragPayload::fromText(text)->value);
}
