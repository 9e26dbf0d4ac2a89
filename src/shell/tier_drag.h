#pragma once

#include "tier_buttons.h"

class ErrorReport;
class FieldDetails;
class Transformer;

// A field or frame dragged onto another tier's button is copied into that tier. The drag's text is a list of items
// joined by "~", each "UIID|type|value"; a frame's first item is its caption.
class TierDrag final : public TierDrop {
  public:
    TierDrag(Transformer &transformer, TierButtons &buttons, FieldDetails &details, ErrorReport &errors);

    bool tbrTiers_OLEDragOver(const QMimeData *data, const QPoint &position) override;
    void tbrTiers_OLEDragDrop(const QMimeData *data, const QPoint &position) override;

  private:
    [[nodiscard]] QString target(qint32 button) const;
    void copyItem(const QString &item, qint32 button);

    Transformer &mTransformer;
    TierButtons &mButtons;
    FieldDetails &mDetails;
    ErrorReport &mErrors;
};
