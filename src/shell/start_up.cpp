#include "start_up.h"

#include "access_levels.h"
#include "busy_pointer.h"
#include "command_line.h"
#include "common_error_handler.h"
#include "form_host.h"
#include "language_setup.h"
#include "load_failure.h"
#include "main_menu.h"
#include "message_style.h"
#include "pending_events.h"
#include "product_identity.h"
#include "setting.h"
#include "tier_buttons.h"
#include "tiers.h"
#include "transformer.h"
#include "window_services.h"

#include <array>
#include <utility>

namespace {
bool isDataFile(const QString &fileName) {
    static const std::array<QString, 5> kExtensions{QStringLiteral("DAT"), QStringLiteral("K4P"), QStringLiteral("K4C"),
                                                    QStringLiteral("Z2P"), QStringLiteral("Z2C")};
    return std::find(kExtensions.begin(), kExtensions.end(), fileName.right(3).toUpper()) != kExtensions.end();
}
} // namespace

StartUp::StartUp(Transformer &transformer, const Parts &parts, ErrorReport &errors)
    : mTransformer(transformer), mParts(parts), mErrors(errors) {}

void StartUp::Form_Initialize() try {
    if (mTransformer.GetLoadFailed())
        mParts.loadFailure.FailedToLoadDLL(QStringLiteral("Transformer.dll"));
    mTransformer.AddListener(&mParts.events);
    mParts.commandLine.GetProgramParameters();
    mTransformer.SetCallerVersion(ProductIdentity::callerVersion());
    if (mTransformer.GetLoadFailed())
        mParts.loadFailure.FailedToLoadDLL(QStringLiteral("Dat file"));
    ReadAppearance();
}
ERROR_TAIL()

bool StartUp::ReadAppearance() {
    const qint32 alignment = Setting::integer(mTransformer, QStringLiteral("TextAlignment"), 1);
    mTierTree = Setting::integer(mTransformer, QStringLiteral("TierTree"), 0);
    return std::exchange(mTextAlignment, alignment) != alignment;
}

void StartUp::Form_Load() try {
    prepareWindow();
    mTransformer.StartUp();
    showMenusOfData();
    mParts.menu.SetVisible(QStringLiteral("mnuMappingsGen"), false);
    openFirstForm();
    mParts.menu.SetVisible(QStringLiteral("mnuFindField"), false);
    mParts.documents.InitialiseMRU();
    mParts.splash.UnloadSplash();
}
ERROR_TAIL()

void StartUp::prepareWindow() {
    const HourglassGuard hourglass(mParts.pointer);
    mParts.levels.InitialiseAccessLevels();
    mParts.language.SetupLanguage();
    mProjectName = QStringLiteral("UI_") + ProductIdentity::tag();
    if (Setting::integer(mTransformer, QStringLiteral("GeneralDialogs"), 1) == 1) {
        mParts.splash.ShowSplash();
        letPendingEventsRun();
    }
    mParts.tiers.EnableTiers(mTransformer.InitialiseDatabase());
}

void StartUp::showMenusOfData() {
    const HourglassGuard hourglass(mParts.pointer);
    mParts.menu.SetVisible(QStringLiteral("mnuSquirt"), mTransformer.GetSquirtAvailable());
    mParts.menu.SetVisible(QStringLiteral("mnuDatabase"), false);
    if (mTransformer.GetProgramAsAvailable())
        return;
    mParts.menu.SetVisible(QStringLiteral("mnuProgramAs"), false);
    mParts.splash.RepaintSplash();
    constexpr int kMilliseconds = 1000;
    mParts.processControl.Pause(kMilliseconds);
}

void StartUp::openFirstForm() {
    if (mParts.host.IsFormLoaded()) {
        reportFileNotOpened();
        return;
    }
    if (LoadRestrictedAccess())
        return;
    mParts.tierButtons.Press(1);
    mParts.tiers.tbrTiers_ButtonClick(1);
}

bool StartUp::LoadRestrictedAccess() try {
    const QString &fileName = mParts.commandLine.FileName();
    if (!fileName.isEmpty()) {
        const HourglassGuard hourglass(mParts.pointer);
        if (isDataFile(fileName))
            mParts.documents.RequestReadFile(fileName);
    }
    return mParts.host.IsFormLoaded();
}
ERROR_TAIL(false)

// The user has taken recovered work instead.
void StartUp::reportFileNotOpened() {
    if (mParts.commandLine.FileName().isEmpty())
        return;
    mParts.boxes.TranslateMsgBox(QStringLiteral("%0:S was not opened, because recovered work has been loaded."),
                                 MessageStyle::kExclamation, QString(), mParts.commandLine.FileName());
}
