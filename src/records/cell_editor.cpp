#include "cell_editor.h"

#include "common_error_handler.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

CellEditor::CellEditor(QWidget &surface, ErrorReport &errors)
    : mBox(new QLineEdit(&surface)), mFormatEdit(errors), mWidthLimit(*mBox), mErrors(errors) {
    mBox->setObjectName(QStringLiteral("CellEditor"));
    mBox->setFrame(false);
    mBox->hide();
    mFormatEdit.UpperCase(true);
    mFormatEdit.TextBox(mBox);
    mBox->installEventFilter(this);
    connect(mBox, &QLineEdit::textEdited, this, &CellEditor::noteEdit);
}

void CellEditor::setRules(const QString &validation, qint32 width, const QString &inputMask) {
    mFormatEdit.FormatMask(validation);
    mWidthLimit.setLimit(width);
    mInputMask = inputMask;
}

void CellEditor::open(const QString &text, const QString &accessibleName) {
    mBox->setInputMask(mItems.isEmpty() ? mInputMask : QString());
    mBox->setReadOnly(!mItems.isEmpty());
    mBox->setAccessibleName(accessibleName);
    mTypeAhead.clear();
    mActive = true;
    mChanged = false;
    mBox->setText(text);
    mBox->selectAll();
    mBox->show();
    mBox->setFocus(Qt::OtherFocusReason);
}

void CellEditor::close(QWidget &heir) {
    mActive = false;
    mChanged = false;
    if (mBox->hasFocus())
        heir.setFocus(Qt::OtherFocusReason);
    mBox->hide();
}

QString CellEditor::text() const { return mBox->text(); }

void CellEditor::setText(const QString &text) {
    if (mBox->text() != text)
        mBox->setText(text);
}

void CellEditor::replaceText(const QString &text) {
    setText(text);
    noteEdit();
}

void CellEditor::forward(QKeyEvent &key) { QCoreApplication::sendEvent(mBox, &key); }

bool CellEditor::eventFilter(QObject *watched, QEvent *event) try {
    if (watched != mBox || mItems.isEmpty() || event->type() != QEvent::KeyPress)
        return false;
    return listKey(static_cast<QKeyEvent &>(*event));
}
ERROR_TAIL(false)

bool CellEditor::listKey(const QKeyEvent &key) {
    const qsizetype item = mItems.indexOf(text());
    switch (key.key()) {
    case Qt::Key_Up:
        choose(item - 1);
        return true;
    case Qt::Key_Down:
        choose(item + 1);
        return true;
    case Qt::Key_Delete:
        mTypeAhead.clear();
        replaceText(QString());
        return true;
    case Qt::Key_Backspace:
        chooseTyped(mTypeAhead.backspace(mItems));
        return true;
    default:
        return typeAhead(key);
    }
}

bool CellEditor::typeAhead(const QKeyEvent &key) {
    const bool types = (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0 &&
                       !key.text().isEmpty() && key.text().at(0).isPrint();
    if (types)
        chooseTyped(mTypeAhead.type(key.text(), mItems));
    return types;
}

// Letters that fit no item leave the cell as it is.
void CellEditor::chooseTyped(qsizetype item) {
    if (!mTypeAhead.empty())
        choose(item);
}

void CellEditor::choose(qsizetype item) {
    if (item < 0 || item >= mItems.size())
        return;
    if (mItems[item] != text())
        replaceText(mItems[item]);
    mBox->selectAll();
}

void CellEditor::noteEdit() {
    mChanged = true;
    Q_EMIT edited();
}
