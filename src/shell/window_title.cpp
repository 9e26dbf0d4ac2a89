#include "window_title.h"

#include "common_error_handler.h"
#include "product_identity.h"
#include "radio_models.h"
#include "transformer.h"
#include "translation.h"

#include <QWidget>

WindowTitle::WindowTitle(QWidget &window, Transformer &transformer, const Translation &translation, ErrorReport &errors)
    : mWindow(window), mTransformer(transformer), mTranslation(translation), mErrors(errors) {}

void WindowTitle::SetUIFormTitle() try {
    const QString file = mTransformer.GetFileName();
    const QString data = file.isEmpty() ? RadioModels::RadioName(mTransformer) : file;
    QString title = data.isEmpty() ? QString() : data + QStringLiteral(" - ");
    title += mTranslation.NLSStr(ProductIdentity::title());
    title += QStringLiteral(" (") + ProductIdentity::shortVersion() + QStringLiteral(")");
    mWindow.setWindowTitle(title);
}
ERROR_TAIL()
