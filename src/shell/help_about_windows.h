#pragma once

#include "frm_about.h"

class ErrorReport;
class MainMenu;
class QWidget;
class Transformer;
class Translation;

// Shows About and Credits, both modal.
class HelpAboutWindows {
  public:
    HelpAboutWindows(Transformer &transformer, const Translation &translation, const MainMenu &menu, QWidget &window,
                     ErrorReport &errors);

    void mnuAbout_Click();
    void ShowCredits();
    [[nodiscard]] frmAbout::Facts AboutFacts() const;
    // "name - version" of the program and of the plug-ins beside it, then of what they stand on.
    [[nodiscard]] QStringList FileVersions() const;

  private:
    // Caption of the checked access level, without "&".
    [[nodiscard]] QString accessLevel() const;

    Transformer &mTransformer;
    const Translation &mTranslation;
    const MainMenu &mMenu;
    QWidget &mWindow;
    ErrorReport &mErrors;
};
