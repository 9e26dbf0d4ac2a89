#include "form_nodes.h"

#include "common_error_handler.h"
#include "form_tree_widget.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

#include <algorithm>

namespace {
constexpr int kKeyRole = Qt::UserRole + 2;
constexpr int kTagRole = Qt::UserRole + 3;
constexpr int kImageRole = Qt::UserRole + 4;

QString numberText(const QVariant &value) {
    const QString text = ValueText::of(value);
    return text.isEmpty() ? QStringLiteral("0") : text;
}

void setImage(QTreeWidgetItem &item, TickImage image) {
    item.setData(0, kImageRole, int(image));
    item.setIcon(0, tickIcon(image));
}
} // namespace

FormNodes::FormNodes(FormTreeWidget &tree, Transformer &transformer, const Translation &translation,
                     ErrorReport &errors)
    : mTree(tree), mTransformer(transformer), mTranslation(translation), mErrors(errors) {}

void FormNodes::UpdateTreeItems(const FormLists &lists, const QString &strFormType) try {
    mNodes.clear();
    mTree.clear();
    SetTabStop(false);
    addNodes(lists, strFormType);
    for (QTreeWidgetItem *node : mNodes)
        node->setText(0, mTranslation.NLSStr(node->text(0)));
    mTree.viewport()->update();
    mTransformer.RefreshFormList();
    if (Count() > 0)
        SelectAsCurrentForm(1);
    SetTabStop(true);
}
ERROR_TAIL()

void FormNodes::addNodes(const FormLists &lists, const QString &strFormType) {
    static const QString kChildPrefix = QStringLiteral("->");
    QTreeWidgetItem *parent = nullptr;
    for (qsizetype i = 0; i < lists.formList.size(); ++i) {
        if (!strFormType.isEmpty() && lists.formTypeList.value(i) != strFormType)
            continue;
        const bool child = lists.formList.at(i).startsWith(kChildPrefix) && parent != nullptr;
        QTreeWidgetItem *node = child ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(&mTree);
        const QString description = lists.formDescList.value(i);
        QString key = lists.formList.at(i);
        if (key.startsWith(kChildPrefix))
            key.remove(0, kChildPrefix.size());
        node->setData(0, kKeyRole, key);
        node->setText(0, QString(description).remove(QLatin1Char('&')));
        node->setData(0, kTagRole,
                      numberText(lists.formAccessLevels.value(description)) + QStringLiteral("|") +
                          numberText(lists.formNetworks.value(description)));
        setImage(*node, TickImage::White);
        mNodes.push_back(node);
        SetColour(Count(), NodeColour::kMenuText);
        if (!child) {
            parent = node;
        } else if (parent->childCount() == 1) {
            QFont bold = mTree.font();
            bold.setBold(true);
            parent->setFont(0, bold);
            setImage(*parent, TickImage::Link);
            parent->setExpanded(true);
        }
    }
}

QTreeWidgetItem *FormNodes::item(qint32 index) const {
    if (index < 1 || index > Count())
        throw RunTimeError(ErrorNumber::kCollectionIndex, QStringLiteral("FormTree"),
                           QStringLiteral("Index out of bounds"));
    return mNodes[std::size_t(index - 1)];
}

qint32 FormNodes::indexOf(const QTreeWidgetItem *item) const {
    const auto place = std::find(mNodes.begin(), mNodes.end(), item);
    return place == mNodes.end() ? 0 : qint32(place - mNodes.begin()) + 1;
}

QString FormNodes::Key(qint32 index) const { return item(index)->data(0, kKeyRole).toString(); }
QString FormNodes::Text(qint32 index) const { return item(index)->text(0); }
QString FormNodes::Tag(qint32 index) const { return item(index)->data(0, kTagRole).toString(); }
qint32 FormNodes::AccessLevel(qint32 index) const {
    return ValueText::toIntegerOr(Tag(index).section(QLatin1Char('|'), 0, 0), 0);
}
quint32 FormNodes::Colour(qint32 index) const { return item(index)->data(0, FormTreeWidget::kColourRole).toUInt(); }

void FormNodes::SetColour(qint32 index, quint32 colour) {
    QTreeWidgetItem *node = item(index);
    node->setData(0, FormTreeWidget::kColourRole, colour);
    node->setData(0, Qt::AccessibleDescriptionRole,
                  colour == NodeColour::kButtonFace ? mTranslation.NLSStr(QStringLiteral("unavailable")) : QString());
}

TickImage FormNodes::Image(qint32 index) const { return TickImage(item(index)->data(0, kImageRole).toInt()); }
void FormNodes::SetImage(qint32 index, TickImage image) { setImage(*item(index), image); }
qint32 FormNodes::Parent(qint32 index) const { return indexOf(item(index)->parent()); }

std::vector<qint32> FormNodes::Children(qint32 index) const {
    std::vector<qint32> children;
    const QTreeWidgetItem *node = item(index);
    children.reserve(std::size_t(node->childCount()));
    for (int child = 0; child < node->childCount(); ++child)
        children.push_back(indexOf(node->child(child)));
    return children;
}

qint32 FormNodes::FirstSibling(qint32 index) const {
    const QTreeWidgetItem *parent = item(index)->parent();
    return parent == nullptr ? 1 : indexOf(parent->child(0));
}

qint32 FormNodes::IndexOfKey(const QString &key) const {
    for (qint32 index = 1; index <= Count(); ++index) {
        if (Key(index) == key)
            return index;
    }
    return 0;
}

qint32 FormNodes::IndexOfText(const QString &text) const {
    for (qint32 index = 1; index <= Count(); ++index) {
        if (Text(index) == text)
            return index;
    }
    return 0;
}

bool FormNodes::ValidFormControlNameForTier(const QString &strFormControlName) const {
    return IndexOfKey(strFormControlName) != 0;
}

qint32 FormNodes::Selected() const { return indexOf(mTree.currentItem()); }

void FormNodes::Select(qint32 index) {
    if (index >= 1 && index <= Count())
        mTree.setCurrentItem(item(index));
}

qint32 FormNodes::SelectLeaf() {
    qint32 index = Selected();
    while (index != 0 && item(index)->childCount() > 0)
        index = indexOf(item(index)->child(0));
    Select(index);
    return index;
}

void FormNodes::SelectAsCurrentForm(qint32 index) {
    Select(index);
    mTransformer.SetCurrentFormName(Text(index));
    mTransformer.SetCurrentFormTreeNode(index);
}

void FormNodes::SetFocus() { mTree.setFocus(Qt::OtherFocusReason); }
void FormNodes::SetTabStop(bool tabStop) { mTree.setFocusPolicy(tabStop ? Qt::StrongFocus : Qt::ClickFocus); }
bool FormNodes::Visible() const { return mTree.isVisible(); }
void FormNodes::SetHelpContextID(qint32 helpContextID) { mTree.setProperty("HelpContextID", helpContextID); }
