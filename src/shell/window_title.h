#pragma once

class ErrorReport;
class QString;
class QWidget;
class Transformer;
class Translation;

// The main window's caption: the loaded file, the application's title and its version.
class WindowTitle {
  public:
    WindowTitle(QWidget &window, Transformer &transformer, const Translation &translation, ErrorReport &errors);
    void SetUIFormTitle();
    // Names the radio where the present data come from one and from no file, until the next SetUIFormTitle.
    void NameRadio();

  private:
    void show(const QString &data);

    QWidget &mWindow;
    Transformer &mTransformer;
    const Translation &mTranslation;
    ErrorReport &mErrors;
};
