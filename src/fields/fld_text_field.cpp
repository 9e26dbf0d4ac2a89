#include "fld_text_field.h"

#include "common_error_handler.h"
#include "drag_payload.h"
#include "field_properties.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace {
constexpr TwipSize kDefinitionSize{{3480}, {855}};
constexpr Twips kBelowText2{200};
constexpr qint32 kPasteOnly = 4;
constexpr qint32 kCutCopyPaste = 7;
} // namespace

fldTextField::fldTextField(const FieldServices &services, const FieldProperties &properties, QWidget *parent)
    : LabelledField(services, parent, kDefinitionSize), mText1(new QLineEdit(this)), mText2(new QPlainTextEdit(this)),
      mLine(*mText1), mLines(*mText2), mActive(&mLine), mFormatEdit(services.errors), mWidthLimit(*mText1) {
    readProperties(properties);
    setUpBoxes();
    askComponent();
    layOut();
}

void fldTextField::readProperties(const FieldProperties &properties) {
    PropertyReader reader(properties);
    readLabel(reader, QStringLiteral("TextField"));
    mText1->setText(reader.text(QStringLiteral("Text"), QString())); // no placeholder where there is no record
    mText2->setPlainText(reader.text(QStringLiteral("Text2"), QStringLiteral("Text2")));
    mDynamicHeight = reader.flag(QStringLiteral("DynamicHeight"), false);
    mReadOnly = reader.flag(QStringLiteral("ReadOnly"), false);
    setLogicalEnabled(reader.flag(QStringLiteral("Enabled"), true));
    reader.refuseUnknown();
}

void fldTextField::setUpBoxes() {
    mText1->setObjectName(QStringLiteral("Text1"));
    mText2->setObjectName(QStringLiteral("Text2"));
    mText2->setReadOnly(true); // a display: no key changes it
    mText2->setTabChangesFocus(true);
    mText1->setEnabled(!mReadOnly);
    mText2->setEnabled(!mReadOnly);
    setFace(mReadOnly ? BoxFace::kButton : BoxFace::kWindow);
    if (mDynamicHeight)
        mActive = &mLines;
    addEditor(mActive->widget(), mDynamicHeight ? *mText2->viewport() : *mText1);
    SetTabStop(true);
    mActive->widget().installEventFilter(this);
    if (mDynamicHeight) {
        connect(mText2, &QPlainTextEdit::textChanged, this, &fldTextField::Text_Change);
    } else {
        connect(mText1, &QLineEdit::textChanged, this, &fldTextField::Text_Change);
    }
    showActiveBox();
}

void fldTextField::askComponent() {
    Ifield_SetRecordNumber(component().GetNumberOfRecords(Ifield_GetUIID()) == 0 ? 0 : 1);
    const QString mask = component().GetValidationString(Ifield_GetUIID());
    mFormatEdit.TextBox(&mActive->widget());
    mFormatEdit.FormatMask(ValueText::isUndefined(mask) ? QString() : mask);
    mFormatEdit.UpperCase(true);
}

void fldTextField::Text_Change() try { raise(FieldEvent(QStringLiteral("Change"))); }
ERROR_TAIL()

bool fldTextField::eventFilter(QObject *watched, QEvent *event) try {
    if (watched != &mActive->widget())
        return false;
    return handleWhatsThisKey(*event) || Text_KeyPress(*event);
}
ERROR_TAIL_AS("Text_KeyPress", false)

bool fldTextField::Text_KeyPress(QEvent &event) {
    if (event.type() != QEvent::KeyPress && event.type() != QEvent::ShortcutOverride)
        return false;
    const auto &key = static_cast<const QKeyEvent &>(event);
    const bool escape = key.key() == Qt::Key_Escape;
    if (event.type() == QEvent::ShortcutOverride) {
        if (escape)
            event.accept();
        return escape;
    }
    if (escape) {
        showComponentValue();
        raise(FieldEvent(QStringLiteral("Escape")));
        return true;
    }
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (mDynamicHeight)
        return enter || (!key.text().isEmpty() && key.text().at(0).isPrint());
    if (enter)
        (void)raiseManualValidate();
    return enter;
}

void fldTextField::showComponentValue() {
    constexpr qint32 kFirstRecord = 1;
    const QVariant value = component().GetValue(Ifield_GetUIID(), kFirstRecord);
    if (!isTerminated())
        Ifield_SetValue(value, false);
}

