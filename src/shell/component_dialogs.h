#pragma once

#include <QString>

class BusyPointer;
class ErrorReport;
class MessageBoxes;
class QWidget;
class Transformer;
class Translation;

// The boxes that the component asks for, and the shell's own questions that the user can switch off.
class ComponentDialogs {
  public:
    // window is repainted before and after a box, so that no ghost of the box stays during a long operation.
    ComponentDialogs(Transformer &transformer, MessageBoxes &boxes, const Translation &translation,
                     const BusyPointer &pointer, QWidget &window, ErrorReport &errors);

    // Silent: nothing shows and the answer is 6.
    void MsgBox(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                const QString &strParameters);
    // Shows only with the setting GeneralDialogs at 1, else the answer is 6.
    void GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                       const QString &strParameters);

    [[nodiscard]] bool SilentMode() const { return mSilentMode; }
    void SilentMode(bool silent) { mSilentMode = silent; }

  private:
    Transformer &mTransformer;
    MessageBoxes &mBoxes;
    const Translation &mTranslation;
    const BusyPointer &mPointer;
    QWidget &mWindow;
    ErrorReport &mErrors;
    bool mSilentMode = false;
};
