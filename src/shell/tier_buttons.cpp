#include "tier_buttons.h"

#include "run_time_error.h"

#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QToolButton>

TierButtons::TierButtons(QWidget *parent) : QWidget(parent) {
    setObjectName(QStringLiteral("tbrTiers"));
    setAcceptDrops(true);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(2, 2, 2, 2);
    row->setSpacing(2);
    row->addStretch(1);
}

void TierButtons::SetClicked(std::function<void(qint32)> clicked) { mClicked = std::move(clicked); }

void TierButtons::Clear() {
    for (const Entry &entry : mButtons)
        delete entry.button;
    mButtons.clear();
}

void TierButtons::Add(const QString &key, const QString &caption) {
    auto *button = new QToolButton(this);
    button->setObjectName(key);
    button->setText(QString(caption).replace(QLatin1Char('&'), QStringLiteral("&&")));
    button->setAccessibleName(caption.trimmed());
    button->setCheckable(true);
    button->setAutoExclusive(true);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    mButtons.push_back({key, button, TickImage::White});
    const qint32 index = Count();
    SetImage(index, TickImage::White);
    QObject::connect(button, &QToolButton::clicked, this, [this, index] {
        if (mClicked)
            mClicked(index);
    });
    qobject_cast<QHBoxLayout *>(layout())->insertWidget(index - 1, button);
    button->show();
}

const TierButtons::Entry &TierButtons::entry(qint32 index) const {
    if (index < 1 || index > Count())
        throw RunTimeError(ErrorNumber::kCollectionIndex, QStringLiteral("tbrTiers"),
                           QStringLiteral("Index out of bounds"));
    return mButtons[std::size_t(index - 1)];
}

void TierButtons::SetToolTip(qint32 index, const QString &toolTip) {
    entry(index).button->setToolTip(toolTip.toHtmlEscaped());
    entry(index).button->setAccessibleDescription(toolTip);
}

QString TierButtons::Key(qint32 index) const { return entry(index).key; }
QString TierButtons::Caption(qint32 index) const {
    return entry(index).button->text().replace(QStringLiteral("&&"), QStringLiteral("&"));
}
QRect TierButtons::Place(qint32 index) const { return entry(index).button->geometry(); }
TickImage TierButtons::Image(qint32 index) const { return entry(index).image; }

void TierButtons::SetImage(qint32 index, TickImage image) {
    entry(index).button->setIcon(tickIcon(image));
    mButtons[std::size_t(index - 1)].image = image;
}

void TierButtons::Press(qint32 index) { entry(index).button->setChecked(true); }

qint32 TierButtons::Pressed() const {
    for (qint32 index = 1; index <= Count(); ++index) {
        if (entry(index).button->isChecked())
            return index;
    }
    return 0;
}

qint32 TierButtons::IndexOfKey(const QString &key) const {
    for (qint32 index = 1; index <= Count(); ++index) {
        if (Key(index) == key)
            return index;
    }
    return 0;
}

// Refused place by place: a drag that is refused on entering would get no further moves.
void TierButtons::dragEnterEvent(QDragEnterEvent *event) { event->accept(); }

void TierButtons::dragMoveEvent(QDragMoveEvent *event) {
    const QPoint place = event->position().toPoint();
    // At the edge the effect stays as it was.
    if (place.x() == 0 || place.y() == 0)
        return;
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(mDrop != nullptr && mDrop->tbrTiers_OLEDragOver(event->mimeData(), place));
}

void TierButtons::dropEvent(QDropEvent *event) {
    event->acceptProposedAction();
    if (mDrop != nullptr)
        mDrop->tbrTiers_OLEDragDrop(event->mimeData(), event->position().toPoint());
}
