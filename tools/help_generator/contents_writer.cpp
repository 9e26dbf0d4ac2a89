#include "contents_writer.h"

#include "field_facts.h"
#include "help_book.h"

#include <algorithm>

namespace {
QString list(const std::vector<ContentsEntry> &entries) {
    QString html = QStringLiteral("<ul>\n");
    for (const ContentsEntry &entry : entries)
        html += QStringLiteral("<li>%1</li>\n").arg(Markup::link(entry.fileName, entry.title.toHtmlEscaped()));
    return html + QStringLiteral("</ul>\n");
}
} // namespace

// The fullest model has all forms; the others lack some.
std::vector<TreeForm> treeForms(const Dictionary &dictionary, const FieldFacts &facts) {
    std::vector<TreeForm> forms;
    QString group;
    for (const TreeEntry &entry : dictionary.tree(TierIndex(qint32(dictionary.tiers().size()) - 1))) {
        if (entry.isGroup || !entry.isChild)
            group = entry.isGroup ? entry.caption : QString();
        if (!entry.isGroup)
            forms.push_back({entry.form, entry.caption, group, facts.models(entry.tiers)});
    }
    return forms;
}

QString titleOf(const TreeForm &form) {
    return form.group.isEmpty() ? form.caption : form.group + QStringLiteral(": ") + form.caption;
}

QString whereOf(const TreeForm &form) {
    const QString place = form.group.isEmpty() ? form.caption : form.group + QStringLiteral(" > ") + form.caption;
    return QStringLiteral("In the tree: %1. Models: %2.")
        .arg(place, form.models.isEmpty() ? QStringLiteral("all") : form.models);
}

QString contentsPage(const std::vector<ContentsEntry> &pages, const std::vector<ContentsEntry> &forms) {
    return QStringLiteral("<h1>KX4600 Programming Application</h1>\n<h2>How to</h2>\n") + list(pages) +
           QStringLiteral("<h2>The forms</h2>\n") + list(forms);
}
