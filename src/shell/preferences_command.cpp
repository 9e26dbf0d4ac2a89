#include "preferences_command.h"

#include "access_levels.h"
#include "common_error_handler.h"
#include "form_host.h"
#include "language_setup.h"
#include "pane_layout.h"
#include "setting.h"
#include "start_up.h"
#include "translation.h"
#include "tree_navigation.h"

#include <utility>

PreferencesCommand::PreferencesCommand(Transformer &transformer, const Translation &translation, const Parts &parts,
                                       ErrorReport &errors, std::function<void()> showWindow)
    : mTransformer(transformer), mTranslation(translation), mParts(parts), mErrors(errors),
      mShowWindow(std::move(showWindow)) {}

void PreferencesCommand::mnuOptions_Click() try {
    if (!mParts.host.SaveForm())
        return;
    mShowWindow();
    if (mParts.startUp.ReadAppearance()) {
        mParts.navigation.ChangeFormTreeNodes(true, true);
        mParts.layout.Form_Resize();
    }
    mParts.levels.InitialiseAccessLevels();
    if (Setting::integer(mTransformer, QStringLiteral("Language"), 1) != mTranslation.gLanguage)
        mParts.language.SetupLanguage();
}
ERROR_TAIL()
