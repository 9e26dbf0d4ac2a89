#include "combo_list.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QToolTip>
#include <QWheelEvent>

ComboList::ComboList(QWidget *parent) : QComboBox(parent) {
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

void ComboList::showPopup() {
    Q_EMIT aboutToDropDown();
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + (count() > maxVisibleItems() ? scrollBar : 0));
    QComboBox::showPopup();
}

QStringList ComboList::items() const {
    QStringList texts;
    texts.reserve(count());
    for (int i = 0; i < count(); ++i)
        texts << itemText(i);
    return texts;
}

void ComboList::wheelEvent(QWheelEvent *event) {
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

bool ComboList::event(QEvent *event) {
    if (event->type() != QEvent::ToolTip)
        return QComboBox::event(event);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect room = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    if (fontMetrics().horizontalAdvance(currentText()) <= room.width())
        return QComboBox::event(event);
    const QString tip = QStringLiteral("<span>%1</span>").arg(currentText().toHtmlEscaped());
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), tip, this);
    return true;
}
