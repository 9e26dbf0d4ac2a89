#pragma once

#include "currency.h"

#include <QString>

class ErrorReport;
class StatusPanels;
class Transformer;
class Translation;
struct ProcessValues;

// What the status bar says of the field under the focus (panels 2 to 5) and of a drag in progress (panel 7).
class FieldDetails {
  public:
    FieldDetails(Transformer &transformer, const ProcessValues &process, const Translation &translation,
                 StatusPanels &panels, ErrorReport &errors);

    // Sets all four texts. Minimum and maximum show while the step is above 0, the step where it is not 1 either, the
    // unit unless it is empty or "units".
    void ShowFieldDetails(qint32 Min, qint32 Max, const Currency &Step, const QString &Unit);
    void ShowFieldDetailsInStatusbar(const QString &UIID);
    void HideFieldDetails();
    void StartDrag(const QString &id, const QString &typeName);
    // The panels speak of the focused field again.
    void FinishedDrag();
    // target: "<caption> radio model".
    void DragOver(const QString &UIID, const QString &target);

  private:
    [[nodiscard]] QString labelled(const QString &word, const QString &value) const;

    Transformer &mTransformer;
    const ProcessValues &mProcess;
    const Translation &mTranslation;
    StatusPanels &mPanels;
    ErrorReport &mErrors;
};
