#include "unseen_grid.h"

#include "process_values.h"
#include "string_utilities.h"
#include "transformer.h"
#include "translation.h"
#include "window_services.h"

namespace {
// Items of a column's description: format, UIID, width, type, locked flag.
constexpr qsizetype kItemsOfAColumn = 5;
constexpr qsizetype kUiidItem = 1;
} // namespace

UnseenGrid::UnseenGrid(const ControlDefinition &definition, HostControl *container, qint32 tabIndex,
                       const FieldServices &services)
    : UnseenField(definition, container, tabIndex), mServices(services), mDynamic(property("Dynamic").toBool()) {}

void UnseenGrid::Igrid_SetColumns() {
    const QStringList items = property("Fields").toString().split(u'|');
    mUIIDs.clear();
    for (qsizetype item = kUiidItem; item < items.size(); item += kItemsOfAColumn) {
        if (!mServices.process.objTransformer->GetLabel(items.at(item)).isEmpty())
            mUIIDs << items.at(item);
    }
}

QStringList UnseenGrid::Igrid_GetHeader() const {
    Transformer &component = *mServices.process.objTransformer;
    QStringList heads;
    for (const QString &uiid : mUIIDs) {
        const QString label = mServices.translation.NLSStr(component.GetLabel(uiid));
        heads << u' ' + LeftPadString(label, u' ', component.GetUIWidth(uiid));
    }
    return heads;
}
