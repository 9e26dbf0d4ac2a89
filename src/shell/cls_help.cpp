#include "cls_help.h"

#include "help_pages.h"
#include "help_viewer.h"
#include "message_style.h"
#include "window_services.h"

#include <QApplication>

#include <utility>

clsHelp::clsHelp(MessageBoxes &boxes, MakeViewer makeViewer) : mBoxes(boxes), mMakeViewer(std::move(makeViewer)) {}

clsHelp::~clsHelp() { delete mViewer; }

void clsHelp::HHDisplaySearch(QWidget *form) {
    HelpViewer *window = viewer(form);
    if (window == nullptr)
        return;
    if (window->Place().isEmpty())
        window->ShowContents();
    show(*window);
    window->ShowSearch();
}

void clsHelp::HHDisplayContents(QWidget *form) {
    if (mShowOnTop && form == nullptr) {
        report(QStringLiteral("The HHDisplayContents method was called without a form being specified, while "
                              "HHShowOnTop was set to True."));
        return;
    }
    HelpViewer *window = viewer(form);
    if (window == nullptr)
        return;
    window->ShowContents();
    show(*window);
}

bool clsHelp::HHDisplayPlace(const QString &place, QWidget *form) {
    HelpViewer *window = viewer(form);
    if (window == nullptr)
        return true; // told
    if (!window->ShowPlace(place))
        return false;
    show(*window);
    return true;
}

WId clsHelp::HHWndHandle() const {
    if (mViewer != nullptr && mViewer->isVisible())
        return mViewer->winId();
    report(mOpened ? QStringLiteral("The last HTML Help window opened has been closed.")
                   : QStringLiteral("No HTML Help window handle to retrieve."));
    return 0;
}

HelpViewer *clsHelp::Viewer() const { return mViewer; }

// The open window serves on as long as it shows the same file and a modal window does not lock it.
HelpViewer *clsHelp::viewer(QWidget *form) {
    if (!mMakeViewer) {
        report(QStringLiteral("HTML Help is not installed."));
        return nullptr;
    }
    const QString folder = HelpPages::folderOf(mFile);
    QWidget *modal = QApplication::activeModalWidget();
    QWidget *parent = modal != nullptr ? modal : (mShowOnTop ? form : nullptr);
    if (mViewer != nullptr && mViewer->Folder() == folder && mViewer->parentWidget() == parent)
        return mViewer;
    delete mViewer;
    mViewer = mMakeViewer(folder, parent);
    return mViewer;
}

void clsHelp::show(HelpViewer &viewer) {
    mOpened = true;
    viewer.show();
    viewer.raise();
    viewer.activateWindow();
}

void clsHelp::report(const QString &text) const {
    mBoxes.MsgBox(text, MessageStyle::kExclamation, QStringLiteral("HTML Help Class"));
}
