#include "find_field_landing.h"

#include "find_field_search.h"
#include "form_host.h"
#include "form_nodes.h"
#include "form_pane.h"
#include "form_tree_widget.h"
#include "ienabler.h"
#include "ifield.h"
#include "igrid.h"
#include "iusrfrm.h"
#include "message_style.h"
#include "process_values.h"
#include "sub_form_call_up.h"
#include "transformer.h"
#include "tree_navigation.h"

#include <QTabWidget>
#include <QTableView>

namespace {
void showPageOf(QWidget &widget) {
    for (QWidget *outer = widget.parentWidget(); outer != nullptr; outer = outer->parentWidget()) {
        auto *tabs = qobject_cast<QTabWidget *>(outer);
        for (int page = 0; tabs != nullptr && page < tabs->count(); ++page) {
            if (tabs->widget(page)->isAncestorOf(&widget))
                tabs->setCurrentIndex(page);
        }
    }
}

// Moves the cursor of a grid to the column; the row stays.
void showColumn(QWidget &grid, qsizetype column) {
    auto *table = grid.findChild<QTableView *>();
    if (table == nullptr || table->model() == nullptr || column >= table->model()->columnCount())
        return;
    table->setCurrentIndex(table->model()->index(std::max(table->currentIndex().row(), 0), int(column)));
}
} // namespace

FindFieldLanding::FindFieldLanding(const ProcessValues &process, MessageBoxes &boxes, const Parts &parts)
    : mProcess(process), mBoxes(boxes), mParts(parts) {}

void FindFieldLanding::Open(const FindFieldHit &hit) {
    const qint32 node = mParts.nodes.IndexOfText(hit.form);
    if (node == 0 || !openForm(hit, node))
        return;
    mParts.window.activateWindow();
    if (HostControl *control = controlOf(hit))
        land(*control, hit);
    else
        landInSubForm(hit.name);
}

bool FindFieldLanding::openForm(const FindFieldHit &hit, qint32 node) {
    const QString key = mParts.nodes.Key(node);
    if (mParts.nodes.Colour(node) == NodeColour::kButtonFace || !mParts.host.CanOpen(key)) {
        mParts.nodes.Select(node);
        mParts.navigation.FormTree_Click();
        return false;
    }
    const QString title = hit.form + QStringLiteral(" (") + hit.label + QStringLiteral(")");
    if (mParts.host.IsFormLoaded() && mParts.pane.Caption() == title)
        return true; // the second click of a double click
    return pendingEntryTaken() && mProcess.objTransformer->GetFormAvailable(key, hit.form) &&
           mParts.host.OpenForm(key, title, true);
}

// The search has the focus, so that no move of the focus would validate what still stands in the form's editor.
bool FindFieldLanding::pendingEntryTaken() {
    const auto enabler = mProcess.colEnablers.Item(QStringLiteral("Main"));
    if (!mParts.host.IsFormLoaded() || enabler == nullptr)
        return true;
    if (mProcess.objTransformer->GetFormIsDirty()) // as it is from the first key on; forcing would mark it
        enabler->Ienabler_ForceSaveToCurrentField();
    if (enabler->Ienabler_OKToLeaveForm())
        return true;
    mParts.window.activateWindow();
    return false;
}

HostControl *FindFieldLanding::controlOf(const FindFieldHit &hit) const {
    int passed = 0;
    for (HostControl *control : mParts.host.LoadedUsrControl().form->Iusrfrm_Controls()) {
        const auto *grid = dynamic_cast<const Igrid *>(control->object());
        const bool shows = control->Name() == hit.name ||
                           (grid != nullptr && grid->Igrid_GetUIIDList().split(u'|').contains(hit.name));
        if (shows && passed++ == hit.nth)
            return control;
    }
    return nullptr;
}

// Any call-up leads there; the first one does as well as the others.
void FindFieldLanding::landInSubForm(const QString &name) const {
    for (QWidget *widget : mParts.host.LoadedUsrControl().widget->findChildren<QWidget *>()) {
        auto *callUp = dynamic_cast<SubFormCallUp *>(widget);
        if (callUp == nullptr)
            continue;
        showPageOf(*widget);
        return callUp->CallUp(name);
    }
}

void FindFieldLanding::land(HostControl &control, const FindFieldHit &hit) {
    const Ifield *field = control.object();
    if (field == nullptr || !field->Ifield_GetVisible()) {
        mBoxes.TranslateMsgBox(QStringLiteral("%0:S does not exist in this radio model or database version."),
                               MessageStyle::kInformation, QString(), hit.label);
        return;
    }
    auto *widget = dynamic_cast<QWidget *>(control.object());
    if (widget != nullptr)
        showPageOf(*widget);
    const auto *grid = dynamic_cast<const Igrid *>(field);
    if (grid != nullptr && widget != nullptr)
        showColumn(*widget, grid->Igrid_GetUIIDList().split(u'|').indexOf(hit.name));
    control.SetFocus();
}