bool fldTextField::lastCheckBeforeLeave() {
    if (!mText1->isEnabledTo(this) && !mText2->isEnabledTo(this))
        return true;
    return raiseManualValidate();
}

void fldTextField::Ifield_Delete() try {
    if (!mActive->selectedText().isEmpty())
        mActive->replaceSelection(QString());
}
ERROR_TAIL()

void fldTextField::Ifield_SelectAll() try { mActive->selectAll(); }
ERROR_TAIL()

void fldTextField::Ifield_Copy() try { services().clipboard.SetText(mLine.selectedText()); }
ERROR_TAIL()

void fldTextField::Ifield_Paste() try { mActive->replaceSelection(services().clipboard.Text()); }
ERROR_TAIL()

void fldTextField::Ifield_Cut() try {
    services().clipboard.SetText(mActive->selectedText());
    Ifield_Delete();
}
ERROR_TAIL()

qint32 fldTextField::Ifield_GetEditOperations() {
    return mActive->selectedText().isEmpty() ? kPasteOnly : kCutCopyPaste;
}

bool fldTextField::Ifield_SetValue(const QVariant &Value, bool blnValidate) try {
    const QString text = ValueText::isUndefined(Value) ? QString() : ValueText::of(Value);
    // What is only shown is shown in the user's language; what can be edited goes back to the component as it stands.
    mActive->setText(mReadOnly ? services().translation.NLSStr(text) : text);
    return !blnValidate || raiseManualValidate();
}
ERROR_TAIL_AS("TextField SetValue", false)

void fldTextField::Ifield_SetEnabled() try {
    setLogicalEnabled(true);
    setShown(true);
    Ifield_GetUIIDNotFound(false);
    mText1->setEnabled(!mReadOnly);
    mText2->setEnabled(true);
    setFace(mReadOnly ? BoxFace::kButton : BoxFace::kWindow);
    SetTabStop(!mReadOnly);
    setLabelState(LabelState::kEnabled);
    showActiveBox();
}
ERROR_TAIL_AS("TextField SetEnabled")

void fldTextField::Ifield_SetDisabled() try {
    setLogicalEnabled(false);
    setShown(true);
    mText1->setEnabled(false);
    setFace(BoxFace::kButton);
    SetTabStop(false);
    setLabelState(LabelState::kDisabled);
    showActiveBox();
}
ERROR_TAIL_AS("TextField SetDisabled")

void fldTextField::Ifield_SetInvisible() try {
    setShown(false);
    SetTabStop(false);
    setLabelState(LabelState::kHidden);
    mText1->hide();
    mText2->hide();
}
ERROR_TAIL_AS("TextField SetInvisible")

Twips fldTextField::placeEditors(const LabelLayout::Parts &parts, Twips givenHeight) {
    place(*mText1, parts.editor);
    TwipRect lines = parts.editor;
    if (mDynamicHeight)
        lines.height = givenHeight - kBelowText2;
    place(*mText2, lines);
    return mDynamicHeight ? givenHeight : parts.height;
}

void fldTextField::applyColours() { setFace(mFace); }

void fldTextField::setFace(BoxFace face) {
    mFace = face;
    applyBoxFace(*mText1, QPalette::Base, face);
    applyBoxFace(*mText2, QPalette::Base, face);
}

void fldTextField::showActiveBox() {
    mText1->setVisible(!mDynamicHeight);
    mText2->setVisible(mDynamicHeight);
}

QString fldTextField::DragText() { return DragPayload{Ifield_GetUIID(), Ifield_GetTypeName(), Text()}.toText(); }

bool fldTextField::AcceptsDrag(const QString &text) const {
    const auto payload = DragPayload::fromText(text);
    return ControlEnabled() && !mReadOnly && payload && payload->typeName == Ifield_GetTypeName();
}

void fldTextField::TakeDrop(const QString &text) {
    const auto payload = DragPayload::fromText(text);
    if (!payload || payload->typeName != Ifield_GetTypeName())
        return;
    const QString kept = mLine.text();
    bool accepted = false;
    component().SetValue(Ifield_GetUIID(), payload->value, shownRecord(), true, accepted);
    if (isTerminated())
        return;
    if (accepted) {
        mLine.setText(payload->value);
    } else {
        Ifield_SetValue(kept, false);
    }
}
