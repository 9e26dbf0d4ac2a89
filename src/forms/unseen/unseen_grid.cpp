#include "unseen_grid.h"

#include "combo_column.h"
#include "process_values.h"
#include "string_utilities.h"
#include "transformer.h"
#include "translation.h"
#include "window_services.h"

namespace {
// Items of a column's description: format, UIID, width, type, locked flag.
constexpr qsizetype kItemsOfAColumn = 5;
constexpr qsizetype kUiidItem = 1;
constexpr qsizetype kTypeItem = 3;
} // namespace

UnseenGrid::UnseenGrid(const ControlDefinition &definition, HostControl *container, qint32 tabIndex,
                       const FieldServices &services)
    : UnseenField(definition, container, tabIndex), mServices(services), mDynamic(property("Dynamic").toBool()) {}

void UnseenGrid::Igrid_SetColumns() {
    const QStringList items = property("Fields").toString().split(u'|');
    mUIIDs.clear();
    mComboColumns.clear();
    for (qsizetype item = kUiidItem; item < items.size(); item += kItemsOfAColumn) {
        if (items.value(item + kTypeItem - kUiidItem) == QStringLiteral("Combo"))
            mComboColumns.push_back(qint32(mUIIDs.size()));
        mUIIDs << items.at(item);
    }
}

void UnseenGrid::Igrid_Rebind(bool /*Dynamic*/) {
    Transformer &component = *mServices.process.objTransformer;
    for (const qint32 column : mComboColumns) {
        const QString uiid = mUIIDs.at(column);
        comboColumnToUI(mRows, column, component.GetIsComboIndex(uiid),
                        [&](qint32 record, XArrayDB &items, qint32 &scope) {
                            component.GetComboItems(uiid, record, items, scope);
                        });
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
