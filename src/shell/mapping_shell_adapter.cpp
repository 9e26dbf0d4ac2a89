#include "mapping_shell_adapter.h"

#include "common_error_handler.h"
#include "form_host.h"
#include "frm_mapping_gen.h"
#include "ienabler.h"
#include "process_values.h"
#include "transformer.h"

#include <QFileDialog>

#include <utility>

namespace {
// "label (*.ext)|*.ext|..." as the dialog takes it: "label (*.ext);;...". "*.*" would hide names without a point.
QStringList nameFilters(const QString &filter) {
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype place = 0; place + 1 < parts.size(); place += 2)
        filters << QString(parts.at(place)).replace(QStringLiteral("*.*"), QStringLiteral("*"));
    return filters;
}
} // namespace

MappingShellAdapter::MappingShellAdapter(const ProcessValues &process, MessageBoxes &boxes,
                                         const Translation &translation, ErrorReport &errors, Parts parts)
    : mProcess(process), mBoxes(boxes), mTranslation(translation), mErrors(errors), mParts(std::move(parts)) {}

MappingShellAdapter::~MappingShellAdapter() = default;

void MappingShellAdapter::mnuMappingsGen_Click() try {
    if (mMappingWindow == nullptr)
        mMappingWindow = std::make_unique<frmMappingGen>(
            frmMappingGen::Services{*mProcess.objTransformer, mBoxes, mTranslation, mErrors, *this});
    mMappingWindow->show();
    mMappingWindow->activateWindow();
}
ERROR_TAIL()

bool MappingShellAdapter::IsFormLoaded() const { return mParts.host.IsFormLoaded(); }

bool MappingShellAdapter::FinalValidation() {
    if (const auto enabler = mProcess.colEnablers.Item(QStringLiteral("Main")))
        enabler->Ienabler_ForceSaveToCurrentField();
    return mParts.host.ValidateForm() && mProcess.objTransformer->FinalValidate();
}

std::optional<QString> MappingShellAdapter::ChooseFile(const MappingFileRequest &request, QWidget *owner) {
    QFileDialog dialog(owner, request.title);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(request.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setNameFilters(nameFilters(request.filter));
    dialog.setDefaultSuffix(QStringLiteral("tst"));
    if (dialog.exec() == QDialog::Rejected || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst();
}
