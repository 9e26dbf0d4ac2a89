#pragma once

#include <QString>

class FormHost;
class FormNodes;
class FormPane;
class HostControl;
class MessageBoxes;
class QWidget;
class TreeNavigation;
struct FindFieldHit;
struct ProcessValues;

// Goes to what was found: opens the form, shows the page and gives the field the focus; opens the sub-form where the
// field stands in one.
class FindFieldLanding {
  public:
    struct Parts {
        QWidget &window;
        FormNodes &nodes;
        FormHost &host;
        FormPane &pane;
        TreeNavigation &navigation;
    };
    FindFieldLanding(const ProcessValues &process, MessageBoxes &boxes, const Parts &parts);

    // A form that cannot be opened is refused as in the tree; a field that the form does not show is told.
    void Open(const FindFieldHit &hit);

  private:
    bool openForm(const FindFieldHit &hit, qint32 node);
    // False: refused, and the form keeps it.
    bool pendingEntryTaken();
    [[nodiscard]] HostControl *controlOf(const FindFieldHit &hit) const;
    void landInSubForm(const QString &name) const;
    void land(HostControl &control, const FindFieldHit &hit);

    const ProcessValues &mProcess;
    MessageBoxes &mBoxes;
    Parts mParts;
};
