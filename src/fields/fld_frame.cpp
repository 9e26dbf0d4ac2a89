#include "fld_frame.h"

#include "common_error_handler.h"
#include "field_accessibility.h"
#include "field_label.h"
#include "field_properties.h"
#include "frame_border.h"
#include "plain_caption.h"
#include "value_text.h"

#include <QStringList>

namespace {
constexpr TwipSize kDefinitionSize{{6435}, {4320}};
constexpr Twips kMargin{100};
} // namespace

fldFrame::fldFrame(const FieldServices &services, const FieldProperties &properties, QWidget *parent)
    : FieldControl(services, parent), mFrame1(new FrameBorder(this)), mLabel1(new FieldLabel(this)),
      mDrag(*this, services, Qt::LeftButton | Qt::RightButton), mSize(kDefinitionSize) {
    FieldAccessibility::install();
    mFrame1->setObjectName(QStringLiteral("Frame1"));
    mLabel1->setObjectName(QStringLiteral("Label1"));
    mDrag.addSource(*mFrame1);
    mDrag.addSource(*mLabel1);
    readProperties(properties);
    mFrame1->setVisible(!mHideThisFrame);
    mLabel1->setVisible(mHideThisFrame);
    SetTabStop(false);
    layOut();
}

void fldFrame::readProperties(const FieldProperties &properties) {
    PropertyReader reader(properties);
    const bool enabled = reader.flag(QStringLiteral("Enabled"), true);
    mFrame1->setEnabled(enabled);
    mLabel1->setEnabled(enabled);
    const QString description = reader.text(QStringLiteral("Font"), QString());
    QFont stored;
    if (!description.isEmpty() && stored.fromString(description))
        setFont(stored);
    QFont heading = font();
    heading.setBold(true);
    mLabel1->setFont(heading);
    Ifield_SetName(reader.text(QStringLiteral("Caption"), QStringLiteral("Field")));
    Ifield_SetWhatsThisHelpID(reader.integer(QStringLiteral("WhatsThisHelpID"), 0));
    Ifield_SetUIID(reader.text(QStringLiteral("ID"), undefined()));
    mHideThisFrame = reader.flag(QStringLiteral("HideThisFrame"), false);
    mLabelWidthFactor = reader.real(QStringLiteral("LabelWidthFactor"), 0.6);
    reader.refuseUnknown();
}

QString fldFrame::undefined() { return ValueText::undefined(); }

bool fldFrame::Ifield_GetVisible() const { return !mFrame1->isHidden() || !mLabel1->isHidden(); }

QVariant fldFrame::Ifield_SetName(const QString &Name) try {
    mFrame1->setCaption(Name);
    setAccessibleName(plainCaption(Name));
    mLabel1->setText(Name);
    return Name;
}
ERROR_TAIL_AS("SetName", {})

QString fldFrame::Ifield_GetName() const { return mFrame1->caption(); }

void fldFrame::Ifield_SetEnabled() try {
    mFrame1->setEnabled(true);
    mLabel1->setEnabled(true);
    Ifield_GetUIIDNotFound(false);
}
ERROR_TAIL()

bool fldFrame::Ifield_GetEnabled() const { return mFrame1->isEnabledTo(this); }

void fldFrame::Ifield_UIIDNotFound() try {
    QFont font = mFrame1->font();
    font.setStrikeOut(strikesOutUnknown());
    mFrame1->setFont(font);
    Ifield_GetUIIDNotFound(true);
}
ERROR_TAIL()

TwipSize fldFrame::SetControlSize(const TwipSize &size) {
    mSize = size;
    layOut();
    return mSize;
}

void fldFrame::layOut() {
    const TwipScale scale = TwipScale::of(*this);
    resize(scale.toPixels(mSize));
    mFrame1->setGeometry(rect());
    const Twips left = mLabelWidthFactor == 0.0 ? kMargin : share(mSize.width, mLabelWidthFactor) - kMargin;
    const Twips width = mSize.width - left;
    const Twips height = scale.ofMeasure({mLabel1->wrappedHeight(scale.toPixels(width).count)});
    mLabel1->setGeometry(scale.toPixels({left, {0}, width, height}));
}

QString fldFrame::DragText() {
    QStringList fields;
    Ifield *const self = this;
    raise(FieldEvent(QStringLiteral("GetFieldsInFrame"), in(self), out(fields)));
    fields.prepend(Ifield_GetName() + QStringLiteral("|fldFrame"));
    return fields.join(u'~');
}
