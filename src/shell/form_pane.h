#pragma once

#include "scroll_layout.h"
#include "shell_ports.h"

#include <QPointer>
#include <QString>

class QGroupBox;
class QScrollBar;
class QWidget;

// The right-hand pane: frame, view port, scrolled surface, scroll bars and the form that stands in it.
class FormPane {
  public:
    // The pane is made as a child of parent.
    explicit FormPane(QWidget *parent);

    [[nodiscard]] QWidget &Pane() const { return *mPicMainFrame; }
    // Where a form is made.
    [[nodiscard]] QWidget *FormParent() const { return mPicInternalFrame; }

    // The form under the fixed name "currentlyOpenUsrctl"; null pointers when none is open.
    [[nodiscard]] const HostedForm &Hosted() const { return mHosted; }
    void Host(const HostedForm &form);
    // Hides the form at once and leaves its deletion to the event loop; empties and hides the frame.
    void Remove();

    // The frame's caption as plain text.
    [[nodiscard]] QString Caption() const { return mCaption; }
    void SetCaption(const QString &caption);
    void ShowFrame();
    // Moves the form to 0, 0 with the size of the surface, so that nothing of it is cut off, and makes it visible.
    void ShowForm();

    // Lays out the contents for the pane's size; an open form goes to 0, 0 with the size of the surface.
    void LayOut();
    [[nodiscard]] bool Scrolling() const;
    // Scrolls the form back to its upper left corner.
    void ScrollHome();

  private:
    void layOutBar(QScrollBar &bar, const ScrollRange &range);
    void moveForm();

    QWidget *mPicMainFrame;
    QGroupBox *mFrame1;
    QWidget *mPicInternalFrame;
    QWidget *mPicContainer;
    QScrollBar *mHScroll1;
    QScrollBar *mVScroll1;
    HostedForm mHosted;
    QString mCaption;
};
