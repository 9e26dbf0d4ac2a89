#pragma once

#include <QString>

class ErrorReport;
class MessageBoxes;
class ProcessControl;
class Translation;

// The end of the program when a component is missing: one box, then the process ends with exit code 1.
class LoadFailure {
  public:
    LoadFailure(MessageBoxes &boxes, const Translation &translation, ProcessControl &processControl,
                ErrorReport &errors);
    // The name is not shown. The box is a plain one as long as no dictionary is open.
    void FailedToLoadDLL(const QString &DllName);

  private:
    MessageBoxes &mBoxes;
    const Translation &mTranslation;
    ProcessControl &mProcessControl;
    ErrorReport &mErrors;
};
