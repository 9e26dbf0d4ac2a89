#include "language_setup.h"

#include "code_page.h"
#include "common_error_handler.h"
#include "message_style.h"
#include "product_identity.h"
#include "setting.h"
#include "translated_texts.h"
#include "translation.h"
#include "window_services.h"

#include <array>
#include <utility>

namespace {
struct Row {
    const char *name;
    int codePage;       // 0: any
    const char *locale; // of the toolkit's texts
};
constexpr std::array kLanguages{Row{"English", 0, ""}, Row{"French", 1252, "fr"}, Row{"Chinese", 936, "zh_CN"},
                                Row{"Spanish", 1252, "es"}};

const Row *rowOf(qint32 language) {
    return language >= 1 && language <= qint32(kLanguages.size()) ? &kLanguages.at(std::size_t(language - 1)) : nullptr;
}
} // namespace

LanguageSetup::LanguageSetup(Transformer &transformer, Translation &translation, MessageBoxes &boxes,
                             TranslatedTexts &texts, ErrorReport &errors, std::function<void()> showFirstTier)
    : mTransformer(transformer), mTranslation(translation), mBoxes(boxes), mTexts(texts), mErrors(errors),
      mShowFirstTier(std::move(showFirstTier)) {}

bool LanguageSetup::Supported(qint32 language, int codePage) {
    const Row *row = rowOf(language);
    return row != nullptr && (row->codePage == 0 || row->codePage == codePage || codePage == CodePage::kUtf8);
}

QString LanguageSetup::Name(qint32 language) {
    const Row *row = rowOf(language);
    return row == nullptr ? QString() : QString::fromLatin1(row->name);
}

QString LanguageSetup::DictionaryFile() { return TranslationDictionary::StandardFile(); }

bool LanguageSetup::SetupLanguage() try {
    const qint32 language = Setting::integer(mTransformer, QStringLiteral("Language"), 1);
    const bool changed = mTranslation.gLanguage != 0 && language != mTranslation.gLanguage;
    mTranslation.gLanguage = language;
    if (!Supported(language, CodePage::current())) {
        mTranslation.gLanguage = 1;
        mBoxes.MsgBox(QStringLiteral("Your selected language of ") + Name(language) +
                          QStringLiteral(" is not supported.  This application will now operate using the English "
                                         "language."),
                      MessageStyle::kOkOnly, ProductIdentity::title());
    }
    mTranslation.Dictionary().Load(DictionaryFile());
    mTexts.Translate();
    mToolkitTexts.Use(QString::fromLatin1(rowOf(mTranslation.gLanguage)->locale));
    if (changed)
        mShowFirstTier();
    return true;
}
ERROR_TAIL(false)
