#include "component_dialogs.h"

#include "busy_pointer.h"
#include "common_error_handler.h"
#include "message_style.h"
#include "product_identity.h"
#include "setting.h"
#include "translation.h"
#include "window_services.h"

#include <QWidget>

ComponentDialogs::ComponentDialogs(Transformer &transformer, MessageBoxes &boxes, const Translation &translation,
                                   const BusyPointer &pointer, QWidget &window, ErrorReport &errors)
    : mTransformer(transformer), mBoxes(boxes), mTranslation(translation), mPointer(pointer), mWindow(window),
      mErrors(errors) {}

void ComponentDialogs::MsgBox(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                              const QString &strParameters) try {
    if (mSilentMode) {
        Answer = MessageAnswer::kYes;
        return;
    }
    const ArrowGuard arrow(mPointer);
    mWindow.repaint();
    const QString caption =
        mTranslation.NLSStr(ProductIdentity::title()) + QStringLiteral(" ") + mTranslation.NLSStr(Title);
    Answer = mBoxes.TranslateMsgBox(Prompt, Buttons, caption, strParameters);
    mWindow.repaint();
}
ERROR_TAIL_AS("TransformerEvents_MsgBox")

void ComponentDialogs::GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                                     const QString &strParameters) try {
    const ArrowGuard arrow(mPointer);
    if (Setting::integer(mTransformer, QStringLiteral("GeneralDialogs"), 1) == 1)
        Answer = mBoxes.TranslateMsgBox(Prompt, Buttons, Title, strParameters);
    else
        Answer = MessageAnswer::kYes;
}
ERROR_TAIL_AS("TransformerEvents_GeneralDialog")
