#include "tdb_drop_down.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {
bool typesText(const QKeyEvent &key) {
    return (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0 &&
           !key.text().isEmpty() && key.text().at(0).isPrint();
}
} // namespace

TDBDropDown::TDBDropDown(QWidget *parent) : QFrame(parent, Qt::Popup), mList(new QListWidget(this)) {
    setFrameShape(QFrame::Box);
    setFocusProxy(mList);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mList);
    mList->setFrameShape(QFrame::NoFrame);
    mList->setUniformItemSizes(true);
    mList->setTextElideMode(Qt::ElideRight);
    mList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mList->installEventFilter(this);
    connect(mList, &QListWidget::itemClicked, this, &TDBDropDown::choose);
}

void TDBDropDown::setItems(const QStringList &items) {
    mItems = items;
    mTypeAhead.clear();
    mList->clear();
    mList->addItems(items);
}

int TDBDropDown::bookmark() const { return mList->currentRow(); }

void TDBDropDown::setBookmark(int row) { mList->setCurrentRow(row < mList->count() ? row : -1); }

int TDBDropDown::shownRows() const { return std::clamp(int(mItems.size()), 1, kMostRows); }

void TDBDropDown::SetDropdownSize(int width, int rowHeight) {
    const bool scrolls = mItems.size() > kMostRows;
    mList->setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    for (int row = 0; row < mList->count(); ++row)
        mList->item(row)->setSizeHint({0, rowHeight});
    resize(width, rowHeight * shownRows() + 2 * frameWidth());
}

void TDBDropDown::open(const QWidget &surface, const QRect &cell) {
    QPoint place = surface.mapToGlobal(cell.bottomLeft() + QPoint(0, 1));
    const QRect room = surface.screen()->availableGeometry();
    if (place.y() + height() > room.bottom())
        place.setY(surface.mapToGlobal(cell.topLeft()).y() - height());
    move(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - width())), place.y());
    mTab = 0;
    mTypeAhead.clear();
    show();
    mList->setFocus(Qt::PopupFocusReason);
    if (QListWidgetItem *current = mList->currentItem())
        mList->scrollToItem(current);
}

bool TDBDropDown::eventFilter(QObject *watched, QEvent *event) {
    if (watched != mList || event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    return takeKey(static_cast<QKeyEvent &>(*event));
}

bool TDBDropDown::takeKey(const QKeyEvent &key) {
    switch (key.key()) {
    case Qt::Key_Escape:
    case Qt::Key_F4:
        hide();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
        choose();
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        mTab = key.key() == Qt::Key_Tab ? 1 : -1;
        choose();
        return true;
    case Qt::Key_Backspace:
        setBookmark(mTypeAhead.backspace(mItems));
        return true;
    default:
        break;
    }
    if (!typesText(key))
        return false;
    setBookmark(mTypeAhead.type(key.text(), mItems));
    return true;
}

void TDBDropDown::choose() {
    const QString text = mItems.value(bookmark()); // the list may be filled anew by who hears of it
    if (bookmark() >= 0)
        Q_EMIT chosen(text);
    hide();
}

void TDBDropDown::hideEvent(QHideEvent *event) {
    QFrame::hideEvent(event);
    Q_EMIT closed(std::exchange(mTab, 0));
}
