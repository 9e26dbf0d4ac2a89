#include "tree_navigation.h"

#include "busy_pointer.h"
#include "common_error_handler.h"
#include "filter_tabs.h"
#include "form_host.h"
#include "form_nodes.h"
#include "form_pane.h"
#include "form_refusal.h"
#include "form_tree_widget.h"
#include "green_ticks.h"
#include "message_style.h"
#include "process_values.h"
#include "transformer.h"
#include "translation.h"
#include "user_events.h"
#include "value_text.h"
#include "window_services.h"

#include <QScopedValueRollback>

TreeNavigation::TreeNavigation(Transformer &transformer, const ProcessValues &process, const Translation &translation,
                               MessageBoxes &boxes, const Parts &parts, ErrorReport &errors)
    : mTransformer(transformer), mProcess(process), mTranslation(translation), mBoxes(boxes), mParts(parts),
      mErrors(errors) {}

void TreeNavigation::restoreSelection() { mParts.nodes.Select(mTransformer.GetCurrentFormTreeNode()); }

void TreeNavigation::finishChange() {
    mParts.ticks.SetTierNodeGreenTick(true);
    mParts.pane.ScrollHome();
}

void TreeNavigation::refuse(qint32 node) {
    const FormRefusal refusal = mParts.nodes.Colour(node) == NodeColour::kButtonFace
                                    ? FormRefusal::of(mParts.nodes, node, mTranslation)
                                    : FormRefusal::notBuilt(mParts.nodes, node);
    mBoxes.TranslateMsgBox(refusal.prompt, MessageStyle::kInformation, QStringLiteral("Form is not available"),
                           refusal.parameters);
    restoreSelection();
}

// False: the selection was put back, and the change ends at once.
bool TreeNavigation::openSelected(qint32 node, bool blnSaveNow) {
    FormNodes &nodes = mParts.nodes;
    const QString key = nodes.Key(node);
    const QString text = nodes.Text(node);
    if (!mTransformer.GetFormAvailable(key, text)) {
        restoreSelection();
        return false;
    }
    if (!nodes.ValidFormControlNameForTier(key)) {
        nodes.Select(1);
        if (mTransformer.GetFormAvailable(nodes.Key(1), nodes.Text(1)))
            mParts.host.OpenForm(nodes.Key(1), nodes.Text(1), blnSaveNow);
        return true;
    }
    if (mParts.host.OpenForm(key, text, blnSaveNow))
        return true;
    restoreSelection();
    return false;
}

void TreeNavigation::ChangeFormTreeNodes(bool blnSaveNow, bool blnForce) try {
    if (mParts.nodes.Count() == 0) {
        mParts.host.CloseForm(true);
        finishChange();
        return;
    }
    const qint32 node = mParts.nodes.SelectLeaf();
    if (node == 0)
        return;
    const bool openAlready = mParts.nodes.Text(node) == mParts.pane.Caption() && blnSaveNow && !blnForce;
    if (!openAlready) {
        if (mParts.nodes.Colour(node) == NodeColour::kButtonFace || !mParts.host.CanOpen(mParts.nodes.Key(node)))
            refuse(node);
        else if (!openSelected(node, blnSaveNow))
            return;
    }
    finishChange();
}
ERROR_TAIL()

void TreeNavigation::FormTree_Click() try {
    bool mayLeave = false;
    if (mProcess.colEnablers.Count() > 0) {
        const auto enabler = mProcess.colEnablers.Item(QStringLiteral("Main"));
        mayLeave = enabler != nullptr && enabler->Ienabler_OKToLeaveForm();
        if (!mayLeave)
            return;
    }
    const DisabledUserEventsGuard disabled(mParts.userEvents);
    static_cast<void>(mTransformer.GetFormIsDirty());
    ChangeFormTreeNodes(mayLeave, false);
}
ERROR_TAIL()

void TreeNavigation::FormTree_NodeClick() try {
    mParts.nodes.SetTabStop(false);
    FormTree_Click();
    mParts.nodes.SetTabStop(true);
}
ERROR_TAIL()

