#include "window_title.h"

#include "common_error_handler.h"
#include "product_identity.h"
#include "radio_models.h"
#include "transformer.h"
#include "translation.h"

#include <QWidget>

WindowTitle::WindowTitle(QWidget &window, Transformer &transformer, const Translation &translation, ErrorReport &errors)
    : mWindow(window), mTransformer(transformer), mTranslation(translation), mErrors(errors) {}

void WindowTitle::SetUIFormTitle() try { show(mTransformer.GetFileName()); }
ERROR_TAIL()

void WindowTitle::NameRadio() try {
    if (mTransformer.GetFileName().isEmpty())
        show(RadioModels::RadioName(mTransformer));
}
ERROR_TAIL()

void WindowTitle::show(const QString &data) {
    QString title = data.isEmpty() ? QString() : data + QStringLiteral(" - ");
    title += mTranslation.NLSStr(ProductIdentity::title());
    title += QStringLiteral(" (") + ProductIdentity::shortVersion() + QStringLiteral(")");
    mWindow.setWindowTitle(title);
}
