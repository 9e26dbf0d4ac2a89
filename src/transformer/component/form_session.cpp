#include "form_session.h"

#include "translation.h"

#include <algorithm>

namespace {
constexpr std::size_t kToldAtMost = 10;
const QString kLineBreak = QStringLiteral("\n");

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

QString line(const Dictionary &dictionary, const Finding &finding) {
    const FieldDefinition &field = dictionary.field(finding.field);
    const QString form = formCaption(dictionary, field);
    const RecordAddress &record = finding.record;
    if (record.number == 0)
        return Translation::Pieces(
            {Translation::Piece(QStringLiteral("%0:S, %1:S: "), {form, field.label}), finding.message.piece()}, {});
    const QString number = record.parent == 0 ? QString::number(record.number)
                                              : QStringLiteral("%1.%2").arg(record.parent).arg(record.number);
    return Translation::Pieces(
        {Translation::Piece(QStringLiteral("%0:S, record %1:S, %2:S: "), {form, number, field.label}),
         finding.message.piece()},
        {});
}
} // namespace Findings

void FormSession::SaveForm(const QString & /*tierKey*/) { mState.journal.startForm(); }

void FormSession::RevertFormData(const QString &tierKey) {
    const TierIndex tier = mState.dictionary.tierByKey(tierKey).value_or(mState.tier());
    const Changes undone = mState.journal.revertForm(tier);
    mState.positionsOf(tier).follow(mState.document.data.tier(tier), undone);
}

QString FormSession::listed(const std::vector<Finding> &findings) const {
    QStringList lines;
    for (const Finding &finding : findings) {
        if (std::size_t(lines.size()) < kToldAtMost)
            lines.append(Findings::line(mState.dictionary, finding));
    }
    if (findings.size() > kToldAtMost)
        lines.append(
            Translation::Piece(QStringLiteral("(%0:S more)"), {QString::number(findings.size() - kToldAtMost)}));
    return Translation::Pieces(lines, kLineBreak);
}

void FormSession::tellErrors(const std::vector<Finding> &findings) {
    mState.events.tell(QStringLiteral("The data is not complete and consistent:%0:S%1:S"),
                       {kLineBreak, listed(findings)});
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
    return findings.empty() ||
           mState.events.ask(
               QStringLiteral("Please look at these settings:%0:S%1:S%2:SDo you want to go on with them?"),
               {kLineBreak, listed(findings), kLineBreak});
}
