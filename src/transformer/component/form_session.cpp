#include "form_session.h"

#include <algorithm>

namespace {
constexpr std::size_t kToldAtMost = 10;

std::vector<Finding> ofSeverity(const std::vector<Finding> &findings, Finding::Severity severity) {
    std::vector<Finding> result;
    std::ranges::copy_if(findings, std::back_inserter(result),
                         [severity](const Finding &finding) { return finding.severity == severity; });
    return result;
}
} // namespace

namespace Findings {
QString formCaption(const Dictionary &dictionary, const FieldDefinition &field) {
    for (qint32 place = 0; place < qint32(dictionary.tiers().size()); ++place) {
        for (const TreeEntry &entry : dictionary.tree(TierIndex(place))) {
            if (entry.form == field.form)
                return entry.caption;
        }
    }
    return field.form;
}

QString place(const TierData &data, const Finding &finding) {
    const Dictionary &dictionary = data.dictionary();
    const FieldDefinition &field = dictionary.field(finding.field);
    QString text = formCaption(dictionary, field);
    if (finding.record.parent > 0)
        text += QStringLiteral(", record %1.%2").arg(finding.record.parent).arg(finding.record.number);
    else if (finding.record.number > 0)
        text += QStringLiteral(", record %1").arg(finding.record.number);
    return text + QStringLiteral(", ") + field.label;
}
} // namespace Findings

void FormSession::SaveForm(const QString & /*tierKey*/) { mState.journal.startForm(); }

void FormSession::RevertFormData(const QString &tierKey) {
    const TierIndex tier = mState.dictionary.tierByKey(tierKey).value_or(mState.tier());
    const Changes undone = mState.journal.revertForm(tier);
    mState.positionsOf(tier).follow(mState.document.data.tier(tier), undone);
}

QString FormSession::describe(const Finding &finding) const {
    return Findings::place(mState.current(), finding) + QStringLiteral(": ") + finding.message.text();
}

void FormSession::tellErrors(const std::vector<Finding> &findings) {
    QStringList lines;
    for (const Finding &finding : findings) {
        if (std::size_t(lines.size()) < kToldAtMost)
            lines.append(describe(finding));
    }
    if (findings.size() > kToldAtMost)
        lines.append(QStringLiteral("(%1 more)").arg(findings.size() - kToldAtMost));
    mState.events.tell(QStringLiteral("The data is not complete and consistent:%0:S%1:S"),
                       {QStringLiteral("\n"), lines.join(u'\n')});
}

void FormSession::ValidateForm(const QString &formTypeName, bool &ok) {
    const std::vector<Finding> errors =
        ofSeverity(FinalChecks(mState.current()).run(formTypeName), Finding::Severity::Error);
    ok = errors.empty();
    if (!ok)
        tellErrors(errors);
}

bool FormSession::FinalValidate() {
    const std::vector<Finding> findings = FinalChecks(mState.current()).run();
    const std::vector<Finding> errors = ofSeverity(findings, Finding::Severity::Error);
    if (!errors.empty()) {
        tellErrors(errors);
        return false;
    }
    QStringList warnings;
    for (const Finding &finding : findings) {
        if (std::size_t(warnings.size()) < kToldAtMost)
            warnings.append(describe(finding));
    }
    return warnings.isEmpty() ||
           mState.events.ask(
               QStringLiteral("Please look at these settings:%0:S%1:S%2:SDo you want to go on with them?"),
               {QStringLiteral("\n"), warnings.join(u'\n'), QStringLiteral("\n")});
}
