#pragma once

#include <QString>

#include <array>

class ErrorReport;
class FormHost;
class FormNodes;
class MainMenu;
class QAction;
class TranslatedTexts;
class Transformer;
struct ProcessValues;

// The four access levels, numbered from 1 (most) to 4 (least), and how they dim the tree.
class AccessLevels {
  public:
    static constexpr qint32 kCount = 4;
    // The English caption of a level; error 9 outside 1 to kCount.
    [[nodiscard]] static QString Caption(qint32 Level);

    AccessLevels(Transformer &transformer, const ProcessValues &process, FormNodes &nodes, const FormHost &host,
                 MainMenu &menu, TranslatedTexts &texts, ErrorReport &errors);

    // Takes the level of the settings.
    void InitialiseAccessLevels();
    void ChangeAccessLevel(qint32 Level);
    // Colours the tree anew after a tier change.
    void ShowFormMenuAccessLevelHighlight();
    // Nothing unless the open form can be left; nothing without a form.
    void mnuAccessLevelOption_Click(qint32 Index);

  private:
    Transformer &mTransformer;
    const ProcessValues &mProcess;
    FormNodes &mNodes;
    const FormHost &mHost;
    ErrorReport &mErrors;
    std::array<QAction *, kCount> mEntries{};
};
