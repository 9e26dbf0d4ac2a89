#include "report_forms.h"

#include "busy_pointer.h"
#include "form_host.h"
#include "form_nodes.h"
#include "form_tree_widget.h"

std::vector<ReportableForm> ReportForms::Forms() const {
    const FormNodes &nodes = mParts.nodes;
    const QString openForm = mParts.host.LoadedUsrControl().typeName;
    std::vector<ReportableForm> forms;
    for (qint32 node = 1; node <= nodes.Count(); ++node) {
        if (!isReportable(node))
            continue;
        const qint32 parent = nodes.Parent(node);
        const QString prefix = parent == 0 ? QString() : nodes.Text(parent) + QStringLiteral(" - ");
        const bool open = nodes.Key(node).compare(openForm, Qt::CaseInsensitive) == 0;
        forms.push_back({node, prefix + nodes.Text(node), open});
    }
    return forms;
}

// A dimmed node still opens; a node with children is a group.
bool ReportForms::isReportable(qint32 node) const {
    return mParts.nodes.Children(node).empty() && mParts.nodes.Colour(node) != NodeColour::kButtonFace &&
           mParts.factory.CanCreate(mParts.nodes.Key(node));
}

QString ReportForms::FormKey(qint32 node) const { return mParts.nodes.Key(node); }

std::unique_ptr<Iusrfrm> ReportForms::CreateForm(const QString &key, const FieldServices &services) {
    return mParts.factory.CreateUnseenForm(key, services);
}

void ReportForms::MouseHourglass() { mParts.pointer.MouseHourglass(); }
void ReportForms::MouseDefault() { mParts.pointer.MouseDefault(); }
