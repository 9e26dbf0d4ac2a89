#pragma once

#include <functional>

class AccessLevels;
class ErrorReport;
class FormHost;
class LanguageSetup;
class PaneLayout;
class StartUp;
class Transformer;
class Translation;
class TreeNavigation;

// The command that opens the preferences, and what follows from them at once.
class PreferencesCommand {
  public:
    struct Parts {
        FormHost &host;
        StartUp &startUp;
        TreeNavigation &navigation;
        PaneLayout &layout;
        AccessLevels &levels;
        LanguageSetup &language;
    };
    // showWindow shows the window and returns when it has closed.
    PreferencesCommand(Transformer &transformer, const Translation &translation, const Parts &parts,
                       ErrorReport &errors, std::function<void()> showWindow);

    // Nothing unless the open form can be saved.
    void mnuOptions_Click();

  private:
    Transformer &mTransformer;
    const Translation &mTranslation;
    Parts mParts;
    ErrorReport &mErrors;
    std::function<void()> mShowWindow;
};
