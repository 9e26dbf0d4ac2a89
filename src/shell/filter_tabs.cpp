#include "filter_tabs.h"

#include "common_error_handler.h"
#include "transformer.h"
#include "translation.h"

#include <QScopedValueRollback>
#include <QTabBar>

FilterTabs::FilterTabs(QWidget *parent, Transformer &transformer, const Translation &translation, ErrorReport &errors)
    : mStrip(new QTabBar(parent)), mTransformer(transformer), mTranslation(translation), mErrors(errors) {
    mStrip->setObjectName(QStringLiteral("tabTreeFilter"));
    mStrip->setAccessibleName(QStringLiteral("Tree filter"));
    mStrip->setShape(QTabBar::RoundedWest);
    mStrip->hide();
    QObject::connect(mStrip, &QTabBar::currentChanged, mStrip, [this] {
        if (!mByCode && mClicked)
            mClicked();
    });
}

void FilterTabs::SetClicked(std::function<void()> clicked) { mClicked = std::move(clicked); }

void FilterTabs::UpdateTreeFilterTab() try {
    const QScopedValueRollback byCode(mByCode, true);
    while (mStrip->count() > 0)
        mStrip->removeTab(0);
    QStringList names;
    QHash<QString, QString> toolTips;
    FormLists lists;
    mTransformer.GetTreeFilterTabs(names, toolTips, lists.formList, lists.formDescList, lists.formAccessLevels,
                                   lists.formNetworks, lists.formTypeList);
    for (const QString &name : names) {
        const int tab = mStrip->addTab(tickIcon(TickImage::White), mTranslation.NLSStr(name));
        mStrip->setTabData(tab, name);
        mStrip->setTabToolTip(tab, mTranslation.NLSStr(toolTips.value(name)).toHtmlEscaped());
    }
    constexpr int kGap = 2; // 35 twips
    if (mStrip->count() > 0)
        mStrip->setFixedHeight((mStrip->tabRect(0).height() + kGap) * mStrip->count());
}
ERROR_TAIL()

FormLists FilterTabs::Lists() const {
    QStringList names;
    QHash<QString, QString> toolTips;
    FormLists lists;
    mTransformer.GetTreeFilterTabs(names, toolTips, lists.formList, lists.formDescList, lists.formAccessLevels,
                                   lists.formNetworks, lists.formTypeList);
    return lists;
}

qint32 FilterTabs::Count() const { return mStrip->count(); }
qint32 FilterTabs::Selected() const { return mStrip->currentIndex() + 1; }

void FilterTabs::Select(qint32 index) {
    const QScopedValueRollback byCode(mByCode, true);
    mStrip->setCurrentIndex(index - 1);
}

QString FilterTabs::CurrentFormType() const { return mStrip->tabData(mStrip->currentIndex()).toString(); }

void FilterTabs::SetImages(TickImage image) {
    for (int tab = 0; tab < mStrip->count(); ++tab)
        mStrip->setTabIcon(tab, tickIcon(image));
}
