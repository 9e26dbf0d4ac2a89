#include "text_box.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>

QWidget &LineTextBox::widget() const { return mEdit; }
QString LineTextBox::text() const { return mEdit.text(); }
void LineTextBox::setText(const QString &text) { mEdit.setText(text); }
QString LineTextBox::selectedText() const { return mEdit.selectedText(); }
void LineTextBox::selectAll() { mEdit.selectAll(); }
void LineTextBox::replaceSelection(const QString &text) { mEdit.insert(text); }

QWidget &MultiLineTextBox::widget() const { return mEdit; }
QString MultiLineTextBox::text() const { return mEdit.toPlainText(); }
void MultiLineTextBox::setText(const QString &text) { mEdit.setPlainText(text); }
QString MultiLineTextBox::selectedText() const {
    // A selection over several lines separates them by U+2029.
    return mEdit.textCursor().selectedText().replace(QChar::ParagraphSeparator, u'\n');
}
void MultiLineTextBox::selectAll() { mEdit.selectAll(); }
void MultiLineTextBox::replaceSelection(const QString &text) { mEdit.textCursor().insertText(text); }
