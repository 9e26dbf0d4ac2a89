#pragma once

#include <QString>

class BusyPointer;
class ErrorReport;
class FilterTabs;
class FormHost;
class FormNodes;
class FormPane;
class GreenTicks;
class MessageBoxes;
class Transformer;
class Translation;
class UserEvents;
struct ProcessValues;

// What a choice in the tree or on the filter tabs opens, by the user or by the component.
class TreeNavigation {
  public:
    struct Parts {
        FormNodes &nodes;
        FilterTabs &filterTabs;
        FormHost &host;
        FormPane &pane;
        GreenTicks &ticks;
        UserEvents &userEvents;
        BusyPointer &pointer;
    };
    TreeNavigation(Transformer &transformer, const ProcessValues &process, const Translation &translation,
                   MessageBoxes &boxes, const Parts &parts, ErrorReport &errors);

    // Acts on the selected node. blnForce builds the open form anew.
    void ChangeFormTreeNodes(bool blnSaveNow, bool blnForce);
    void FormTree_Click();
    // A click on a node, and Enter.
    void FormTree_NodeClick();
    void tabTreeFilter_Click();
    // Selects again the form that the component holds as the current one of the tier, or else node 1, down to its first
    // form, and opens it.
    void OpenCurrentForm();

    void ChangeToForm(const QString &strFormKey);
    void ChangeToNetwork();
    void ChangeTreeFilterPos(qint32 lngFilterPos);
    void EnableDisableFormItem(const QString &FormName, bool Enable);

  private:
    void openNode(qint32 node);
    bool openSelected(qint32 node, bool blnSaveNow);
    void finishChange();
    void restoreSelection();
    void refuse(qint32 node);
    void leaveUnavailableNode();

    Transformer &mTransformer;
    const ProcessValues &mProcess;
    const Translation &mTranslation;
    MessageBoxes &mBoxes;
    Parts mParts;
    ErrorReport &mErrors;
    qint32 mFilterTabIndex = 0; // the last accepted filter tab
    bool mRestoringTab = false;
};
