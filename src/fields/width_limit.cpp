#include "width_limit.h"

#include <QLineEdit>

#include <algorithm>

WidthLimit::WidthLimit(QLineEdit &edit) : mEdit(edit) {
    // A line edit tells of an edit by the user first, and of every change after it.
    connect(&edit, &QLineEdit::textEdited, this, &WidthLimit::cutSurplus);
    connect(&edit, &QLineEdit::textChanged, this, &WidthLimit::noteText);
    noteText();
}

void WidthLimit::noteText() { mLengthBefore = mEdit.text().size(); }

void WidthLimit::cutSurplus() {
    if (mLimit <= 0)
        return;
    const qsizetype allowed = std::max<qsizetype>(mLimit, mLengthBefore);
    const qsizetype surplus = mEdit.text().size() - allowed;
    if (surplus <= 0)
        return;
    // The surplus is the end of what was put in, which stands before the cursor.
    const int end = mEdit.cursorPosition();
    const int start = std::max(0, end - int(surplus));
    mEdit.setSelection(start, end - start);
    mEdit.del();
}
