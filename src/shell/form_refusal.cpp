#include "form_refusal.h"

#include "form_nodes.h"
#include "string_utilities.h"
#include "translation.h"

#include <array>

namespace {
const char *const kSignalling =
    "The %0:S form is only available for Selcall and Two Tone networks. To enable this %1:Sform, select one of these "
    "as the Signalling Type in the Basic Settings form.";
const char *const kNoSelcallSystem =
    "The %0:S form is unavailable when there are no Selcall signalling systems. %1:S To enable this form create at "
    "least one Selcall System on the Selcall Identity form.";

struct Row {
    const char *form;
    bool translated; // compared with the translation of the name
    const char *prompt;
};
const std::array kRows{
    Row{"ANN Interfleet", true,
        "The %0:S form is unavailable.  You can enable this option %1:S by changing the Dialling scheme on the Fleet "
        "Identity form."},
    Row{"Enhanced Scan", false,
        "The %0:S form is unavailable.  You can enable this option %1:S by enabling Enhanced Scanning on the "
        "Specifications form."},
    Row{"Alerts", true, kSignalling},
    Row{"Fixed Format Bursts", true, kNoSelcallSystem},
    Row{"Free Format Bursts", true, kNoSelcallSystem},
    Row{"Control Status", true, kNoSelcallSystem},
    Row{"Tone Settings", true, kNoSelcallSystem},
    Row{"Features", true, kSignalling},
};
const char *const kGeneral = "The %0:S form is unavailable. You can enable this form %1:S by selecting the %2:S option "
                             "from the Specifications form.";

QString optionOf(const FormNodes &nodes, qint32 node) {
    const qint32 sibling = nodes.FirstSibling(node);
    const qint32 parent = sibling == 1 ? 0 : nodes.Parent(sibling);
    return nodes.Text(parent == 0 ? node : parent);
}
} // namespace

FormRefusal FormRefusal::notBuilt(const FormNodes &nodes, qint32 node) {
    return {QStringLiteral("The %0:S form is not part of this version of the program."), nodes.Text(node)};
}

FormRefusal FormRefusal::of(const FormNodes &nodes, qint32 node, const Translation &translation) {
    const QString text = nodes.Text(node);
    const QString lineBreak = QStringLiteral("\r\n");
    for (const Row &row : kRows) {
        const QString name = QString::fromLatin1(row.form);
        if (text == (row.translated ? translation.NLSStr(name) : name))
            return {QString::fromLatin1(row.prompt), MakeParamString({text, lineBreak})};
    }
    return {QString::fromLatin1(kGeneral), MakeParamString({text, lineBreak, optionOf(nodes, node)})};
}
