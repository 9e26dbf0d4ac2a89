#include "list_field.h"

#include "combo_list.h"
#include "common_error_handler.h"
#include "drag_payload.h"
#include "field_properties.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace {
constexpr TwipSize kDefinitionSize{{3525}, {510}};

bool isEnter(const QKeyEvent &key) { return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter; }

// Whether the key types a character into the list's type-ahead; blank and Enter do, Tab and Delete do not.
bool types(const QKeyEvent &key) {
    if ((key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0 || key.text().isEmpty())
        return false;
    return isEnter(key) || key.key() == Qt::Key_Backspace || key.text().at(0).isPrint();
}
} // namespace

ListField::ListField(const FieldServices &services, QWidget *parent)
    : LabelledField(services, parent, kDefinitionSize), mCombo(new ComboList(this)) {
    mCombo->setObjectName(QStringLiteral("Combo1"));
    mCombo->installEventFilter(this);
    mCombo->view()->installEventFilter(this);
    // Only the user's choices: a change by code is not heard of.
    connect(mCombo, &QComboBox::activated, this, &ListField::Combo1_Click);
}

void ListField::readList(PropertyReader &reader) {
    readLabel(reader, QStringLiteral("Field"));
    const QString first = reader.text(QStringLiteral("List0"), QString());
    if (!first.isEmpty())
        mCombo->addItem(first);
    setLogicalEnabled(reader.flag(QStringLiteral("Enabled"), true));
    addEditor(*mCombo, *mCombo);
    mCombo->setEnabled(ControlEnabled());
    setLabelState(ControlEnabled() ? LabelState::kEnabled : LabelState::kDisabled);
    setFace(ControlEnabled() ? BoxFace::kWindow : BoxFace::kButton);
    SetTabStop(true);
}

qint32 ListField::ListIndex() const { return mCombo->currentIndex(); }
QString ListField::Text() const { return mCombo->currentText(); }
qint32 ListField::ListCount() const { return mCombo->count(); }
QString ListField::List(qint32 index) const { return mCombo->itemText(index); }
qint32 ListField::FindValueIndex(const QString &text) const { return qint32(mCombo->items().indexOf(text)); }
QWidget *ListField::editingPart() const { return mCombo; }

void ListField::Combo1_Click() try {
    if (mCombo->isHidden())
        return;
    mPendingChoice = mKeyMoved;
    mKeyMoved = false;
    if (!mPendingChoice && !ignoresChoices())
        raise(FieldEvent(QStringLiteral("Click")));
}
ERROR_TAIL()

void ListField::reportPendingChoice() try {
    const bool report = mPendingChoice && !services().shell.ChangingForms();
    mPendingChoice = false;
    mKeyMoved = false;
    mTypeAhead.clear();
    if (report)
        raise(FieldEvent(QStringLiteral("Click")));
}
ERROR_TAIL_AS("Combo1_LostFocus")

bool ListField::eventFilter(QObject *watched, QEvent *event) try {
    if (handleWhatsThisKey(*event))
        return true;
    const bool escapeAnnounced =
        event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    if (escapeAnnounced)
        event->accept();
    if (event->type() != QEvent::KeyPress)
        return escapeAnnounced;
    return Combo1_KeyPress(static_cast<QKeyEvent &>(*event), watched != mCombo);
}
ERROR_TAIL_AS("Combo1_KeyPress", false)

bool ListField::Combo1_KeyPress(QKeyEvent &key, bool listIsOpen) {
    if (key.key() != Qt::Key_F1 && key.key() != Qt::Key_Alt && !ignoresChoices())
        mKeyMoved = true;
    if (key.key() == Qt::Key_Escape) {
        // An open list only closes.
        if (!listIsOpen)
            raise(FieldEvent(QStringLiteral("Escape")));
        return !listIsOpen;
    }
    if (!types(key) || (listIsOpen && isEnter(key)))
        return false;
    return typeAhead(key);
}

bool ListField::typeAhead(const QKeyEvent &key) {
    if (key.key() != Qt::Key_Backspace) {
        choose(mTypeAhead.type(key.text(), mCombo->items()));
        return true;
    }
    choose(mTypeAhead.backspace(mCombo->items()));
    return !mTypeAhead.empty();
}

void ListField::choose(qint32 index) {
    if (index == ListIndex() || index >= ListCount())
        return;
    mCombo->setCurrentIndex(index);
    mCombo->view()->setCurrentIndex(mCombo->model()->index(index, mCombo->modelColumn()));
    Combo1_Click();
}

void ListField::Ifield_Copy() try { services().clipboard.SetText(Text()); }
ERROR_TAIL()

void ListField::Ifield_Paste() try {
    const qint32 index = FindValueIndex(services().clipboard.Text());
    if (index >= 0)
        choose(index);
}
ERROR_TAIL()

void ListField::Ifield_SetEnabled() try {
    setLogicalEnabled(true);
    setShown(true);
    Ifield_GetUIIDNotFound(false);
    mCombo->setEnabled(true);
    mCombo->show();
    setFace(BoxFace::kWindow);
    SetTabStop(true);
    setLabelState(LabelState::kEnabled);
}
ERROR_TAIL()

void ListField::Ifield_SetDisabled() try {
    setLogicalEnabled(false);
    setShown(true);
    mCombo->setEnabled(false);
    mCombo->show();
    setFace(BoxFace::kButton);
    SetTabStop(false);
    setLabelState(LabelState::kDisabled);
}
ERROR_TAIL()

void ListField::Ifield_SetInvisible() try {
    setShown(false);
    mCombo->hide();
    mCombo->setEnabled(false);
    setFace(BoxFace::kWindow);
    SetTabStop(false);
    setLabelState(LabelState::kHidden);
}
ERROR_TAIL()

void ListField::applyColours() { setFace(mFace); }

void ListField::setFace(BoxFace face) {
    mFace = face;
    applyBoxFace(*mCombo, QPalette::Button, face);
}

QString ListField::DragText() { return DragPayload{Ifield_GetUIID(), Ifield_GetTypeName(), Text()}.toText(); }

bool ListField::AcceptsDrag(const QString &text) const {
    const auto payload = DragPayload::fromText(text);
    return ControlEnabled() && payload && FindValueIndex(payload->value) >= 0;
}

void ListField::TakeDrop(const QString &text) {
    if (AcceptsDrag(text))
        choose(FindValueIndex(DragPayload::fromText(text)->value));
}
