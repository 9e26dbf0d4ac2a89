#include "window_title.h"

#include "common_error_handler.h"
#include "form_tree_widget.h"
#include "product_identity.h"
#include "radio_models.h"
#include "transformer.h"
#include "translation.h"

#include <QTime>
#include <QWidget>

WindowTitle::WindowTitle(QWidget &window, FormTreeWidget &tree, Transformer &transformer,
                         const Translation &translation, ErrorReport &errors)
    : mWindow(window), mTree(tree), mTransformer(transformer), mTranslation(translation), mErrors(errors) {}

void WindowTitle::SetUIFormTitle() try {
    mTree.SetHeading(QString());
    show(mTransformer.GetFileName());
}
ERROR_TAIL()

void WindowTitle::NameRadio() try {
    const QString radio = RadioModels::RadioName(mTransformer);
    if (radio.isEmpty() || !mTransformer.GetFileName().isEmpty())
        return;
    show(radio);
    mTree.SetHeading(radio + QStringLiteral(", ") + QTime::currentTime().toString(QStringLiteral("hh:mm:ss")));
}
ERROR_TAIL()

void WindowTitle::show(const QString &data) {
    QString title = data.isEmpty() ? QString() : data + QStringLiteral(" - ");
    title += mTranslation.NLSStr(ProductIdentity::title());
    title += QStringLiteral(" (") + ProductIdentity::shortVersion() + QStringLiteral(")");
    mWindow.setWindowTitle(title);
}
