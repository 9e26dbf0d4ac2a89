#pragma once

class ErrorReport;
class FormTreeWidget;
class QString;
class QWidget;
class Transformer;
class Translation;

// The main window's caption: the loaded file, the application's title and its version. Data that were read from a radio
// bear its name there and over the form tree.
class WindowTitle {
  public:
    WindowTitle(QWidget &window, FormTreeWidget &tree, Transformer &transformer, const Translation &translation,
                ErrorReport &errors);
    void SetUIFormTitle();
    // Names the radio, over the tree with the present time, where the data come from one and from no file, until the
    // next SetUIFormTitle.
    void NameRadio();

  private:
    void show(const QString &data);

    QWidget &mWindow;
    FormTreeWidget &mTree;
    Transformer &mTransformer;
    const Translation &mTranslation;
    ErrorReport &mErrors;
};
