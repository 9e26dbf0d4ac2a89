#include "help_web_pages.h"

#include "common_error_handler.h"
#include "message_style.h"
#include "product_identity.h"
#include "transformer.h"
#include "window_services.h"

#include <QDesktopServices>
#include <QUrl>

#include <utility>

HelpWebPages::HelpWebPages(Transformer &transformer, MessageBoxes &boxes, ErrorReport &errors,
                           std::function<bool(const QString &)> open)
    : mTransformer(transformer), mBoxes(boxes), mErrors(errors), mOpen(std::move(open)) {
    if (!mOpen)
        mOpen = [](const QString &address) { return QDesktopServices::openUrl(QUrl(address)); };
}

void HelpWebPages::mnuMobilesSupport_Click() try { open(ProductIdentity::supportPage()); }
ERROR_TAIL()

void HelpWebPages::mnuHomePage_Click() try {
    open(mTransformer.GetSetting(QStringLiteral("Website"), ProductIdentity::homePage()).toString());
}
ERROR_TAIL()

void HelpWebPages::open(const QString &address) {
    if (!mOpen(address))
        mBoxes.TranslateMsgBox(QStringLiteral("Unable to launch the default Browser."), MessageStyle::kCritical,
                               QStringLiteral("Error"), QString());
}
