#include "form_geometry.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr int kLeastRows = 6;

// What lies inside these is their own matter.
bool isLeaf(const QWidget &widget) {
    return qobject_cast<const QAbstractScrollArea *>(&widget) != nullptr ||
           qobject_cast<const QComboBox *>(&widget) != nullptr || qobject_cast<const QLineEdit *>(&widget) != nullptr ||
           qobject_cast<const QAbstractButton *>(&widget) != nullptr ||
           qobject_cast<const QSlider *>(&widget) != nullptr || qobject_cast<const QLabel *>(&widget) != nullptr;
}

QList<QWidget *> visibleChildren(const QWidget &parent) {
    QList<QWidget *> children;
    for (QWidget *child : parent.findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        const bool isBorder = child->inherits("FrameBorder"); // drawn behind what stands in the frame
        const auto *label = qobject_cast<const QLabel *>(child);
        const bool isBlank = child->size().isEmpty() || (label != nullptr && label->text().trimmed().isEmpty());
        if (child->isVisible() && !child->isWindow() && !isBlank && !isBorder)
            children << child;
    }
    return children;
}

QSize textSize(const QLabel &label) {
    const QRect room(0, 0, label.contentsRect().width(), 1000);
    const int flags = label.wordWrap() ? int(Qt::TextWordWrap) : 0;
    return label.fontMetrics().boundingRect(room, flags, QString(label.text()).remove(u'&').trimmed()).size();
}

// What is seen of it: of a label its text, of a check box its box and caption. Both may be larger than that.
QRect occupied(const QWidget &widget) {
    QRect place = widget.geometry();
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        const QSize text = textSize(*label);
        place = QStyle::alignedRect(Qt::LeftToRight, label->alignment(), place.size().boundedTo(text), place);
    }
    if (const auto *check = qobject_cast<const QCheckBox *>(&widget)) {
        const int box = check->style()->pixelMetric(QStyle::PM_IndicatorWidth);
        const QSize seen(check->text().isEmpty() ? box : place.width(), std::max(box, check->fontMetrics().height()));
        place =
            QStyle::alignedRect(Qt::LeftToRight, Qt::AlignLeft | Qt::AlignVCenter, seen.boundedTo(place.size()), place);
    }
    return place;
}

QString nameOf(const QWidget &widget) {
    for (const QWidget *at = &widget; at != nullptr; at = at->parentWidget()) {
        if (!at->objectName().isEmpty())
            return at == &widget ? at->parentWidget()->objectName() + u'.' + at->objectName()
                                 : at->objectName() + u'.' + QLatin1String(widget.metaObject()->className());
    }
    return QLatin1String(widget.metaObject()->className());
}

bool showsTip(QComboBox &list, const QString &text) {
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, list.rect().center(), list.mapToGlobal(list.rect().center()));
    QCoreApplication::sendEvent(&list, &event);
    return QToolTip::text().contains(text.toHtmlEscaped());
}
} // namespace

void FormGeometry::look(const QWidget &form, const QString &where) {
    mWhere = where;
    if (walk(form) == 0)
        fault(form, u"is empty"_s);
}

int FormGeometry::walk(const QWidget &parent) {
    const QList<QWidget *> children = visibleChildren(parent);
    for (qsizetype i = 0; i < children.size(); ++i) {
        const QWidget &child = *children[i];
        if (!parent.rect().contains(occupied(child)))
            fault(child, u"leaves its parent"_s);
        for (qsizetype other = 0; other < i; ++other) {
            if (occupied(*children[other]).intersects(occupied(child)))
                fault(child, u"overlaps "_s + nameOf(*children[other]));
        }
        lookAt(child);
    }
    return int(children.size());
}

void FormGeometry::lookAt(const QWidget &widget) {
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        lookAtLabel(*label);
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        lookAtButton(*button);
    if (const auto *list = qobject_cast<const QComboBox *>(&widget))
        lookAtList(const_cast<QComboBox &>(*list));
    if (const auto *grid = qobject_cast<const QTableView *>(&widget))
        lookAtGrid(*grid);
    const auto *tabs = qobject_cast<const QTabWidget *>(&widget);
    if (tabs != nullptr && walk(*tabs->currentWidget()) == 0)
        fault(widget, u"has an empty page"_s);
    if (tabs != nullptr && tabs->tabBar()->sizeHint().width() > tabs->width())
        fault(widget, u"has no room for its tabs"_s);
    if (tabs == nullptr && !isLeaf(widget))
        walk(widget);
}

// In as many lines as break it, no word wider than the label.
void FormGeometry::lookAtLabel(const QLabel &label) {
    const QString text = QString(label.text()).remove(u'&').trimmed();
    if (text.isEmpty())
        return;
    const QRect room = label.contentsRect();
    const QSize needed = textSize(label);
    const bool broken = needed.height() > label.fontMetrics().height();
    note(broken ? room.height() - needed.height() : room.width() - needed.width(), label, text);
}

void FormGeometry::lookAtButton(const QAbstractButton &button) {
    const QString text = QString(button.text()).remove(u'&');
    if (!text.isEmpty() && qobject_cast<const QCheckBox *>(&button) == nullptr)
        note(button.width() - button.fontMetrics().horizontalAdvance(text), button, text);
}

void FormGeometry::lookAtList(QComboBox &list) {
    QStyleOptionComboBox option;
    option.initFrom(&list);
    option.editable = list.isEditable();
    const int room =
        list.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list).width();
    int widest = -1;
    for (int item = 0; item < list.count(); ++item) {
        const auto width = [&](int of) { return list.fontMetrics().horizontalAdvance(list.itemText(of)); };
        if (widest < 0 || width(item) > width(widest))
            widest = item;
    }
    if (widest < 0 || list.fontMetrics().horizontalAdvance(list.itemText(widest)) <= room)
        return;
    const QSignalBlocker blocker(&list);
    const int before = list.currentIndex();
    list.setCurrentIndex(widest);
    if (!showsTip(list, list.itemText(widest)))
        fault(list, u"cuts without a tip: "_s + list.itemText(widest));
    list.setCurrentIndex(before);
}

void FormGeometry::lookAtGrid(const QTableView &grid) {
    const int rows = grid.viewport()->height() / grid.verticalHeader()->defaultSectionSize();
    if (rows < kLeastRows)
        fault(grid, u"shows %1 rows"_s.arg(rows));
}

void FormGeometry::note(int slack, const QWidget &widget, const QString &text) {
    if (slack < 0)
        fault(widget, u"cuts its text by %1: %2"_s.arg(-slack).arg(text));
    mTight.push_back({slack, mWhere + u": "_s + nameOf(widget) + u' ' + text});
}

void FormGeometry::fault(const QWidget &widget, const QString &what) {
    mFaults << mWhere + u": "_s + nameOf(widget) + u' ' + what;
}

QStringList FormGeometry::tightest(int count) const {
    std::vector<Tight> sorted = mTight;
    std::ranges::sort(sorted, {}, &Tight::slack);
    QStringList lines;
    for (const Tight &tight : sorted) {
        if (lines.size() < count)
            lines << u"%1 px: %2"_s.arg(tight.slack).arg(tight.where);
    }
    return lines;
}