void TreeNavigation::OpenCurrentForm() {
    const QString current = mTransformer.GetCurrentFormName();
    if (current.isEmpty() && mParts.nodes.Count() > 0)
        mParts.nodes.SelectAsCurrentForm(1);
    else if (const qint32 node = mParts.nodes.IndexOfText(current))
        mParts.nodes.Select(node);
    mParts.nodes.SelectLeaf();
    ChangeFormTreeNodes(false, false);
}

void TreeNavigation::tabTreeFilter_Click() try {
    if (mParts.host.ChangingForms() || mRestoringTab)
        return;
    if (mParts.host.CloseForm(true)) {
        const FormLists lists = mParts.filterTabs.Lists();
        mParts.nodes.UpdateTreeItems(lists, mParts.filterTabs.CurrentFormType());
        ChangeFormTreeNodes(false, false);
        mFilterTabIndex = mParts.filterTabs.Selected();
        return;
    }
    const QScopedValueRollback restoring(mRestoringTab, true);
    mParts.filterTabs.Select(mFilterTabIndex == 0 ? 1 : mFilterTabIndex);
}
ERROR_TAIL()

void TreeNavigation::openNode(qint32 node) {
    mParts.nodes.Select(node);
    FormTree_Click();
}

void TreeNavigation::ChangeToForm(const QString &strFormKey) try {
    FormNodes &nodes = mParts.nodes;
    const qint32 selected = nodes.Selected();
    const qint32 number = ValueText::toIntegerOr(strFormKey, 0);
    if (number >= 1 && number <= nodes.Count() && (selected == 0 || nodes.Text(selected) != nodes.Text(number))) {
        openNode(number);
        return;
    }
    if (selected != 0 && nodes.Key(selected) == strFormKey)
        return;
    if (const qint32 node = nodes.IndexOfKey(strFormKey))
        openNode(node);
}
ERROR_TAIL_AS("TransformerEvents_ChangeToForm")

void TreeNavigation::ChangeToNetwork() try {
    const HourglassGuard hourglass(mParts.pointer);
    ChangeFormTreeNodes(true, true);
}
ERROR_TAIL_AS("TransformerEvents_ChangeToNetwork")

void TreeNavigation::ChangeTreeFilterPos(qint32 lngFilterPos) try {
    FilterTabs &tabs = mParts.filterTabs;
    if (lngFilterPos < 1 || lngFilterPos > tabs.Count() || tabs.Selected() == lngFilterPos)
        return;
    tabs.Select(lngFilterPos);
    tabTreeFilter_Click();
}
ERROR_TAIL_AS("TransformerEvents_ChangeTreeFilterPos")

void TreeNavigation::EnableDisableFormItem(const QString &FormName, bool Enable) try {
    const qint32 node = mParts.nodes.IndexOfText(mTranslation.NLSStr(FormName));
    if (node == 0)
        return;
    const quint32 colour = Enable ? NodeColour::kMenuText : NodeColour::kButtonFace;
    mParts.nodes.SetColour(node, colour);
    for (const qint32 child : mParts.nodes.Children(node))
        mParts.nodes.SetColour(child, colour);
    const qint32 selected = mParts.nodes.Selected();
    if (selected != 0 && mParts.nodes.Colour(selected) == NodeColour::kButtonFace)
        leaveUnavailableNode();
}
ERROR_TAIL_AS("TransformerEvents_EnableDisableFormItem")

void TreeNavigation::leaveUnavailableNode() {
    FormNodes &nodes = mParts.nodes;
    qint32 node = nodes.Selected();
    while (nodes.Colour(node) == NodeColour::kButtonFace && nodes.Parent(node) != 0)
        node = nodes.Parent(node);
    if (nodes.Colour(node) == NodeColour::kButtonFace)
        node = 1;
    const auto children = nodes.Children(node);
    openNode(children.empty() ? node : children.front());
}
