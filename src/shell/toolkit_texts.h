#pragma once

#include <QString>

#include <memory>

class QTranslator;

// The toolkit's own texts in the program's language: file and print dialogs, context menus of text boxes.
class ToolkitTexts {
  public:
    ToolkitTexts();
    ~ToolkitTexts();
    Q_DISABLE_COPY_MOVE(ToolkitTexts)

    // locale: "fr", "" for English. Where the toolkit's translation is not installed, its texts are English. In any
    // case all windows get a LanguageChange event.
    void Use(const QString &locale);

  private:
    std::unique_ptr<QTranslator> mTranslator;
};
