#include "tiers.h"

#include "access_levels.h"
#include "common_error_handler.h"
#include "features_menu.h"
#include "filter_tabs.h"
#include "form_host.h"
#include "green_ticks.h"
#include "help_file_name.h"
#include "load_failure.h"
#include "main_menu.h"
#include "pane_layout.h"
#include "shell_ports.h"
#include "status_panels.h"
#include "tier_buttons.h"
#include "transformer.h"
#include "translation.h"
#include "tree_navigation.h"
#include "user_events.h"
#include "window_title.h"

#include <QAction>
#include <QMenu>
#include <QTabBar>

#include <utility>

namespace {
QString cutField(QString &text) {
    const qsizetype bar = text.indexOf(QLatin1Char('|'));
    return bar < 0 ? std::exchange(text, QString()) : std::exchange(text, text.mid(bar + 1)).left(bar);
}
} // namespace

Tiers::Tiers(Transformer &transformer, const Translation &translation, const Parts &parts, ErrorReport &errors)
    : mTransformer(transformer), mTranslation(translation), mParts(parts), mErrors(errors) {
    mParts.buttons.SetClicked([this](qint32 button) { tbrTiers_ButtonClick(button); });
}

void Tiers::EnableTiers(const QString &tiers) try {
    TierButtons &buttons = mParts.buttons;
    buttons.Clear();
    mParts.menu.Menu(QStringLiteral("mnuModel")).clear();
    QString rest = tiers;
    while (!rest.isEmpty()) {
        cutField(rest);
        const QString caption = cutField(rest);
        const QString key = cutField(rest);
        buttons.Add(key, caption + QStringLiteral("   "));
        addMenuEntry(buttons.Count(), caption, key);
    }
    ShowToolTips();
}
ERROR_TAIL()

void Tiers::ShowToolTips() {
    TierButtons &buttons = mParts.buttons;
    for (qint32 button = 1; button <= buttons.Count(); ++button)
        buttons.SetToolTip(button, mTranslation.NLSFmt(QStringLiteral("Switch to the %0:S radio model"),
                                                       buttons.Caption(button).trimmed()));
}

void Tiers::addMenuEntry(qint32 index, const QString &caption, const QString &key) {
    QMenu &menu = mParts.menu.Menu(QStringLiteral("mnuModel"));
    QAction *entry = menu.addAction(QString(caption).replace(QLatin1Char('&'), QStringLiteral("&&")));
    entry->setObjectName(QStringLiteral("mnuItemsModel(%1)").arg(index));
    entry->setData(key);
    QObject::connect(entry, &QAction::triggered, &menu, [this, key] { mnuItemsModel_Click(key); });
}

void Tiers::mnuItemsModel_Click(const QString &TierKey) try {
    tbrTiers_ButtonClick(mParts.buttons.IndexOfKey(TierKey));
}
ERROR_TAIL()

void Tiers::tbrTiers_ButtonClick(qint32 Button) try {
    const QString key = mParts.buttons.Key(Button);
    mParts.nodes.SetFocus();
    if (mParts.host.IsFormLoaded() && !mParts.host.SaveForm()) {
        mParts.buttons.Press(mParts.buttons.IndexOfKey(mTransformer.GetCurrentTier()));
        return;
    }
    switchTo(key);
}
ERROR_TAIL()

void Tiers::switchTo(const QString &key) {
    const DisabledUserEventsGuard disabled(mParts.userEvents);
    mTransformer.ChangeTier(key);
    if (mTransformer.GetLoadFailed())
        mParts.loadFailure.FailedToLoadDLL(QStringLiteral("Provider.dll"));
    mParts.navigation.OpenCurrentForm();
}

void Tiers::ChangeToTier(const QString &TierKey, const FormLists &lists, bool &Result) try {
    Result = false;
    mTransformer.SaveSetting(QStringLiteral("Helpfile"),
                             mTranslation.NLSStr(HelpFileName::compiled(mTransformer.GetRadioModel())));
    if (const qint32 button = mParts.buttons.IndexOfKey(TierKey))
        mParts.buttons.Press(button);
    mParts.filterTabs.UpdateTreeFilterTab();
    mParts.filterTabs.Strip().hide();
    mParts.features.DeleteDynamicMenu();
    mParts.menu.SetVisible(QStringLiteral("mnuFeature"), false);
    mParts.nodes.UpdateTreeItems(lists, QString());
    mParts.navigation.ChangeFormTreeNodes(false, false);
    mParts.levels.ShowFormMenuAccessLevelHighlight();
    mParts.title.SetUIFormTitle();
    mParts.panels.Show(StatusPanels::kDatabaseVersion, mTranslation.NLSStr(QStringLiteral("Database Version")) +
                                                           QStringLiteral(": ") + mTransformer.GetDatabaseVersion());
    mParts.ticks.SetTierNodeGreenTick(true);
    mParts.documents.SaveMRUItem();
    mParts.menu.SetEnabled(QStringLiteral("mnuDownload"), true);
    mParts.menu.SetVisible(QStringLiteral("mnuProgramAs"), false);
    mParts.layout.Form_Resize();
    Result = true;
}
ERROR_TAIL_AS("TransformerEvents_ChangeToTier")
