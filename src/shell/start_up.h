#pragma once

#include "shell_ports.h"
#include "transformer_events.h"

class AccessLevels;
class BusyPointer;
class CommandLine;
class ErrorReport;
class FormHost;
class LanguageSetup;
class LoadFailure;
class MainMenu;
class MessageBoxes;
class TierButtons;
class Tiers;
class Transformer;

// How the main window comes to life.
class StartUp {
  public:
    struct Parts {
        CommandLine &commandLine;
        LoadFailure &loadFailure;
        LanguageSetup &language;
        AccessLevels &levels;
        Tiers &tiers;
        TierButtons &tierButtons;
        FormHost &host;
        MainMenu &menu;
        BusyPointer &pointer;
        StartUpDocuments &documents;
        SplashWindow &splash;
        ProcessControl &processControl;
        MessageBoxes &boxes;
        TransformerEvents &events;
    };
    StartUp(Transformer &transformer, const Parts &parts, ErrorReport &errors);

    void Form_Initialize();
    void Form_Load();

    // Reads the settings of how forms look; true if the alignment of labels has changed.
    bool ReadAppearance();
    [[nodiscard]] qint32 TextAlignment() const { return mTextAlignment; }
    // Prefix of a form's class identifier.
    [[nodiscard]] const QString &ProjectName() const { return mProjectName; }
    void ProjectName(const QString &name) { mProjectName = name; }

  private:
    void prepareWindow();
    void showMenusOfData();
    void openFirstForm();
    bool LoadRestrictedAccess();
    void reportFileNotOpened();

    Transformer &mTransformer;
    Parts mParts;
    ErrorReport &mErrors;
    qint32 mTextAlignment = 1;
    qint32 mTierTree = 0; // read and kept; nothing depends on it
    QString mProjectName;
};
