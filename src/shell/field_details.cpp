#include "field_details.h"

#include "common_error_handler.h"
#include "process_values.h"
#include "status_panels.h"
#include "string_utilities.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

#include <array>

FieldDetails::FieldDetails(Transformer &transformer, const ProcessValues &process, const Translation &translation,
                           StatusPanels &panels, ErrorReport &errors)
    : mTransformer(transformer), mProcess(process), mTranslation(translation), mPanels(panels), mErrors(errors) {}

QString FieldDetails::labelled(const QString &word, const QString &value) const {
    return mTranslation.NLSStr(word) + QStringLiteral(": ") + value;
}

void FieldDetails::ShowFieldDetails(qint32 Min, qint32 Max, const Currency &Step, const QString &Unit) try {
    const bool stepped = Step > Currency();
    const bool oneByOne = Step == Currency::fromTenThousandths(10000);
    mPanels.SetText(StatusPanels::kMin, labelled(QStringLiteral("Min"), QString::number(Min)));
    mPanels.SetText(StatusPanels::kMax, labelled(QStringLiteral("Max"), QString::number(Max)));
    mPanels.SetText(StatusPanels::kStep, labelled(QStringLiteral("Step"), Step.toString()));
    mPanels.SetText(StatusPanels::kUnit, labelled(QStringLiteral("Unit"), mTranslation.NLSStr(Unit)));
    mPanels.SetVisible(StatusPanels::kMin, stepped);
    mPanels.SetVisible(StatusPanels::kMax, stepped);
    mPanels.SetVisible(StatusPanels::kStep, stepped && !oneByOne);
    mPanels.SetVisible(StatusPanels::kUnit, !Unit.isEmpty() && Unit != QStringLiteral("units"));
}
ERROR_TAIL()

void FieldDetails::ShowFieldDetailsInStatusbar(const QString &UIID) try {
    const QString unit = mTransformer.GetFieldDescription(UIID);
    const qint32 max = mTransformer.GetMaxValue(UIID);
    const qint32 min = mTransformer.GetMinValue(UIID);
    ShowFieldDetails(min, max, mTransformer.GetStepValue(UIID), unit);
}
ERROR_TAIL()

void FieldDetails::HideFieldDetails() {
    for (const int panel : {StatusPanels::kUnit, StatusPanels::kStep, StatusPanels::kMax, StatusPanels::kMin})
        mPanels.SetVisible(panel, false);
}

void FieldDetails::StartDrag(const QString &id, const QString &typeName) try {
    static const std::array<QString, 4> kSettings{QStringLiteral("fldTextField"), QStringLiteral("fldComboField"),
                                                  QStringLiteral("fldCheckboxField"),
                                                  QStringLiteral("fldIdTrackerField")};
    QString text;
    if (std::find(kSettings.begin(), kSettings.end(), typeName) != kSettings.end())
        text = mTranslation.NLSFmt(QStringLiteral("%0:s setting"), mTransformer.GetLabel(id));
    else if (typeName == QStringLiteral("fldFrame"))
        text = mTranslation.NLSFmt(QStringLiteral("%0:s details"), id);
    HideFieldDetails();
    mPanels.Show(StatusPanels::kDrag, mTranslation.NLSStr(QStringLiteral("copy the ")) + text + QStringLiteral(" ..."));
}
ERROR_TAIL()

void FieldDetails::FinishedDrag() try {
    mPanels.SetVisible(StatusPanels::kDrag, false);
    if (const auto enabler = mProcess.colEnablers.Item(mProcess.CurrentEnablerKey))
        ShowFieldDetailsInStatusbar(enabler->Ienabler_GetUIIDOfFieldWithFocus());
}
ERROR_TAIL()

void FieldDetails::DragOver(const QString &UIID, const QString &target) try {
    const QString label = mTransformer.GetLabel(UIID);
    const bool named = !label.isEmpty() && !ValueText::isUndefined(label);
    const QString pattern = named ? QStringLiteral("%0:s setting") : QStringLiteral("%0:s details");
    const QString description = Translation::Piece(pattern, {named ? label : UIID});
    // The pattern brings the blank itself.
    const QString start = TrimBlanks(mTranslation.NLSStr(QStringLiteral("copy the ")));
    mPanels.Show(StatusPanels::kDrag, mTranslation.NLSFmt(QStringLiteral("%0:s %1:S to the %2:s"),
                                                          MakeParamString({start, description, target})));
}
ERROR_TAIL()
