#include "talk_to_radio.h"

#include "common_error_handler.h"
#include "message_style.h"
#include "product_identity.h"
#include "radio_models.h"
#include "transformer.h"

#include <QScopedValueRollback>

#include <utility>

namespace {
const QString kCalibrationForm = QStringLiteral("usrctlCalSpecifications");
} // namespace

clsTalkToRadio::clsTalkToRadio(ProcessValues &process, DocumentShell &shell, MessageBoxes &boxes, ErrorReport &errors,
                               ProgressWindow progressWindow)
    : mProcess(process), mShell(shell), mBoxes(boxes), mErrors(errors), mProgressWindow(std::move(progressWindow)) {}

void clsTalkToRadio::mnuInterrogateRadio_Click() { TalkToRadio(InterrogationType::kInterrogate); }
void clsTalkToRadio::mnuRead_Click() { TalkToRadio(InterrogationType::kRead); }
void clsTalkToRadio::mnuProgram_Click() { TalkToRadio(InterrogationType::kProgram); }

void clsTalkToRadio::TalkToRadio(InterrogationType type) try {
    if (mRunning)
        return;
    const QScopedValueRollback running(mRunning, true);
    if (!prepare(type))
        return;
    Transformer &transformer = *mProcess.objTransformer;
    if (RadioModels::IsCalibration(transformer.GetRadioModel()))
        openCalibrationForm(type != InterrogationType::kRead);
    const bool read = mProgressWindow(type);
    if (mProcess.objTransformer == nullptr)
        return;
    if (read)
        mShell.NameRadio();
    if (mProcess.objTransformer->GetLoadFailed())
        mShell.FailedToLoadDLL(QStringLiteral("VornComms/Ttimer1.exe"));
}
ERROR_TAIL()

bool clsTalkToRadio::prepare(InterrogationType type) {
    switch (type) {
    case InterrogationType::kInterrogate:
        return true;
    case InterrogationType::kRead: {
        const bool asks = mShell.IsFormLoaded() && mProcess.objTransformer->GetFormIsDirty();
        if (asks && mBoxes.TranslateMsgBox(
                        QStringLiteral("This form has outstanding changes.  If you proceed these changes may be lost.  "
                                       "Do you wish to proceed?"),
                        MessageStyle::kYesNo + MessageStyle::kExclamation, ProductIdentity::title(),
                        QString()) != MessageAnswer::kYes)
            return false;
        mShell.FocusFormTree();
        return mShell.SaveForm();
    }
    case InterrogationType::kProgram:
        if (!mShell.SaveForm())
            return false;
        mShell.SetTierNodeGreenTick(true);
        return true;
    }
    return false;
}

void clsTalkToRadio::openCalibrationForm(bool reload) {
    const QString key = kCalibrationForm.toUpper();
    if (mProcess.objTransformer->GetFormAvailable(key, mShell.NodeText(1)))
        mShell.OpenForm(kCalibrationForm, QStringLiteral("Specifications"), reload);
    mShell.SelectNode(1);
    mProcess.objTransformer->SetCurrentFormName(key);
}
