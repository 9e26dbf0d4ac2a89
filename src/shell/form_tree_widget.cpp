#include "form_tree_widget.h"

#include "file_drop.h"
#include "form_tree_delegate.h"

#include <QDragEnterEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>

FormTreeWidget::FormTreeWidget(QWidget *parent) : QTreeWidget(parent) {
    setObjectName(QStringLiteral("FormTree"));
    setColumnCount(1);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setExpandsOnDoubleClick(false);
    setEditTriggers(NoEditTriggers);
    setItemDelegate(new FormTreeDelegate(this));
    header()->setStretchLastSection(true);
    setAcceptDrops(true);
}

void FormTreeWidget::SetFileDropTarget(FileDropTarget *target) { mFileDropTarget = target; }

void FormTreeWidget::SetHeading(const QString &text) {
    setHeaderLabel(text);
    headerItem()->setToolTip(0, text);
    setHeaderHidden(text.isEmpty());
}

void FormTreeWidget::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT NodeChosen();
    else
        QTreeWidget::keyPressEvent(event);
}

void FormTreeWidget::mousePressEvent(QMouseEvent *event) {
    mPressed = event->button() == Qt::LeftButton ? itemAt(event->position().toPoint()) : nullptr;
    QTreeWidget::mousePressEvent(event);
}

void FormTreeWidget::mouseReleaseEvent(QMouseEvent *event) {
    QTreeWidget::mouseReleaseEvent(event);
    QTreeWidgetItem *released = itemAt(event->position().toPoint());
    QTreeWidgetItem *pressed = std::exchange(mPressed, nullptr);
    // A press on the branch arrow only folds the branch and leaves the current node.
    if (released != nullptr && released == pressed && released == currentItem())
        Q_EMIT NodeChosen();
}

// The first click has already opened the form; the second must not open it again.
void FormTreeWidget::mouseDoubleClickEvent(QMouseEvent *event) { event->accept(); }

void FormTreeWidget::dragEnterEvent(QDragEnterEvent *event) {
    if (mFileDropTarget != nullptr && event->mimeData()->hasUrls())
        event->accept();
}

void FormTreeWidget::dragMoveEvent(QDragMoveEvent *event) {
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(mFileDropTarget != nullptr && FileDrop::isAcceptable(event->mimeData()));
}

void FormTreeWidget::dropEvent(QDropEvent *event) {
    const QString file = FileDrop::firstFile(event->mimeData());
    event->acceptProposedAction();
    if (mFileDropTarget != nullptr && !file.isEmpty())
        mFileDropTarget->OpenDropped(file);
}
