#pragma once

#include "form_nodes.h"

#include <QString>

class AccessLevels;
class ErrorReport;
class FeaturesMenu;
class FilterTabs;
class FormHost;
class GreenTicks;
class LoadFailure;
class MainMenu;
class PaneLayout;
class StartUpDocuments;
class StatusPanels;
class TierButtons;
class Transformer;
class Translation;
class TreeNavigation;
class UserEvents;
class WindowTitle;

// The tiers of the component: buttons, menu entries, and the change from one to another.
class Tiers {
  public:
    struct Parts {
        TierButtons &buttons;
        MainMenu &menu;
        FeaturesMenu &features;
        FilterTabs &filterTabs;
        FormNodes &nodes;
        FormHost &host;
        TreeNavigation &navigation;
        PaneLayout &layout;
        AccessLevels &levels;
        GreenTicks &ticks;
        WindowTitle &title;
        StatusPanels &panels;
        UserEvents &userEvents;
        LoadFailure &loadFailure;
        StartUpDocuments &documents;
    };
    Tiers(Transformer &transformer, const Translation &translation, const Parts &parts, ErrorReport &errors);

    // tiers: three fields a tier (unused, caption, key), each closed by "|" but for the very last.
    void EnableTiers(const QString &tiers);
    // In the present language.
    void ShowToolTips();
    // Button: from 1; raises error 35600 out of bounds.
    void tbrTiers_ButtonClick(qint32 Button);
    void mnuItemsModel_Click(const QString &TierKey);
    // Shows the tier; Result true on success.
    void ChangeToTier(const QString &TierKey, const FormLists &lists, bool &Result);

  private:
    void addMenuEntry(qint32 index, const QString &caption, const QString &key);
    void switchTo(const QString &key);

    Transformer &mTransformer;
    const Translation &mTranslation;
    Parts mParts;
    ErrorReport &mErrors;
};
