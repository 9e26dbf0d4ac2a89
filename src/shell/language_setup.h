#pragma once

#include "toolkit_texts.h"

#include <QString>

#include <functional>

class ErrorReport;
class MessageBoxes;
class Transformer;
class TranslatedTexts;
class Translation;

// The language of the program, the toolkit's own texts included, from the setting "Language": 1 English, 2 French, 3
// Chinese, 4 Spanish.
class LanguageSetup {
  public:
    // showFirstTier runs when the language has changed while the window stands.
    LanguageSetup(Transformer &transformer, Translation &translation, MessageBoxes &boxes, TranslatedTexts &texts,
                  ErrorReport &errors, std::function<void()> showFirstTier);

    // True in every case that ends normally. An unsupported language gives English and a message.
    bool SetupLanguage();
    // 65001 supports every language of the table.
    [[nodiscard]] static bool Supported(qint32 language, int codePage);
    // "" outside the table.
    [[nodiscard]] static QString Name(qint32 language);
    // KX4600.mld in the program's folder, else in ../share/kx4600 beside it.
    [[nodiscard]] static QString DictionaryFile();

  private:
    Transformer &mTransformer;
    Translation &mTranslation;
    MessageBoxes &mBoxes;
    TranslatedTexts &mTexts;
    ErrorReport &mErrors;
    std::function<void()> mShowFirstTier;
    ToolkitTexts mToolkitTexts;
};
