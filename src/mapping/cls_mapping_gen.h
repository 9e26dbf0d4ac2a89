#pragma once

#include "mapping_replay.h"
#include "mapping_script.h"
#include "mapping_script_reader.h"

#include <functional>

class ErrorReport;
class QPlainTextEdit;
class Transformer;

// A script of user actions: it records lines, reads and writes script files, and replays them on the component.
class clsMappingGen {
  public:
    // freshStart: what the main window does for a reset. All outlive it.
    clsMappingGen(Transformer &transformer, MessageBoxes &boxes, const Translation &translation, ErrorReport &errors,
                  std::function<void()> freshStart);

    // Reads a script and replays it with its initial states, so that the tester starts from the recorded state.
    // blnLoadInitialStateFieldsOnly: the replay after the reset is left out. False if a file could not be opened.
    bool FileLoad(const QString &FileName, bool blnLoadInitialStateFieldsOnly);
    void InitialStateFile(const QString &FileName) { mScript.initialStateFile = FileName; }
    [[nodiscard]] QStringList &UIFields() { return mScript.uiFields; }
    // Forgets everything, and a fresh start for the main window.
    void ResetToDefaults();
    // Writes the script with a new list of database fields. False if the file cannot be written; nothing is then kept.
    bool FileSave(const QString &FileName);
    [[nodiscard]] const QString &InitialStateFile() const { return mScript.initialStateFile; }
    // The lines of the script file.
    [[nodiscard]] QStringList UICollection();
    void ClearDetails();
    // blnInitialStates: as an initial state of the present script, else in its place.
    bool ReadFile(const QString &FileName, bool blnInitialStates);
    // blnInitialStates: all fields with those of the initial states, else the script's own.
    void ExecuteFields(bool blnInitialStates);
    // The text before the first blank.
    [[nodiscard]] static QString UIFieldCode(const QString &Line);
    [[nodiscard]] const QStringList &DatabaseFields() const { return mScript.databaseFields; }
    [[nodiscard]] QStringList &Comments() { return mScript.comments; }
    static void GetAsTextBox(QPlainTextEdit &Box, const QStringList &Lines);

  private:
    Transformer &mTransformer;
    ErrorReport &mErrors;
    std::function<void()> mFreshStart;
    MappingScript mScript;
    MappingScriptReader mReader;
    MappingReplay mReplay;
};
