#include "fld_checkbox_field.h"

#include "caption_check_box.h"
#include "check_layout.h"
#include "common_error_handler.h"
#include "drag_payload.h"
#include "field_properties.h"
#include "plain_caption.h"
#include "value_text.h"

#include <QKeyEvent>

#include <algorithm>

namespace {
constexpr TwipSize kDefinitionSize{{4125}, {885}};
constexpr Twips kTop{20};
constexpr Twips kCheckHeight{375};
constexpr Twips kControlHeight{400};
constexpr qint32 kCopyOnly = 2;
constexpr qint32 kCopyPaste = 6;

bool isCheckText(const QString &text) { return text == QStringLiteral("0") || text == QStringLiteral("1"); }
} // namespace

fldCheckboxField::fldCheckboxField(const FieldServices &services, const FieldProperties &properties, QWidget *parent)
    : EditableField(services, parent), mCheck(new CaptionCheckBox(this)), mDrag(*this, services, Qt::RightButton),
      mSize(kDefinitionSize) {
    mCheck->setObjectName(QStringLiteral("Check1"));
    readProperties(properties);
    mCheck->setEnabled(ControlEnabled());
    mCheck->installEventFilter(this);
    mDrag.addSource(*mCheck);
    mDrag.addTarget(*mCheck);
    connect(mCheck, &QCheckBox::clicked, this, &fldCheckboxField::Check1_Click);
    SetTabStop(true);
    layOut();
}

void fldCheckboxField::readProperties(const FieldProperties &properties) {
    PropertyReader reader(properties);
    mCheck->setChecked(reader.integer(QStringLiteral("Value"), 0) != 0);
    showCaption(reader.text(QStringLiteral("Caption"), QStringLiteral("Field")));
    readIdentity(reader);
    mLabelWidthFactor = std::clamp(reader.real(QStringLiteral("LabelWidthFactor"), 0.6), 0.0, 1.0);
    setLogicalEnabled(reader.flag(QStringLiteral("Enabled"), true));
    reader.refuseUnknown();
}

QWidget *fldCheckboxField::editingPart() const { return mCheck; }

void fldCheckboxField::Check1_Click() try {
    if (!mCheck->isHidden() && !mDragging)
        raise(FieldEvent(QStringLiteral("Click")));
}
ERROR_TAIL()

bool fldCheckboxField::eventFilter(QObject * /*watched*/, QEvent *event) try {
    if (handleWhatsThisKey(*event))
        return true;
    const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!key || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
        return false;
    event->accept();
    if (event->type() == QEvent::KeyPress)
        raise(FieldEvent(QStringLiteral("Escape")));
    return true;
}
ERROR_TAIL_AS("Check1_KeyPress", false)

void fldCheckboxField::Ifield_Copy() try { services().clipboard.SetText(ValueText::of(Ifield_GetValue())); }
ERROR_TAIL()

void fldCheckboxField::Ifield_Paste() try {
    const QString text = services().clipboard.Text();
    if (isCheckText(text))
        setByUser(text);
}
ERROR_TAIL()

qint32 fldCheckboxField::Ifield_GetEditOperations() {
    return isCheckText(services().clipboard.Text()) ? kCopyPaste : kCopyOnly;
}

QVariant fldCheckboxField::Ifield_GetValue() { return mCheck->isChecked() ? 1 : 0; }

bool fldCheckboxField::Ifield_SetValue(const QVariant &Value, bool blnValidate) try {
    mCheck->setChecked(ValueText::toInteger(Value) != 0);
    return !blnValidate || raiseManualValidate();
}
ERROR_TAIL(false)

void fldCheckboxField::setByUser(const QString &value) {
    const QVariant before = Ifield_GetValue();
    Ifield_SetValue(value, false);
    if (Ifield_GetValue() != before)
        Check1_Click();
}

void fldCheckboxField::Ifield_SetEnabled() try {
    setLogicalEnabled(true);
    setShown(true);
    Ifield_GetUIIDNotFound(false);
    mCheck->setEnabled(true);
    mCheck->show();
    SetTabStop(true);
}
ERROR_TAIL()

void fldCheckboxField::Ifield_SetDisabled() try {
    setLogicalEnabled(false);
    setShown(true);
    mCheck->setEnabled(false);
    mCheck->show();
    SetTabStop(false);
}
ERROR_TAIL()

void fldCheckboxField::Ifield_SetInvisible() try {
    setShown(false);
    mCheck->hide();
    mCheck->setEnabled(false);
    SetTabStop(false);
}
ERROR_TAIL()

bool fldCheckboxField::Ifield_GetEnabled() const { return mCheck->isEnabledTo(this); }

void fldCheckboxField::Ifield_UIIDNotFound() try {
    Ifield_SetValue(0, false);
    Ifield_SetDisabled();
    QFont font = mCheck->font();
    font.setStrikeOut(strikesOutUnknown());
    mCheck->setFont(font);
    Ifield_GetUIIDNotFound(true);
}
ERROR_TAIL()

QVariant fldCheckboxField::Ifield_SetName(const QString &Name) try {
    showCaption(Name);
    layOut();
    return Name;
}
ERROR_TAIL_AS("SetName", {})

QString fldCheckboxField::Ifield_GetName() const { return mCheck->text(); }

void fldCheckboxField::showCaption(const QString &caption) {
    mCheck->setText(caption);
    mCheck->setAccessibleName(plainCaption(caption));
}

TwipSize fldCheckboxField::SetControlSize(const TwipSize &size) {
    mSize = size;
    layOut();
    return mSize;
}

void fldCheckboxField::layOut() {
    // The accessible name keeps the caption that is not shown.
    if (mLabelWidthFactor == 0.0)
        mCheck->setText(QStringLiteral("   "));
    const bool captionRight = services().shell.TextAlignment() != 0;
    mCheck->setCaptionAlignment(captionRight ? Qt::AlignRight : Qt::AlignLeft);
    const TwipScale scale = TwipScale::of(*this);
    const CheckLayout::Span span =
        CheckLayout::layOut({mSize.width, mLabelWidthFactor, scale.ofMeasure({mCheck->captionWidth()}), captionRight});
    const Twips caption = scale.ofMeasure({mCheck->wrappedHeight(scale.toPixels(span.width).count)});
    mCheck->setGeometry(scale.toPixels({span.left, kTop, span.width, std::max(kCheckHeight, caption)}));
    mSize.height = std::max(kControlHeight, kTop + caption);
    resize(scale.toPixels(mSize));
}

QString fldCheckboxField::DragText() {
    mDragging = true;
    return DragPayload{Ifield_GetUIID(), Ifield_GetTypeName(), ValueText::of(Ifield_GetValue())}.toText();
}

bool fldCheckboxField::AcceptsDrag(const QString &text) const {
    const auto payload = DragPayload::fromText(text);
    return ControlEnabled() && payload && payload->typeName == Ifield_GetTypeName();
}

void fldCheckboxField::TakeDrop(const QString &text) {
    const auto payload = DragPayload::fromText(text);
    if (payload && isCheckText(payload->value))
        setByUser(payload->value);
}
