#include "tier_drag.h"

#include "common_error_handler.h"
#include "field_details.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

#include <QMimeData>

namespace {
const QLatin1Char kBar('|');

// Both ends count.
bool spans(int from, int length, int place) { return from <= place && place <= from + length; }
} // namespace

TierDrag::TierDrag(Transformer &transformer, TierButtons &buttons, FieldDetails &details, ErrorReport &errors)
    : mTransformer(transformer), mButtons(buttons), mDetails(details), mErrors(errors) {
    mButtons.SetDrop(this);
}

QString TierDrag::target(qint32 button) const {
    return Translation::Piece(QStringLiteral("%0:S radio model"), {mButtons.Caption(button).trimmed()});
}

bool TierDrag::tbrTiers_OLEDragOver(const QMimeData *data, const QPoint &position) try {
    if (!data->hasText() || !data->text().contains(kBar))
        return false;
    const QString uiid = data->text().section(kBar, 0, 0);
    if (ValueText::isUndefined(mTransformer.GetLabel(uiid)))
        return false;
    for (qint32 button = 1; button <= mButtons.Count(); ++button) {
        const QRect place = mButtons.Place(button);
        if (!spans(place.left(), place.width(), position.x()) || !spans(place.top(), place.height(), position.y()))
            continue;
        if (button == mButtons.Pressed())
            return false;
        mDetails.DragOver(uiid, target(button));
        return true;
    }
    return false;
}
ERROR_TAIL(false)

void TierDrag::tbrTiers_OLEDragDrop(const QMimeData *data, const QPoint &position) try {
    for (qint32 button = 1; button <= mButtons.Count(); ++button) {
        const QRect place = mButtons.Place(button);
        if (!spans(place.left(), place.width(), position.x()))
            continue;
        for (const QString &item : data->text().split(QLatin1Char('~')))
            copyItem(item, button);
        return;
    }
}
ERROR_TAIL()

void TierDrag::copyItem(const QString &item, qint32 button) {
    if (!item.contains(kBar) || item.section(kBar, 1, 1) == QStringLiteral("fldFrame"))
        return;
    const QString uiid = item.section(kBar, 0, 0);
    mDetails.DragOver(uiid, target(button));
    mTransformer.CopyFieldToTier(uiid, mButtons.Key(button));
}
