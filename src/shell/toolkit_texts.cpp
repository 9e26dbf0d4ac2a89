#include "toolkit_texts.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLibraryInfo>
#include <QTranslator>

ToolkitTexts::ToolkitTexts() = default;
ToolkitTexts::~ToolkitTexts() = default;

void ToolkitTexts::Use(const QString &locale) {
    mTranslator = std::make_unique<QTranslator>(); // the one before takes its texts away
    const bool found = !locale.isEmpty() && mTranslator->load(QStringLiteral("qtbase_") + locale,
                                                              QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (found && QCoreApplication::installTranslator(mTranslator.get()))
        return; // which sends the event
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
}
