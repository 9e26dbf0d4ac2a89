#include "navigator_names.h"

#include "combo_list.h"
#include "transformer.h"
#include "value_text.h"

#include <QStringListModel>

namespace {
const QString kNoPrefix = QStringLiteral("NULL");
}

NavigatorNames::NavigatorNames(ComboList &list) : mList(list), mModel(new QStringListModel(&list)) {
    list.setModel(mModel);
}

void NavigatorNames::Clear() {
    fill({});
    mList.setCurrentIndex(-1);
}

void NavigatorNames::Show(Transformer &component, const QString &guideUIID, const QString &prefix, qint32 position) {
    const QString before = prefix == kNoPrefix ? QString() : prefix + QStringLiteral(": ");
    const qint32 records = guideUIID.isEmpty() ? 0 : component.GetNumberOfRecords(guideUIID);
    QStringList names;
    names.reserve(records);
    for (qint32 record = 1; record <= records; ++record) {
        const QVariant value = component.GetValue(guideUIID, record);
        names.push_back(before + (ValueText::isUndefined(value) ? QString() : ValueText::of(value)));
    }
    fill(names);
    mList.setCurrentIndex(position <= records ? position - 1 : -1);
}

void NavigatorNames::fill(const QStringList &names) {
    if (mModel->stringList() != names)
        mModel->setStringList(names);
}
