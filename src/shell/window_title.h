#pragma once

class ErrorReport;
class QWidget;
class Transformer;
class Translation;

// The main window's caption: the loaded file, the application's title and its version.
class WindowTitle {
  public:
    WindowTitle(QWidget &window, Transformer &transformer, const Translation &translation, ErrorReport &errors);
    void SetUIFormTitle();

  private:
    QWidget &mWindow;
    Transformer &mTransformer;
    const Translation &mTranslation;
    ErrorReport &mErrors;
};
