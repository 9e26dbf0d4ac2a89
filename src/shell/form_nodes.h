#pragma once

#include "tick_image.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>
#include <vector>

class ErrorReport;
class FormTreeWidget;
class QTreeWidgetItem;
class Transformer;
class Translation;

// The lists of which the tree is built. formList, formDescList and formTypeList are read by position, the other two by
// the entry of formDescList.
struct FormLists {
    QStringList formList;
    QStringList formDescList;
    QHash<QString, QVariant> formAccessLevels;
    QHash<QString, QVariant> formNetworks;
    QStringList formTypeList;
};

// The nodes of the form tree, numbered from 1 in the order of the list. Index 0 means "no node". Selecting by code
// runs nothing.
class FormNodes {
  public:
    FormNodes(FormTreeWidget &tree, Transformer &transformer, const Translation &translation, ErrorReport &errors);

    // Rebuilds the tree with the entries of the type strFormType ("": all), lets the component enable and disable them,
    // and selects node 1.
    void UpdateTreeItems(const FormLists &lists, const QString &strFormType);

    [[nodiscard]] qint32 Count() const { return qint32(mNodes.size()); }
    [[nodiscard]] QString Key(qint32 index) const;
    [[nodiscard]] QString Text(qint32 index) const;
    // "level|network"
    [[nodiscard]] QString Tag(qint32 index) const;
    [[nodiscard]] qint32 AccessLevel(qint32 index) const;
    // One of NodeColour.
    [[nodiscard]] quint32 Colour(qint32 index) const;
    void SetColour(qint32 index, quint32 colour);
    [[nodiscard]] TickImage Image(qint32 index) const;
    void SetImage(qint32 index, TickImage image);
    // 0 for a top-level node.
    [[nodiscard]] qint32 Parent(qint32 index) const;
    [[nodiscard]] std::vector<qint32> Children(qint32 index) const;
    [[nodiscard]] qint32 FirstSibling(qint32 index) const;
    // 0 where there is none.
    [[nodiscard]] qint32 IndexOfKey(const QString &key) const;
    [[nodiscard]] qint32 IndexOfText(const QString &text) const;
    // True if the tree has a node with that key.
    [[nodiscard]] bool ValidFormControlNameForTier(const QString &strFormControlName) const;

    [[nodiscard]] qint32 Selected() const;
    // Nothing if there is no such node.
    void Select(qint32 index);
    // While the selected node has children, its first child; the number of the leaf.
    qint32 SelectLeaf();
    // Selects the node and tells the component its text and number.
    void SelectAsCurrentForm(qint32 index);

    // Gives the tree the focus, so that a field's pending edit is taken.
    void SetFocus();
    void SetTabStop(bool tabStop);
    [[nodiscard]] bool Visible() const;
    void SetHelpContextID(qint32 helpContextID);

  private:
    void addNodes(const FormLists &lists, const QString &strFormType);
    [[nodiscard]] QTreeWidgetItem *item(qint32 index) const;
    [[nodiscard]] qint32 indexOf(const QTreeWidgetItem *item) const;

    FormTreeWidget &mTree;
    Transformer &mTransformer;
    const Translation &mTranslation;
    ErrorReport &mErrors;
    std::vector<QTreeWidgetItem *> mNodes;
};
