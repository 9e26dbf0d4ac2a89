#include "labelled_field.h"

#include "common_error_handler.h"
#include "field_label.h"
#include "field_properties.h"
#include "plain_caption.h"

#include <algorithm>

LabelledField::LabelledField(const FieldServices &services, QWidget *parent, const TwipSize &definitionSize)
    : EditableField(services, parent), mLabel(new FieldLabel(this)),
      mDrag(*this, services, Qt::LeftButton | Qt::RightButton), mSize(definitionSize) {
    mLabel->setObjectName(QStringLiteral("Label1"));
    mDrag.addSource(*mLabel);
    mDrag.addTarget(*mLabel);
}

void LabelledField::readLabel(PropertyReader &reader, const QString &defaultCaption, double defaultFactor) {
    const QString caption = reader.text(QStringLiteral("Caption"), defaultCaption);
    readIdentity(reader);
    mLabelWidthFactor = std::clamp(reader.real(QStringLiteral("LabelWidthFactor"), defaultFactor), 0.0, 1.0);
    mLabel->setText(caption);
}

void LabelledField::addEditor(QWidget &editor, QWidget &dropSurface) {
    mLabel->setBuddy(&editor);
    editor.setAccessibleName(plainCaption(mLabel->text()));
    mDrag.addTarget(dropSurface);
}

QVariant LabelledField::Ifield_SetName(const QString &Name) try {
    showCaption(Name);
    layOut();
    return Name;
}
ERROR_TAIL_AS("SetName", {})

QString LabelledField::Ifield_GetName() const { return mLabel->text(); }

void LabelledField::Ifield_UIIDNotFound() try {
    showNothing();
    Ifield_SetDisabled();
    QFont font = mLabel->font();
    font.setStrikeOut(strikesOutUnknown());
    mLabel->setFont(font);
    Ifield_GetUIIDNotFound(true);
}
ERROR_TAIL()

TwipSize LabelledField::SetControlSize(const TwipSize &size) {
    mSize = size;
    layOut();
    return mSize;
}

void LabelledField::layOut() {
    const bool captionsRight = services().shell.TextAlignment() != 0;
    mLabel->setAlignment(Qt::AlignTop | (captionsRight ? Qt::AlignRight : Qt::AlignLeft));
    const TwipScale scale = TwipScale::of(*this);
    const Twips space = LabelLayout::labelWidth(mSize.width, mLabelWidthFactor);
    const LabelLayout::Caption caption{scale.ofMeasure({mLabel->captionWidth()}),
                                       scale.ofMeasure({mLabel->wrappedHeight(scale.toPixels(space).count)})};
    const LabelLayout::Parts parts = LabelLayout::layOut(mSize.width, mLabelWidthFactor, caption);
    place(*mLabel, parts.label);
    mSize.height = placeEditors(parts, mSize.height);
    resize(scale.toPixels(mSize));
}

void LabelledField::setLabelState(LabelState state) {
    // Without a share of the width there is no caption to show.
    mLabel->setVisible(state != LabelState::kHidden && mLabelWidthFactor != 0.0);
    mLabel->setEnabled(state == LabelState::kEnabled);
}

Twips LabelledField::placeEditors(const LabelLayout::Parts &parts, Twips /*givenHeight*/) {
    place(*editingPart(), parts.editor);
    return parts.height;
}

void LabelledField::place(QWidget &part, const TwipRect &rect) {
    part.setGeometry(TwipScale::of(*this).toPixels(rect));
}

void LabelledField::showCaption(const QString &caption) {
    mLabel->setText(caption);
    if (QWidget *editor = editingPart())
        editor->setAccessibleName(plainCaption(caption));
}
